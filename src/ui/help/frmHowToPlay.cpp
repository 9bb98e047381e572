#include "frmHowToPlay.h"

#include "help/HelpTexts.h"
#include "ui/controls/Backdrop.h"
#include "ui/controls/CaptionControl.h"
#include "ui/controls/FormLook.h"

#include <QButtonGroup>
#include <QCloseEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>

frmHowToPlay::frmHowToPlay(QWidget *parent) : QWidget(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("How To Play Quizzarr!"));
    setFont(ArialFont(11));

    vseButtons = new CaptionControl(this);
    vseButtons->setDesignSize(QSizeF(5, 1));
    auto *group = new QButtonGroup(this);
    const QStringList captions = HelpTopicCaptions();
    for (int i = 0; i < captions.size(); ++i) {
        auto *button = new QPushButton(captions[i]);
        button->setCheckable(true);
        group->addButton(button, i);
        vseButtons->addChild(button, QRectF(i + 0.04, 0.08, 0.92, 0.84));
        optHelp.append(button);
    }
    connect(group, &QButtonGroup::idClicked, this, &frmHowToPlay::optHelp_Click);

    txtPlay = new QPlainTextEdit(this);
    txtPlay->setReadOnly(true);
    txtPlay->setFont(ArialFont(13));

    resize(640, 480);
    CentreOnScreen(*this);
    optHelp_Click(0);
}

void frmHowToPlay::optHelp_Click(int Index)
{
    if (Index < 0 || Index >= optHelp.size())
        return;
    optHelp[Index]->setChecked(true);
    txtPlay->setPlainText(HelpTopicText(Index));
}

void frmHowToPlay::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    PaintBackdrop(p, rect());
}

void frmHowToPlay::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    // The bar stays transparent, so the backdrop shows through it.
    vseButtons->setGeometry(15, 15, width() - 30, 50);
    vseButtons->refresh();
    txtPlay->setGeometry(15, 15 + 50 + 15, width() - 30, height() - 45 - 50);
}

void frmHowToPlay::closeEvent(QCloseEvent *event)
{
    emit unloaded();
    event->accept();
}
