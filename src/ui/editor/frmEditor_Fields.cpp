// The editor's fields: which round and category they show, the counts of
// rounds and categories, and every edit copied into the set at once.

#include "frmEditor.h"

#include "platform/NumberText.h"
#include "ui/controls/CaptionControl.h"
#include "ui/controls/FormLook.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QToolButton>

namespace {

// The design arrangement, in pixels (the original twips divided by 15).
constexpr QSizeF kDesign(512, 350);
constexpr qreal kLeft = 84, kFieldHeight = 20.8, kListHeight = 22, kWide = 416.8;
// Clue and response leave room on their right for the clue's picture.
constexpr qreal kTextWide = kWide - 44;
constexpr qreal kTextRows[10] = {120, 140, 164, 184, 208, 228, 252, 272, 296, 316};

QLabel *caption(const QString &text, QWidget *buddy)
{
    auto *label = new QLabel(text);
    label->setFont(ArialFont(9.75));
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setStyleSheet(QStringLiteral("color: white; background: transparent;"));
    label->setBuddy(buddy);
    return label;
}

// Shows a text from its start (a long clue would otherwise show its end).
void put(QLineEdit *field, const QString &text)
{
    field->setText(text);
    field->setCursorPosition(0);
}

} // namespace

QLineEdit *frmEditor::addField(const QString &text, QRectF design, QRectF captionDesign)
{
    auto *field = new QLineEdit;
    field->setFont(ArialFont(8.25));
    vseMain->addChild(field, design);
    QLabel *label = caption(text, field);
    vseMain->addChild(label, captionDesign);
    captions_.insert(field, label);
    return field;
}

void frmEditor::createFields()
{
    vseMain->setDesignSize(kDesign);
    vseMain->setScaleFonts(true);
    auto beside = [](qreal top) { return QRectF(2, top, kLeft - 6, kFieldHeight); };
    txtDesc = addField(tr("Description:"), QRectF(kLeft, 4, 288.8, kFieldHeight), beside(4));
    txtSecs = addField(tr("Secs/Answer:"), QRectF(472, 4, 28.8, kFieldHeight),
                       QRectF(376, 4, 92, kFieldHeight));
    txtSecs->setMaxLength(2);
    txtSecs->setText(QStringLiteral("20"));
    txtSecs->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("\\d{0,2}")), txtSecs));
    txtSecs->installEventFilter(this);
    txtName = addField(tr("Cat. Title:"), QRectF(kLeft, 92, kWide, kFieldHeight), beside(92));
    for (int j = 0; j < 5; ++j) {
        const qreal a = kTextRows[2 * j], q = kTextRows[2 * j + 1];
        txtAnswer[size_t(j)] = addField(tr("Answer %1:").arg(j + 1),
                                        QRectF(kLeft, a, kTextWide, kFieldHeight), beside(a));
        txtQuestion[size_t(j)] = addField(tr("Question %1:").arg(j + 1),
                                          QRectF(kLeft, q, kTextWide, kFieldHeight), beside(q));
    }
    createPictureButtons();
}

void frmEditor::createRoundsAndCategories()
{
    auto list = [&](const QString &text, qreal top, int count) {
        auto *combo = new QComboBox;
        combo->setFont(ArialFont(8.25));
        for (int i = 1; i <= count; ++i)
            combo->addItem(QString::number(i));
        vseMain->addChild(combo, QRectF(kLeft, top, 36.8, kListHeight));
        vseMain->addChild(caption(text, combo), QRectF(2, top, kLeft - 6, kListHeight));
        auto *row = new CaptionControl;
        row->setRowLayout(true);
        // The buttons take the row's font, which grows with the window; the
        // one pressed stands out in gold.
        row->setFont(ArialFont(9.75));
        row->setStyleSheet(QStringLiteral(
            "QPushButton { background: #e6e8f2; color: black; border: 1px solid #20244a; border-radius: 4px; margin: 1px; }"
            "QPushButton:checked { background: #ffcc33; border: 2px solid white; font-weight: bold; }"));
        vseMain->addChild(row, QRectF(128, top, 372.8, kListHeight));
        return std::pair{combo, row};
    };
    std::tie(cmbRounds, vseRounds) = list(tr("Rounds:"), 32, 2);
    std::tie(cmbCategories, vseCategories) = list(tr("Categories:"), 60, 6);

    auto *rounds = new QButtonGroup(this);
    const QStringList roundCaptions{tr("Round 1"), tr("Round 2"), tr("Final")};
    for (int r = 0; r < 3; ++r) {
        optRound[size_t(r)] = new QPushButton(roundCaptions[r]);
        optRound[size_t(r)]->setCheckable(true);
        rounds->addButton(optRound[size_t(r)], r);
        vseRounds->addChild(optRound[size_t(r)], QRectF());
    }
    auto *categories = new QButtonGroup(this);
    for (int c = 0; c < 6; ++c) {
        optCategory[size_t(c)] = new QPushButton(tr("Cat. %1").arg(c + 1));
        optCategory[size_t(c)]->setCheckable(true);
        categories->addButton(optCategory[size_t(c)], c);
        vseCategories->addChild(optCategory[size_t(c)], QRectF());
    }
    connect(rounds, &QButtonGroup::idToggled, this, [this](int r, bool on) {
        if (on)
            optRound_Click(r);
    });
    connect(categories, &QButtonGroup::idToggled, this, [this](int c, bool on) {
        if (on)
            optCategory_Click(c);
    });
}

void frmEditor::connectFields()
{
    // Every change of a field's text, by the host or by the editor itself,
    // goes into the set and marks it modified.
    auto edited = [this](QLineEdit *field, auto store) {
        connect(field, &QLineEdit::textChanged, this, [this, store](const QString &text) {
            store(text);
            Modified = QStringLiteral("X");
        });
    };
    edited(txtDesc, [this](const QString &t) { questionSet.Description = t; });
    edited(txtName, [this](const QString &t) { shownCategory().Title = t; });
    for (int j = 0; j < 5; ++j) {
        edited(txtAnswer[size_t(j)], [this, j](const QString &t) { shownCategory().Answer[size_t(j)] = t; });
        edited(txtQuestion[size_t(j)], [this, j](const QString &t) { shownCategory().Question[size_t(j)] = t; });
    }
    connect(txtSecs, &QLineEdit::textChanged, this, &frmEditor::txtSecs_Change);
    // The lists act on every change made by code, and on every choice the
    // host makes, also of the count already chosen (activated); a choice
    // that changes the count raises both, and the handlers do the same
    // thing twice. Keys and the wheel are seen in eventFilter.
    connect(cmbRounds, &QComboBox::currentIndexChanged, this, &frmEditor::cmbRounds_Click);
    connect(cmbCategories, &QComboBox::currentIndexChanged, this, &frmEditor::cmbCategories_Click);
    connect(cmbRounds, &QComboBox::activated, this, &frmEditor::cmbRounds_Click);
    connect(cmbCategories, &QComboBox::activated, this, &frmEditor::cmbCategories_Click);
    cmbRounds->installEventFilter(this);
    cmbCategories->installEventFilter(this);
}

void frmEditor::setFieldShown(QLineEdit *field, bool shown)
{
    field->setVisible(shown);
    if (QLabel *label = captions_.value(field))
        label->setVisible(shown);
}

CategoryEntry &frmEditor::shownCategory()
{
    return questionSet.Categories[size_t(CurrentRound)][size_t(CurrentCategory)];
}

void frmEditor::selectRound(int r)
{
    if (optRound[size_t(r)]->isChecked())
        optRound_Click(r);
    else
        optRound[size_t(r)]->setChecked(true);
}

void frmEditor::selectCategory(int c)
{
    if (optCategory[size_t(c)]->isChecked())
        optCategory_Click(c);
    else
        optCategory[size_t(c)]->setChecked(true);
}

void frmEditor::newSet()
{
    CurrentFileBase.clear();
    proposeDocuments_ = false;
    questionSet = QuestionSet{};
    put(txtDesc, QString());
    txtSecs->setText(QStringLiteral("20"));
    selectRound(0);
    cmbRounds->setCurrentIndex(1);
    cmbCategories->setCurrentIndex(5);
    Modified.clear();
}

void frmEditor::showSet()
{
    put(txtDesc, questionSet.Description);
    txtSecs->setText(QString::number(questionSet.Timer));
    cmbRounds->setCurrentIndex(questionSet.RoundCount - 1);
    selectRound(0);
    cmbCategories->setCurrentIndex(questionSet.CategoryCount[0] - 1);
    selectCategory(0);
}

void frmEditor::optRound_Click(int Index)
{
    selectCategory(0); // category 1 of the round shown so far
    CurrentRound = qint16(Index);
    // The final's count stays 0: no item is selected for it.
    cmbCategories->setCurrentIndex(questionSet.CategoryCount[size_t(Index)] - 1);
    put(txtName, shownCategory().Title);
    const bool final = Index == 2;
    vseCategories->setVisible(!final);
    cmbCategories->setEnabled(!final);
    for (int j = 1; j < 5; ++j) {
        setFieldShown(txtAnswer[size_t(j)], !final);
        setFieldShown(txtQuestion[size_t(j)], !final);
        cmdPicture[size_t(j)]->setVisible(!final);
    }
    for (int j = 0; j < 5; ++j) {
        put(txtAnswer[size_t(j)], shownCategory().Answer[size_t(j)]);
        put(txtQuestion[size_t(j)], shownCategory().Question[size_t(j)]);
    }
    showPictures();
    vseMain->refresh();
}

void frmEditor::optCategory_Click(int Index)
{
    CurrentCategory = qint16(Index);
    put(txtName, shownCategory().Title);
    for (int j = 0; j < 5; ++j) {
        put(txtAnswer[size_t(j)], shownCategory().Answer[size_t(j)]);
        put(txtQuestion[size_t(j)], shownCategory().Question[size_t(j)]);
    }
    showPictures();
}

void frmEditor::cmbRounds_Click()
{
    const int index = cmbRounds->currentIndex();
    optRound[1]->setVisible(index == 1);
    questionSet.RoundCount = qint16(index + 1);
    Modified = QStringLiteral("X");
    selectRound(0);
    vseRounds->refresh();
}

void frmEditor::cmbCategories_Click()
{
    const int index = cmbCategories->currentIndex();
    for (int i = 0; i < 6; ++i)
        optCategory[size_t(i)]->setVisible(i <= index);
    questionSet.CategoryCount[size_t(CurrentRound)] = qint16(index + 1);
    Modified = QStringLiteral("X");
    selectCategory(0);
    vseCategories->refresh();
}

void frmEditor::txtSecs_Change()
{
    questionSet.Timer = qint16(qBound(-32768LL, RoundHalfEven(LeadingNumber(txtSecs->text())), 32767LL));
    Modified = QStringLiteral("X");
}

void frmEditor::txtSecs_LostFocus()
{
    const double seconds = LeadingNumber(txtSecs->text());
    txtSecs->setText(seconds < 5 || seconds > 60 ? QStringLiteral("20")
                                                 : QString::number(RoundHalfEven(seconds)));
}

bool frmEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize) {
        for (QToolButton *button : cmdPicture) {
            if (watched == button)
                fitPictureIcon(button);
        }
    }
    // A key press or a turn of the wheel on a list acts once, whether or not
    // it changes the count: the list does its part quietly, then the
    // handler runs.
    if ((watched == cmbRounds || watched == cmbCategories) &&
        (event->type() == QEvent::Wheel ||
         (event->type() == QEvent::KeyPress && !static_cast<QKeyEvent *>(event)->text().isEmpty() &&
          static_cast<QKeyEvent *>(event)->key() != Qt::Key_Tab &&
          static_cast<QKeyEvent *>(event)->key() != Qt::Key_Backtab))) {
        auto *list = static_cast<QComboBox *>(watched);
        {
            const QSignalBlocker quiet(list);
            static_cast<QObject *>(list)->event(event);
        }
        if (list == cmbRounds)
            cmbRounds_Click();
        else
            cmbCategories_Click();
        return true;
    }
    // The focus that goes to a menu, a dialog or a message box comes back:
    // the field has not been left, so a Save As writes what it holds.
    if (watched == txtSecs && event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
            reason != Qt::MenuBarFocusReason)
            txtSecs_LostFocus();
    }
    if (watched == txtSecs && event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab)
            return false;
        // Only digits, Backspace and Enter; every other typed character is
        // dropped. Keys that type nothing pass, Delete included, to which
        // X11 gives the text DEL (0x7F).
        const QString text = key->text();
        if (!text.isEmpty() && text.front() != QChar(0x7F)) {
            const QChar c = text.front();
            const bool allowed = (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('\b') ||
                                 c == QLatin1Char('\r');
            return !allowed;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}
