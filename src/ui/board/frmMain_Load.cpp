// The board's load and unload.

#include "frmMain.h"

#include "game/GameRules.h"
#include "game/GameState.h"
#include "ui/board/JoinScreen.h"
#include "ui/controls/ShadowLabel.h"
#include "ui/controls/CaptionControl.h"
#include "ui/controls/FormLook.h"
#include "platform/MsgBox.h"
#include "questions/GameReads.h"
#include "shell/Libraries.h"
#include "shell/basDetectDevEnv.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>

frmMain::frmMain(GameState &state, Libraries &libraries, QWidget *parent)
    : QWidget(parent), state_(state), libraries_(libraries)
{
    setAttribute(Qt::WA_DeleteOnClose);
    // The backdrop is painted whole: Qt need not fill the window first.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setWindowTitle(applicationTitle());
    setFocusPolicy(Qt::StrongFocus);
    resize(1024, 768);
    createControls();

    startSound();
    tmrQuestion->stop();
    tmrQuestion->setInterval(GameReads::AnswerTimerMs(state_.QuestionFile));
    setTileFaces();
}

frmMain::~frmMain() = default;

void frmMain::warnBeforeStart(const Libraries &libraries)
{
    if (libraries.hSoundLib && basDetectDevEnv::IsRunningCompiled())
        MsgBox(tr("Please wait until all sounds playing have stopped, then click OK to start!"),
               MsgBoxStyle::OKOnly | MsgBoxStyle::Exclamation, applicationTitle());
}

bool frmMain::present(int teams, QScreen *hostScreen, const std::function<void(BoardGame &)> &play)
{
    Busy busy(*this);
    // Another screen than the host's, when there is one: the projector.
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (QScreen *s : screens) {
        if (s != hostScreen) {
            screen_ = s;
            break;
        }
    }
    if (screens.size() < 2 || !screen_)
        screen_ = hostScreen ? hostScreen : QGuiApplication::primaryScreen();
    game_.setTeams(teams);
    PrepareTeamLabels(game_.state().Teams);
    Form_Resize();
    showOnWholeScreen();
    repaint();
    play(game_);
    return !unloaded_;
}

void frmMain::createControls()
{
    area_ = new QWidget(this);
    createTiles();
    createAnswerScreen();
    LoadTeamLabel(0);
    tmrQuestion = new QTimer(this);
    tmrQuestion->setObjectName(QStringLiteral("tmrQuestion"));
    connectControls();
    watchGame();
}

void frmMain::createTiles()
{
    vseCategories = new CaptionControl(area_);
    vseCategories->setObjectName(QStringLiteral("vseCategories"));
    vseCategories->setDesignSize(QSizeF(6, 1));
    for (int c = 0; c < 6; ++c) {
        auto *header = new CaptionControl;
        header->setFont(ArialFont(8, true));
        header->setCaption(game_.state().headerCaption[size_t(c)]);
        header->setObjectName(QStringLiteral("vseCategory(%1)").arg(c));
        vseCategories->addChild(header, QRectF(c, 0, 1, 1));
        vseCategory[size_t(c)] = header;
    }
    for (int r = 0; r < 5; ++r) {
        auto *row = new CaptionControl(area_);
        row->setDesignSize(QSizeF(6, 1));
        row->setObjectName(QStringLiteral("vseQuestions(%1)").arg(r));
        vseQuestions[size_t(r)] = row;
        for (int c = 0; c < 6; ++c) {
            const int i = r * 6 + c;
            auto *tile = new CaptionControl;
            tile->setFont(ArialFont(8, true));
            tile->setTextColor(kValueGold);
            tile->setCaption(game_.state().tileCaption[size_t(i)]);
            tile->setObjectName(QStringLiteral("vseQuestion(%1)").arg(i));
            row->addChild(tile, QRectF(c, 0, 1, 1));
            vseQuestion[size_t(i)] = tile;
        }
    }
}

void frmMain::createAnswerScreen()
{
    // The answer screen covers the whole window, not only the board's
    // 4:3 area: on a wide screen the clue gets the whole width.
    vseTV = new CaptionControl(this);
    vseTV->setObjectName(QStringLiteral("vseTV"));
    vseTV->setFont(ArialFont(8, true));
    vseTV->hide();
    lblCategory = new ShadowLabel(vseTV);
    lblCategory->setObjectName(QStringLiteral("lblCategory"));
    lblCategory->setCaption(tr("Category"));
    lblCategory->hide();
    lblValue = new ShadowLabel(vseTV);
    lblValue->setObjectName(QStringLiteral("lblValue"));
    lblValue->setCaption(tr("Value"));
    lblValue->hide();
    lblBuzz = new ShadowLabel(vseTV);
    lblBuzz->setObjectName(QStringLiteral("lblBuzz"));
    lblBuzz->hide();
    revealPanel_ = new RevealPanel(vseTV);
    joinScreen_ = new JoinScreen(this);
    connect(joinScreen_, &JoinScreen::pressed, this, [this] { showJoinScreen(false); });
}

void frmMain::startSound()
{
    const std::unique_ptr<SoundLibrary> &hSoundLib = libraries_.hSoundLib;
    if (!hSoundLib)
        return;
    while (hSoundLib->InitSound(uintptr_t(winId())) != 0) {
        const MsgBoxResult answer = MsgBox(
            tr("I am unable to initialize DirectSound. This might be caused if a sound is currently "
                           "playing. Click RETRY after all sounds have stopped to try again. Click CANCEL to play "
                           "the game WITHOUT sound."),
            MsgBoxStyle::RetryCancel | MsgBoxStyle::Critical, applicationTitle());
        if (answer != MsgBoxResult::Retry)
            break;
    }
}

void frmMain::setTileFaces()
{
    libraries_.DrawLibraryBitmap(picText, state_.PicIdScreen);
    const QImage face = picText.image();
    for (CaptionControl *header : vseCategory)
        header->setPicture(face);
    for (CaptionControl *tile : vseQuestion)
        tile->setPicture(face);
}

void frmMain::LoadTeamLabel(int i)
{
    auto make = [&](QWidget *parent, QList<ShadowLabel *> &array, const char *name, const QString &caption) {
        auto *label = new ShadowLabel(parent);
        label->setObjectName(QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(i));
        if (i > 0) {
            const ShadowLabel *first = array.first();
            label->setFont(first->font());
            label->setGeometry(first->geometry());
        }
        label->setCaption(caption);
        label->hide();
        array.append(label);
    };
    const QString team = TeamName(i, state_.TeamNames[size_t(i)]) + QLatin1Char(':');
    make(area_, lblTeam, "lblTeam", team);
    make(area_, lblScore, "lblScore", QStringLiteral("$0"));
    make(vseTV, lblTeam2, "lblTeam2", team);
    make(vseTV, lblScore2, "lblScore2", QStringLiteral("$0"));
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
    libraries_.ShutdownSound();
    hide();
    emit unloaded();
    // A handler of this board may still be running (a wait for a sound, a
    // message box): the window goes when the last one has returned.
    if (busy_ > 0)
        deletePending_ = true;
    else
        deleteLater();
}

void frmMain::run(const std::function<void(BoardGame &)> &action)
{
    if (unloaded_)
        return;
    Busy busy(*this);
    action(game_);
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
    // Closed by the window system: the same end as the host's end key.
    event->ignore();
    Busy busy(*this);
    game_.endGame();
}
