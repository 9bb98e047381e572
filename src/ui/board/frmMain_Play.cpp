// Play: the board's events go to the game, and the game's state comes back
// onto the controls.

#include "frmMain.h"

#include "game/GameRules.h"
#include "game/GameState.h"
#include "ui/controls/ShadowLabel.h"
#include "board/AnimationGeometry.h"
#include "board/TextFitting.h"
#include "ui/controls/CaptionControl.h"
#include "ui/board/JoinScreen.h"
#include "ui/controls/FormLook.h"
#include "shell/Libraries.h"
#include "platform/Clock.h"
#include "platform/DigitRowKey.h"
#include "platform/PictureFile.h"

#include <QKeyEvent>
#include <QScreen>
#include <QTimer>

namespace {

// Each row of a new round reaches the screen as its own frame while the
// board-fill sound plays.
constexpr int kRowFrameMs = 120;

bool allThreeHeld(Qt::KeyboardModifiers m)
{
    return (m & Qt::ShiftModifier) && (m & Qt::ControlModifier) && (m & Qt::AltModifier);
}

int modifierBits(Qt::KeyboardModifiers m)
{
    return (m & Qt::ShiftModifier ? 1 : 0) | (m & Qt::ControlModifier ? 2 : 0) | (m & Qt::AltModifier ? 4 : 0);
}

} // namespace

void frmMain::connectControls()
{
    for (int i = 0; i < 30; ++i) {
        CaptionControl *tile = vseQuestion[size_t(i)];
        connect(tile, &CaptionControl::resized, this, [this, i] { vseQuestion_RealignFrame(i); });
        connect(tile, &CaptionControl::pressed, this, [this, i](Qt::MouseButton button, Qt::KeyboardModifiers m) {
            Busy busy(*this);
            game_.TilePress(i, button == Qt::LeftButton, allThreeHeld(m));
        });
    }
    for (int c = 0; c < 6; ++c) {
        CaptionControl *header = vseCategory[size_t(c)];
        connect(header, &CaptionControl::resized, this, [this, c] { vseCategory_RealignFrame(c); });
        connect(header, &CaptionControl::pressed, this, [this](Qt::MouseButton button, Qt::KeyboardModifiers) {
            Busy busy(*this);
            if (button == Qt::LeftButton)
                game_.HeaderPress();
        });
    }
    connect(vseTV, &CaptionControl::pressed, this, [this](Qt::MouseButton button, Qt::KeyboardModifiers) {
        Busy busy(*this);
        if (button == Qt::LeftButton)
            game_.AnswerScreenPress();
    });
    connect(tmrQuestion, &QTimer::timeout, this, [this] {
        Busy busy(*this);
        game_.AnswerTimeout();
    });
}

void frmMain::watchGame()
{
    connect(&game_, &BoardGame::tileChanged, this, &frmMain::showTile);
    connect(&game_, &BoardGame::headerChanged, this, &frmMain::showHeader);
    connect(&game_, &BoardGame::stepCodeChanged, this, &frmMain::showStepCode);
    connect(&game_, &BoardGame::scoreChanged, this, &frmMain::showScore);
    connect(&game_, &BoardGame::teamNameChanged, this, &frmMain::showTeamName);
    connect(&buzzIn_, &BuzzIn::changed, this, &frmMain::showBuzz);
    connect(&buzzIn_, &BuzzIn::turn, this, &frmMain::teamBuzzed);
    connect(&buzzIn_, &BuzzIn::judged, this, [this](int team, bool right) {
        if (right)
            answers_.noteRight(team); // it chooses the next tile
    });
    connect(&answers_, &TeamAnswers::revealed, this, &frmMain::showReveal);
    connect(&game_, &BoardGame::openClueChanged, this, [this] {
        if (!game_.openClue().final)
            revealPanel_->hide();
    });
}

void frmMain::showReveal(int team)
{
    const TeamAnswers::Answer &a = answers_.answer(team);
    const QSizeF screen = screenSize();
    revealPanel_->setGeometry(QRectF(screen.width() * 0.15, screen.height() * 0.3, screen.width() * 0.7,
                                     screen.height() * 0.45).toRect());
    revealPanel_->show(team, TeamName(team, state_.TeamNames[size_t(team)]), a.response.value_or(QString()),
                       a.wager.value_or(0), a.right.value_or(false));
}

void frmMain::setJoinScreen(const QString &address, const QString &roomCode, bool show)
{
    joinScreen_->set(address, roomCode);
    showJoinScreen(show && !address.isEmpty());
}

void frmMain::showJoinScreen(bool show)
{
    if (!show || joinScreen_->address().isEmpty()) {
        joinScreen_->hide();
        return;
    }
    joinScreen_->setGeometry(rect());
    joinScreen_->show();
    joinScreen_->raise();
}

bool frmMain::joinScreenShown() const
{
    // Shown on the board, whether or not the board itself shows yet.
    return !joinScreen_->isHidden();
}

void frmMain::setJoinedPlayers(int players)
{
    joinScreen_->setJoined(players);
}

void frmMain::teamBuzzed(int)
{
    showBuzz();
    // On the screen before the sound: the class sees who was first at once.
    lblBuzz->repaint();
    libraries_.PlayGameSound(109, false);
}

void frmMain::showBuzz()
{
    const std::optional<int> turn = buzzIn_.hasTurn();
    const QColor plain(Qt::white), out(112, 128, 160);
    for (int k = 0; k < lblTeam.size(); ++k) {
        const QColor c = turn == k ? TeamColor(k) : buzzIn_.out(k) ? out : plain;
        lblTeam[k]->setColor(c);
        lblTeam2[k]->setColor(c);
        lblScore2[k]->setColor(c);
    }
    if (!turn) {
        lblBuzz->hide();
        return;
    }
    // Below the clue's box (which ends at seven eighths of the height), as
    // large as the room needs, never wider than the screen.
    const QSizeF screen = screenSize();
    lblBuzz->setFont(ArialFont(qMax<qreal>(8, screen.height() * 0.075), true));
    lblBuzz->setCaption(TeamName(*turn, state_.TeamNames[size_t(*turn)]));
    lblBuzz->setColor(TeamColor(*turn));
    while (lblBuzz->captionWidth() > 0.9 * screen.width() && lblBuzz->font().pointSizeF() > 8)
        lblBuzz->setFontSize(lblBuzz->font().pointSizeF() * 0.9);
    lblBuzz->fitSize();
    lblBuzz->move(qRound((screen.width() - lblBuzz->width()) / 2), qRound(0.985 * screen.height()) - lblBuzz->height());
    lblBuzz->show();
    lblBuzz->raise();
}

void frmMain::keyPressEvent(QKeyEvent *event)
{
    Busy busy(*this);
    // J shows or hides the phones' join screen, while phones are on.
    if (event->key() == Qt::Key_J && event->modifiers() == Qt::NoModifier && !joinScreen_->address().isEmpty() &&
        !screenVisible()) {
        showJoinScreen(!joinScreenShown());
        event->accept();
        return;
    }
    const int key = event->key();
    const QChar letter = key >= Qt::Key_A && key <= Qt::Key_Z ? QChar(char16_t(key)) : QChar();
    const bool used = key == Qt::Key_Backspace ? game_.KeyBackSpace()
                                               : game_.KeyDown(letter, DigitRowKey(*event), modifierBits(event->modifiers()));
    if (used)
        event->accept();
    else
        event->ignore();
}

void frmMain::fitTile(int tile)
{
    CaptionControl *t = vseQuestion[size_t(tile)];
    if (t->width() > 0 && !t->caption().isEmpty())
        vseQuestion_RealignFrame(tile);
}

void frmMain::fitHeader(int column)
{
    CaptionControl *h = vseCategory[size_t(column)];
    if (h->width() > 0 && !h->caption().isEmpty())
        vseCategory_RealignFrame(column);
}

void frmMain::showTile(int tile)
{
    vseQuestion[size_t(tile)]->setCaption(game_.state().tileCaption[size_t(tile)]);
    // A tile put back may have been fitted while it was empty.
    fitTile(tile);
}

void frmMain::showHeader(int column)
{
    CaptionControl *header = vseCategory[size_t(column)];
    header->setCaption(game_.state().headerCaption[size_t(column)]);
    header->setTag(game_.state().headerTag[size_t(column)]);
    fitHeader(column);
}

void frmMain::showStepCode()
{
    vseTV->setTag(game_.state().stepCode);
}

void frmMain::showScore(int team)
{
    const QString text = QStringLiteral("$ ") + FormatScore(state_.Scores[size_t(team)]);
    if (team < lblScore.size()) {
        lblScore[team]->setCaption(text);
        lblScore2[team]->setCaption(text);
    }
}

void frmMain::showTeamName(int team)
{
    if (team >= lblTeam.size())
        return;
    const QString caption = TeamName(team, state_.TeamNames[size_t(team)]) + QLatin1Char(':');
    for (ShadowLabel *label : {lblTeam[team], lblTeam2[team]}) {
        label->setCaption(caption);
        label->resize(label->captionWidth(), label->height());
    }
}

void frmMain::hideGrid()
{
    vseCategories->hide();
    for (CaptionControl *row : vseQuestions)
        row->hide();
}

void frmMain::showGrid()
{
    vseCategories->show();
    for (CaptionControl *row : vseQuestions)
        row->show();
}

void frmMain::showBoardWindow()
{
    if (isHidden())
        showOnWholeScreen();
}

void frmMain::moveToScreen(QScreen *target)
{
    screen_ = target;
    if (isHidden())
        return;
    showNormal(); // a full-screen window keeps its screen otherwise
    showOnWholeScreen();
}

void frmMain::showOnWholeScreen()
{
    // Without a window manager "full screen" is only a wish: the window
    // takes the screen's place and size itself as well.
    QScreen *s = screen_ ? screen_.data() : screen();
    if (s) {
        setScreen(s);
        setGeometry(s->geometry());
    }
    showFullScreen();
    activateWindow();
}

void frmMain::showHeaderRow()
{
    vseCategories->show();
    for (int c = 0; c < 6; ++c)
        vseCategory_RealignFrame(c);
    repaint();
    Clock::instance().pause(kRowFrameMs);
}

void frmMain::showTileRow(int row)
{
    vseQuestions[size_t(row)]->show();
    for (int i = row * 6; i < row * 6 + 6; ++i)
        vseQuestion_RealignFrame(i);
    repaint();
    Clock::instance().pause(kRowFrameMs);
}

void frmMain::setScreenCaption(const QString &caption)
{
    vseTV->setCaption(caption);
}

void frmMain::screenTakesTile(int tile)
{
    const CaptionControl *t = vseQuestion[size_t(tile)];
    vseTV->setFont(t->font());
    vseTV->setTextColor(kValueGold);
    vseTV->setCaption(t->caption());
}

void frmMain::showOnScreen(const QString &text, const QString &picture)
{
    const QSizeF board = screenSize();
    vseTV->setTextColor(Qt::white);
    const QImage image = picture.isEmpty() ? QImage() : cluePicture(picture);
    if (image.isNull()) {
        vseTV->setInset(QImage(), {}, {});
        vseTV->showFitted(CramText(text, vseTV->font(), vseQuestion[0]->fontSize(), 0.8 * board.width(),
                                   0.75 * board.height()));
    } else {
        const PictureClueLayout l = LayOutPictureClue(board, QSizeF(image.size()), !text.isEmpty());
        vseTV->setInset(image, l.picture, l.text);
        vseTV->showFitted(CramText(text, vseTV->font(), vseQuestion[0]->fontSize(), l.text.width(), l.text.height()));
    }
    vseTV->repaint();
}

QImage frmMain::cluePicture(const QString &path)
{
    const auto known = cluePictures_.constFind(path);
    if (known != cluePictures_.constEnd())
        return *known;
    // Read at the size the screen shows it: a drawing comes out sharp, a
    // huge photo costs no more than the screen.
    const QImage image = ReadPictureFile(path, screenSize().toSize()).image;
    cluePictures_.insert(path, image);
    return image;
}

void frmMain::setOverlayCaptions(const QString &category, const QString &value)
{
    lblCategory->setCaption(category);
    lblValue->setCaption(value);
}

void frmMain::setCategoryCaption(const QString &category)
{
    lblCategory->setCaption(category);
}

void frmMain::showOverlay(int column)
{
    const QFont font = vseCategory[size_t(column)]->font();
    lblCategory->setFont(font);
    lblValue->setFont(font);
    const QSizeF board = screenSize();
    lblCategory->move(qRound(0.05 * board.width()), qRound(0.05 * board.height()));
    lblValue->move(qRound(0.95 * board.width()) - lblValue->width(), qRound(0.05 * board.height()));
    lblCategory->show();
    lblValue->show();
}

void frmMain::hideScreen()
{
    vseTV->hide();
}

bool frmMain::screenVisible() const
{
    return !vseTV->isHidden();
}

void frmMain::startAnswerTimer()
{
    tmrQuestion->start();
}

void frmMain::stopAnswerTimer()
{
    tmrQuestion->stop();
}

bool frmMain::isUnloaded() const
{
    return unloaded_;
}
