// The board's load and unload.

#include "frmMain.h"

#include "GameState.h"
#include "board/ShadowLabel.h"
#include "platform/CaptionControl.h"
#include "platform/FormLook.h"
#include "platform/MsgBox.h"
#include "questions/GameReads.h"
#include "shell/PictureLibrary.h"
#include "shell/SoundLibrary.h"

#include <QCloseEvent>
#include <QTimer>

namespace {

} // namespace

frmMain::frmMain(QWidget *parent) : QWidget(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(applicationTitle());
    setFocusPolicy(Qt::StrongFocus);
    resize(1024, 768);
    createControls();

    startSound();
    tmrQuestion->stop();
    tmrQuestion->setInterval(GameReads::AnswerTimerMs(basPLOVQuzr::QuestionFile));
    setTileFaces();
}

frmMain::~frmMain() = default;

void frmMain::createControls()
{
    area_ = new QWidget(this);
    createTiles();
    createAnswerScreen();
    LoadTeamLabel(0);
    tmrQuestion = new QTimer(this);
    connectControls();
}

void frmMain::createTiles()
{
    vseCategories = new CaptionControl(area_);
    vseCategories->setDesignSize(QSizeF(6, 1));
    for (int c = 0; c < 6; ++c) {
        auto *header = new CaptionControl;
        header->setFont(ArialFont(8, true));
        header->setCaption(game.state().headerCaption[size_t(c)]);
        vseCategories->addChild(header, QRectF(c, 0, 1, 1));
        vseCategory[size_t(c)] = header;
    }
    for (int r = 0; r < 5; ++r) {
        auto *row = new CaptionControl(area_);
        row->setDesignSize(QSizeF(6, 1));
        vseQuestions[size_t(r)] = row;
        for (int c = 0; c < 6; ++c) {
            const int i = r * 6 + c;
            auto *tile = new CaptionControl;
            tile->setFont(ArialFont(8, true));
            tile->setTextColor(kValueGold);
            tile->setCaption(game.state().tileCaption[size_t(i)]);
            row->addChild(tile, QRectF(c, 0, 1, 1));
            vseQuestion[size_t(i)] = tile;
        }
    }
}

void frmMain::createAnswerScreen()
{
    vseTV = new CaptionControl(area_);
    vseTV->setFont(ArialFont(8, true));
    vseTV->hide();
    lblCategory = new ShadowLabel(vseTV);
    lblCategory->setCaption(QStringLiteral("Category"));
    lblCategory->hide();
    lblValue = new ShadowLabel(vseTV);
    lblValue->setCaption(QStringLiteral("Value"));
    lblValue->hide();
}

void frmMain::startSound()
{
    using basPLOVQuzr::hSoundLib;
    if (!hSoundLib)
        return;
    while (hSoundLib->InitSound(uintptr_t(winId())) != 0) {
        const MsgBoxResult answer = MsgBox(
            QStringLiteral("I am unable to initialize DirectSound. This might be caused if a sound is currently "
                           "playing. Click RETRY after all sounds have stopped to try again. Click CANCEL to play "
                           "the game WITHOUT sound."),
            MsgBoxStyle::RetryCancel | MsgBoxStyle::Critical, applicationTitle());
        if (answer != MsgBoxResult::Retry)
            break;
    }
}

void frmMain::setTileFaces()
{
    DrawLibraryBitmap(picText, basPLOVQuzr::PicIdScreen);
    const QImage face = picText.image();
    for (CaptionControl *header : vseCategory)
        header->setPicture(face);
    for (CaptionControl *tile : vseQuestion)
        tile->setPicture(face);
}

void frmMain::LoadTeamLabel(int i)
{
    auto make = [&](QWidget *parent, QList<ShadowLabel *> &array, const QString &caption) {
        auto *label = new ShadowLabel(parent);
        if (i > 0) {
            const ShadowLabel *first = array.first();
            label->setFont(first->font());
            label->setGeometry(first->geometry());
        }
        label->setCaption(caption);
        label->hide();
        array.append(label);
    };
    const QString team = QStringLiteral("Team %1:").arg(i + 1);
    make(area_, lblTeam, team);
    make(area_, lblScore, QStringLiteral("$0"));
    make(vseTV, lblTeam2, team);
    make(vseTV, lblScore2, QStringLiteral("$0"));
}

void frmMain::UnloadTeamLabel(int i)
{
    if (i < 1 || i >= lblTeam.size())
        return;
    for (QList<ShadowLabel *> *array : {&lblTeam, &lblScore, &lblTeam2, &lblScore2})
        delete array->takeAt(i);
}

void frmMain::PrepareTeamLabels(int teams)
{
    teams = qBound(0, teams, 10);
    lblTeam[0]->setVisible(teams > 0);
    lblScore[0]->setVisible(teams > 0);
    for (int i = int(lblTeam.size()) - 1; i >= 1; --i)
        UnloadTeamLabel(i);
    for (int i = 1; i < teams; ++i) {
        LoadTeamLabel(i);
        lblTeam[i]->show();
        lblScore[i]->show();
        lblTeam2[i]->hide();
        lblScore2[i]->hide();
    }
}

void frmMain::Unload()
{
    if (unloaded_)
        return;
    unloaded_ = true;
    tmrQuestion->stop();
    if (basPLOVQuzr::hSoundLib)
        basPLOVQuzr::hSoundLib->Shutdown();
    hide();
    emit unloaded();
    // A handler of this board may still be running (a wait for a sound, a
    // message box): the window goes when the last one has returned.
    if (busy_ > 0)
        deletePending_ = true;
    else
        deleteLater();
}

frmMain::Busy::Busy(frmMain &form) : form_(form)
{
    ++form_.busy_;
}

frmMain::Busy::~Busy()
{
    if (--form_.busy_ == 0 && form_.deletePending_) {
        form_.deletePending_ = false;
        form_.deleteLater();
    }
}

void frmMain::closeEvent(QCloseEvent *event)
{
    // Closed by the window system: the same end as the game's own.
    event->ignore();
    Unload();
}
