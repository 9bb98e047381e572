#include "frmSelect.h"

#include "QuestionListDelegate.h"
#include "select/QuestionSetList.h"
#include "select/SelectLayout.h"
#include "platform/clsShellFolders.h"
#include "ui/controls/Backdrop.h"
#include "ui/board/frmMain.h"
#include "ui/buzzers/frmBuzzers.h"
#include "ui/console/frmConsole.h"
#include "ui/help/frmHowToPlay.h"
#include "ui/editor/frmEditor.h"
#include "ui/controls/CaptionControl.h"
#include "ui/controls/CommandButton.h"
#include "ui/controls/FormLook.h"
#include "platform/ModuleFileName.h"
#include "platform/MsgBox.h"
#include "platform/SpecialFolders.h"
#include "game/GameRules.h"
#include "game/GameState.h"
#include "questions/GameReads.h"
#include "shell/Libraries.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCheckBox>
#include <QComboBox>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <memory>

namespace {

// Translated where they are used: the list is made before any language is.
const char *const kTeamCounts[] = {
    QT_TRANSLATE_NOOP("frmSelect", "No scoring"),  QT_TRANSLATE_NOOP("frmSelect", "One team"),
    QT_TRANSLATE_NOOP("frmSelect", "Two teams"),   QT_TRANSLATE_NOOP("frmSelect", "Three teams"),
    QT_TRANSLATE_NOOP("frmSelect", "Four teams"),  QT_TRANSLATE_NOOP("frmSelect", "Five teams"),
    QT_TRANSLATE_NOOP("frmSelect", "Six teams"),   QT_TRANSLATE_NOOP("frmSelect", "Seven teams"),
    QT_TRANSLATE_NOOP("frmSelect", "Eight teams"), QT_TRANSLATE_NOOP("frmSelect", "Nine teams"),
    QT_TRANSLATE_NOOP("frmSelect", "Ten teams!")};

} // namespace

frmSelect::frmSelect(GameState &state, Libraries &libraries, QWidget *parent, std::function<SetListing()> ahead)
    : QWidget(parent), state_(state), libraries_(libraries), ahead_(std::move(ahead))
{
    setAttribute(Qt::WA_DeleteOnClose);
    // The backdrop covers every pixel: Qt need not fill the window first.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setWindowTitle(tr("Select the question set to use"));
    createControls();
    resize(640, 480);
    CentreOnScreen(*this);
    PopulateQZ2();
    cmbScore->setCurrentIndex(3);
    if (lstQuestions->count() > 0)
        lstQuestions->setCurrentRow(0);
    lstQuestions->setFocus();
}

frmSelect::~frmSelect()
{
    delete console_.data();
    if (checker_)
        checker_->wait(); // it reads none of this screen, but its code must not go first
}

void frmSelect::checkSetsTakenOnTrust()
{
    if (unchecked_.isEmpty() || checker_)
        return;
    auto written = std::make_shared<std::atomic_bool>(false);
    checker_.reset(QThread::create([folders = std::exchange(unchecked_, {}), written] {
        *written = !StillAsListed(folders);
    }));
    connect(checker_.get(), &QThread::finished, this, [this, written] {
        if (*written)
            refillKeepingSelection();
    });
    checker_->start(QThread::LowPriority);
}

void frmSelect::waitForSetsChecked()
{
    if (!checker_)
        return;
    checker_->wait();
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall); // its end, handled here
}

void frmSelect::refillKeepingSelection()
{
    const QListWidgetItem *selected = selectedEntry();
    const QString path = selected ? GetEntryPath(selected) : QString();
    PopulateQZ2();
    for (int row = 0; row < lstQuestions->count(); ++row) {
        if (!path.isEmpty() && GetEntryPath(lstQuestions->item(row)) == path) {
            lstQuestions->setCurrentRow(row);
            return;
        }
    }
    if (selected && lstQuestions->count() > 0)
        lstQuestions->setCurrentRow(0);
}

void frmSelect::createControls()
{
    lstQuestions = new QListWidget(this);
    lstQuestions->setFont(ArialFont(9.75));
    delegate_ = new QuestionListDelegate(lstQuestions);
    lstQuestions->setItemDelegate(delegate_);
    // Every entry is one line: the list need not measure ten thousand rows.
    lstQuestions->setUniformItemSizes(true);
    lstQuestions->setSelectionMode(QAbstractItemView::SingleSelection);
    connect(lstQuestions, &QListWidget::itemDoubleClicked, this, [this] { cmdStart_Click(); });

    lblScore = new QLabel(tr("Keep score for:"), this);
    lblScore->setFont(ArialFont(12));
    // White on the backdrop; a palette, not a style sheet, which would
    // bring Qt's style sheet machinery into the start for one colour.
    QPalette white = lblScore->palette();
    white.setColor(QPalette::WindowText, Qt::white);
    lblScore->setPalette(white);
    cmbScore = new QComboBox(this);
    cmbScore->setFont(ArialFont(9.75));
    for (const char *count : kTeamCounts)
        cmbScore->addItem(tr(count));
    createButtons();
    createMenus();
    createBuzzerControls();
    // Keyboard order: the list first, then Start Game, then How To Play.
    setTabOrder(lstQuestions, cmdStart);
    setTabOrder(cmdStart, cmdHowToPlay);
    setTabOrder(cmdHowToPlay, cmdEditor);
    setTabOrder(cmdEditor, cmbScore);
}

void frmSelect::createBuzzerControls()
{
    chkBuzzIn = new QCheckBox(tr("Buzz in"), this);
    chkBuzzIn->setFont(ArialFont(9.75));
    chkBuzzIn->setPalette(lblScore->palette());
    chkBuzzIn->setChecked(buzzers_.settings().buzzIn);
    connect(chkBuzzIn, &QCheckBox::toggled, &buzzers_, &BuzzerInputs::setBuzzIn);
    connect(&buzzers_, &BuzzerInputs::changed, this, [this] { chkBuzzIn->setChecked(buzzers_.settings().buzzIn); });
    cmdBuzzers = new QPushButton(tr("Buzzers\u2026"), this);
    cmdBuzzers->setFont(ArialFont(9.75));
    connect(cmdBuzzers, &QPushButton::clicked, this, &frmSelect::openBuzzers);
    chkPhones = new QCheckBox(tr("Phones"), this);
    chkPhones->setFont(ArialFont(9.75));
    chkPhones->setPalette(lblScore->palette());
    connect(chkPhones, &QCheckBox::clicked, this, &frmSelect::setPhonesOn);
    connect(&phones_, &Phones::changed, this, [this] {
        chkPhones->setChecked(phones_.isOn());
        if (board_ && phones_.room())
            board_->setJoinedPlayers(int(phones_.room()->players().size()));
    });
    connect(cmbScore, &QComboBox::currentIndexChanged, this, [this](int teams) {
        if (phones_.server())
            phones_.server()->setTeamCount(teams);
    });
}

void frmSelect::setPhonesOn(bool on)
{
    if (!phones_.turnOn(on)) {
        MsgBox(tr("The phones cannot be used: no network port from %1 on is free on this computer.")
                   .arg(PlayersServer::kPreferredPort),
               MsgBoxStyle::OKOnly | MsgBoxStyle::Exclamation, applicationTitle());
        return;
    }
    if (!on) {
        journal_.watchRoom(nullptr);
        return;
    }
    phones_.server()->setTeamCount(cmbScore->currentIndex());
    if (board_) {
        journal_.watchRoom(phones_.room());
        phones_.server()->attach(&board_->game(), &board_->buzzIn(), &board_->answers());
        board_->setJoinScreen(phones_.address(), phones_.room()->code(), false);
    }
}

void frmSelect::openBuzzers()
{
    if (!buzzersWindow_) {
        buzzersWindow_ = new frmBuzzers(buzzers_, state_);
        buzzersWindow_->setAttribute(Qt::WA_DeleteOnClose);
    }
    buzzersWindow_->show();
    buzzersWindow_->raise();
    buzzersWindow_->activateWindow();
}

void frmSelect::createButtons()
{
    vseButtons = new CaptionControl(this);
    vseButtons->setDesignSize(QSizeF(7332, 732));
    cmdStart = new CommandButton(tr("Start Game"));
    cmdEditor = new CommandButton(tr("Question Editor/Creator"));
    cmdHowToPlay = new CommandButton(tr("How To Play"));
    vseButtons->addChild(cmdStart, QRectF(0, 0, 2250, 732));
    vseButtons->addChild(cmdEditor, QRectF(2550, 0, 2250, 732));
    vseButtons->addChild(cmdHowToPlay, QRectF(5100, 0, 2235, 732));

    vseImportExport = new CaptionControl(this);
    vseImportExport->setDesignSize(QSizeF(732, 1932));
    cmdExport = new CommandButton(tr(">> Export File"));
    cmdImport = new CommandButton(tr("<< Import File(s)"));
    vseImportExport->addChild(cmdExport, QRectF(0, 0, 732, 825));
    vseImportExport->addChild(cmdImport, QRectF(0, 1125, 732, 810));

    for (CommandButton *b : {cmdStart, cmdEditor, cmdHowToPlay, cmdExport, cmdImport})
        b->setFont(ArialFont(9.75));
    connect(cmdStart, &QPushButton::clicked, this, &frmSelect::cmdStart_Click);
    connect(cmdEditor, &QPushButton::clicked, this, &frmSelect::cmdEditor_Click);
    connect(cmdHowToPlay, &QPushButton::clicked, this, &frmSelect::cmdHowToPlay_Click);
}

QString frmSelect::documentsFolder() const
{
    return clsShellFolders().GetSpecialFolderLocation(uintptr_t(winId()), SpecialFolders::kDocuments);
}

void frmSelect::PopulateQZ2()
{
    lstQuestions->clear();
    const QString program = ModuleFileName::programFolder();
    lstQuestions->setProperty("programFolder", program);
    // Filled out of sight: the view lays out once, not once per entry.
    lstQuestions->setUpdatesEnabled(false);
    const QString documents = documentsFolder();
    // A listing made ahead serves the first filling, if it is of these folders.
    SetListing listing = ahead_ ? std::exchange(ahead_, nullptr)() : SetListing{};
    if (!listing.cache || listing.programFolder != program || listing.documentsFolder != documents)
        listing = ListSets(program, documents);
    unchecked_ = std::move(listing.unchecked);
    const QList<QuestionSetEntry> &entries = listing.entries;
    QStringList texts;
    texts.reserve(entries.size());
    for (const QuestionSetEntry &entry : entries)
        texts << entry.text;
    lstQuestions->addItems(texts); // in one insertion, not ten thousand
    // Only the documents folder's entries say where they came from; no
    // code reads as the program folder.
    for (qsizetype row = 0; row < entries.size(); ++row) {
        if (entries.at(row).folder != 0)
            lstQuestions->item(int(row))->setData(Qt::UserRole, entries.at(row).folder);
    }
    const QFont font = lstQuestions->font();
    delegate_->setWidestName(font, WidestFileName(entries, QFontMetrics(font), listing.cache.get()));
    listing.cache->save();
    lstQuestions->setUpdatesEnabled(true);
    lstQuestions->setCurrentRow(-1);
    lstQuestions->clearSelection();
    cmdStart->setVisible(lstQuestions->count() > 0);
    vseButtons->setChildDesignRect(cmdStart, QRectF(0, 0, 2250, 732));
    vseButtons->refresh();
}

QString frmSelect::GetEntryPath(const QListWidgetItem *entry) const
{
    const QString folder = entry->data(Qt::UserRole).toInt() == 1
                               ? documentsFolder()
                               : lstQuestions->property("programFolder").toString();
    return folder + EntryFileName(entry->text());
}

QListWidgetItem *frmSelect::selectedEntry() const
{
    const QList<QListWidgetItem *> selected = lstQuestions->selectedItems();
    return selected.isEmpty() ? nullptr : selected.first();
}

bool frmSelect::checkSelectedEntry()
{
    QListWidgetItem *entry = selectedEntry();
    if (!entry) {
        MsgBox(tr("Please select a question set to use before starting the game."),
               MsgBoxStyle::OKOnly | MsgBoxStyle::Information, applicationTitle());
        return false;
    }
    state_.QuestionFile = GetEntryPath(entry);
    if (GameReads::IsQuestionSet(GameReads::Description(state_.QuestionFile)))
        return true;
    // The file is gone or no longer a question set: so is its entry.
    delete lstQuestions->takeItem(lstQuestions->row(entry));
    lstQuestions->clearSelection();
    lstQuestions->setCurrentRow(-1);
    if (lstQuestions->count() == 0) {
        MsgBox(tr("I'm sorry, but I am unable to locate any valid .QZ2 files."),
               MsgBoxStyle::OKOnly | MsgBoxStyle::Critical, applicationTitle());
        libraries_.ShutdownLibraries();
    }
    return false;
}

void frmSelect::cmdStart_Click()
{
    if (board_ || !checkSelectedEntry())
        return;
    const int teams = cmbScore->currentIndex();
    openBoard([this, teams](QScreen *host, const std::function<void(frmMain *)> &loaded) {
        return frmMain::StartGame(state_, libraries_, teams, host, loaded);
    });
}

void frmSelect::openBoard(const BoardOpener &start)
{
    // With a second screen the board takes it (the projector) and the
    // console comes up where the home screen was, for the host alone.
    QScreen *hostScreen = screen();
    const bool twoScreens = QGuiApplication::screens().size() > 1;
    hide();
    if (twoScreens)
        openConsole(false);
    frmMain *board = start(twoScreens ? hostScreen : nullptr, [this](frmMain *loaded) {
        journal_.watch(loaded->game());
        buzzers_.attach(&loaded->buzzIn());
        journal_.watchRoom(phones_.isOn() ? phones_.room() : nullptr);
        if (phones_.isOn()) {
            phones_.server()->attach(&loaded->game(), &loaded->buzzIn(), &loaded->answers());
            // Before round 1: the class joins while the board fills.
            loaded->setJoinScreen(phones_.address(), phones_.room()->code(), true);
            loaded->setJoinedPlayers(int(phones_.room()->players().size()));
        }
        if (console_)
            console_->attach(loaded);
    });
    board_ = board;
    if (board)
        connect(board, &frmMain::unloaded, this, [this] {
            if (phones_.server())
                phones_.server()->attach(nullptr, nullptr, nullptr);
            comeBack();
        });
    else
        comeBack();
}

bool frmSelect::offerResume()
{
    const ResumeOffer offer = journal_.offer();
    if (offer.kind == ResumeOffer::Gone)
        MsgBox(offer.text, MsgBoxStyle::OKOnly | MsgBoxStyle::Exclamation, applicationTitle());
    if (offer.kind != ResumeOffer::Resume)
        return false;
    if (MsgBox(offer.text, MsgBoxStyle::YesNo | MsgBoxStyle::Question, applicationTitle()) != MsgBoxResult::Yes) {
        journal_.remove();
        return false;
    }
    state_.QuestionFile = offer.record.questionFile;
    // Phones that were on come back on, on the same port with the same room:
    // they find their teams again by themselves.
    if (!offer.record.room.isEmpty())
        phones_.resume(offer.record.room, offer.record.port, offer.record.players);
    openBoard([this, &offer](QScreen *host, const std::function<void(frmMain *)> &loaded) {
        return frmMain::ResumeGame(state_, libraries_, offer.record, host, loaded);
    });
    return true;
}

void frmSelect::openConsole(bool byHand)
{
    consoleByHand_ = consoleByHand_ || byHand;
    if (!console_) {
        console_ = new frmConsole(state_);
        console_->setBuzzers(&buzzers_, [this] { openBuzzers(); });
        console_->setPhones(&phones_, [this](bool on) { setPhonesOn(on); });
    }
    if (byHand) {
        console_->show();
        console_->raise();
        console_->activateWindow();
    } else {
        console_->showOn(screen());
    }
}

void frmSelect::comeBack()
{
    // A console that came with the game goes with it; one the host opened
    // stays.
    if (console_ && !consoleByHand_)
        console_->hide();
    show();
    activateWindow();
    lstQuestions->setFocus();
}

void frmSelect::cmdEditor_Click()
{
    QString fileToLoad;
    if (QListWidgetItem *entry = selectedEntry()) {
        const MsgBoxResult answer =
            MsgBox(tr("Click YES to edit %1, else click NO to create a new Question set.").arg(EntryFileName(entry->text())),
                   MsgBoxStyle::YesNo | MsgBoxStyle::Question, tr("Question Editor/Creator"));
        if (answer == MsgBoxResult::Yes)
            fileToLoad = GetEntryPath(entry);
    }
    hide();
    auto *editor = new frmEditor;
    editor->FileToLoad = fileToLoad;
    connect(editor, &frmEditor::unloaded, this, &frmSelect::editorClosed);
    editor_ = editor;
    editor->show();
}

void frmSelect::editorClosed()
{
    comeBack();
    PopulateQZ2();
}

void frmSelect::cmdHowToPlay_Click()
{
    hide();
    auto *help = new frmHowToPlay;
    connect(help, &frmHowToPlay::unloaded, this, &frmSelect::comeBack);
    help_ = help;
    help->show();
}

void frmSelect::layOut()
{
    libraries_.DrawLibraryBitmap(picText, kBannerPicture);
    banner_ = libraries_.hPictureLib ? picText.image() : QImage();
    const qreal labelWidth = QFontMetricsF(lblScore->font()).horizontalAdvance(lblScore->text());
    const SelectLayout l = LayOutSelectScreen(QSizeF(size()), picText.height(), cmbScore->sizeHint().height(),
                                              labelWidth, QSizeF(cmbScore->sizeHint()));
    lstQuestions->setGeometry(l.list.toRect());
    lblScore->setGeometry(l.scoreLabel.toRect());
    cmbScore->setGeometry(l.scoreCombo.toRect());
    // Buzz-in beside the team count, as far as the list reaches.
    const QRect combo = cmbScore->geometry();
    // A short caption ("Buzzer…") still gets the style's smallest button.
    const int button = qMax(QFontMetrics(cmdBuzzers->font()).horizontalAdvance(cmdBuzzers->text()) + 24,
                            cmdBuzzers->sizeHint().width());
    cmdBuzzers->setGeometry(l.list.toRect().right() - button + 1, combo.y(), button, combo.height());
    const int check = chkBuzzIn->sizeHint().width();
    chkBuzzIn->setGeometry(cmdBuzzers->x() - 12 - check, combo.y(), check, combo.height());
    const int phones = chkPhones->sizeHint().width();
    chkPhones->setGeometry(chkBuzzIn->x() - 16 - phones, combo.y(), phones, combo.height());
    // The two button bars stay transparent: the backdrop shows through.
    vseButtons->setGeometry(l.buttons.toRect());
    vseButtons->refresh();
    vseImportExport->setGeometry(l.importExport.toRect());
    vseImportExport->refresh();
}

void frmSelect::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    layOut();
}

void frmSelect::paintEvent(QPaintEvent *)
{
    if (!unchecked_.isEmpty())
        QTimer::singleShot(0, this, &frmSelect::checkSetsTakenOnTrust);
    QPainter p(this);
    PaintBackdrop(p, rect());
    // The band shows the banner's middle, cut at both sides.
    if (!banner_.isNull())
        p.drawImage(QPoint(0, 0), banner_, QRect((banner_.width() - width()) / 2, 0, width(), banner_.height()));
}

void frmSelect::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F2) {
        openConsole(true);
        return;
    }
    // Enter presses the focused button, or else Start Game while it shows.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        auto *button = qobject_cast<QPushButton *>(focusWidget());
        if (!button && cmdStart->isVisible())
            button = cmdStart;
        if (button)
            button->click();
        return;
    }
    QWidget::keyPressEvent(event);
}

void frmSelect::closeEvent(QCloseEvent *event)
{
    // Closing the home screen ends the program, and a game that runs with
    // it: ended, not interrupted, so nothing is offered to resume.
    if (board_)
        board_->close();
    libraries_.ShutdownLibraries();
    event->accept();
    QCoreApplication::quit();
}
