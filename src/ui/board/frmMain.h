// The game board: six category columns of five value tiles under the title
// banner, the teams' scores down the left, and the full-screen answer
// screen that grows out of a pressed tile. One board lives for one game.
//
// The form only shows and forwards: the rules of play are BoardGame's; the
// form watches the game's announcements like any other watcher and carries
// out what only a board can (its BoardView). It is split across files by
// concern: load and unload (frmMain_Load.cpp), layout and text fitting
// (frmMain_Layout.cpp), the answer screen's animation
// (frmMain_Animation.cpp), play (frmMain_Play.cpp).
#pragma once

#include "board/BoardLayout.h"
#include "game/BoardGame.h"
#include "game/BoardView.h"
#include "game/BuzzIn.h"
#include "game/TeamAnswers.h"
#include "game/GameJournal.h"
#include "platform/PictureBox.h"

#include <QColor>
#include <QHash>
#include <QImage>
#include <QList>
#include <QPixmap>
#include <QPointer>
#include <QWidget>

#include <array>
#include <functional>

class CaptionControl;
class ShadowLabel;
class QScreen;
class QTimer;

class frmMain : public QWidget, private BoardView {
    Q_OBJECT
public:
    // Form_Load: builds the controls, starts the sound library (offering to
    // retry), reads the answer time and gives tiles their face.
    frmMain(GameState &state, Libraries &libraries, QWidget *parent = nullptr);
    ~frmMain() override;

    // Starts a game on a new board once the home screen has checked the
    // chosen set (QuestionFile): the warning to let sounds end, the board
    // loaded with its teams and labels, all scores 0, the board laid out and
    // shown, the start sound, then round 1. Returns the board, or nullptr
    // when the host ended it during the start sound.
    // With two screens or more the board goes full-screen on one other than
    // hostScreen (the projector), which stays the host's. loaded, when
    // given, meets the board as soon as it exists (a console to follow it).
    template <class Board = frmMain>
    static Board *StartGame(GameState &state, Libraries &libraries, int teams, QScreen *hostScreen = nullptr,
                            const std::function<void(frmMain *)> &loaded = {});

    // Opens a new board on a game left behind, as its journal recorded it,
    // with no warning and no start sound: the class is waiting.
    template <class Board = frmMain>
    static Board *ResumeGame(GameState &state, Libraries &libraries, const JournalRecord &record,
                             QScreen *hostScreen = nullptr, const std::function<void(frmMain *)> &loaded = {});

    // Runs an action of the host's on the game as the board's own presses
    // and keys run (the board stays while the action lasts).
    void run(const std::function<void(BoardGame &)> &action);
    // Shows the board over the whole of another screen.
    void moveToScreen(QScreen *screen);
    // Whether the answer screen is up.
    bool screenVisible() const override;

    // The rules of play, and the state of the round they keep.
    BoardGame &game() { return game_; }
    const BoardGame &game() const { return game_; }
    // Who buzzed first on this board's clues.
    BuzzIn &buzzIn() { return buzzIn_; }
    // The wagers and the final's responses, and its reveal.
    TeamAnswers &answers() { return answers_; }
    // The phones' join screen over the board: its address and room code, or
    // none (phones off). Shown at once when asked.
    void setJoinScreen(const QString &address, const QString &roomCode, bool show);
    void showJoinScreen(bool show);
    bool joinScreenShown() const;
    void setJoinedPlayers(int players);

    // The area the board lays out in (the centred 4:3 rectangle), in the
    // window's coordinates, and its size W x H.
    QRect boardArea() const;
    QSizeF boardSize() const;
    // The answer screen's full size W x H: the whole window.
    QSizeF screenSize() const { return QSizeF(size()); }
    const BoardGeometry &geometry() const { return geometry_; }

    // Dollar amounts in gold, titles and clues in white: both with a shadow.
    static inline const QColor kValueGold{255, 204, 51};

signals:
    void unloaded();

protected:
    // Controls, under the names the game gives them (and as object names).
    CaptionControl *vseCategories = nullptr;
    std::array<CaptionControl *, 6> vseCategory{};
    std::array<CaptionControl *, 5> vseQuestions{};
    std::array<CaptionControl *, 30> vseQuestion{};
    CaptionControl *vseTV = nullptr;
    ShadowLabel *lblCategory = nullptr;
    ShadowLabel *lblValue = nullptr;
    // The name of the team that has the turn, large, in its own colour.
    ShadowLabel *lblBuzz = nullptr;
    // Team names and scores on the board and, hidden until a zoom ends, on
    // the answer screen. Element 0 always exists.
    QList<ShadowLabel *> lblTeam, lblScore, lblTeam2, lblScore2;
    QTimer *tmrQuestion = nullptr;
    PictureBox picText;

    // Creates or destroys element i (i >= 1) of the four team label arrays;
    // a new element starts as a copy of element 0.
    void LoadTeamLabel(int i);
    void UnloadTeamLabel(int i);
    // Shows element 0 when there are teams, and makes exactly one element per
    // team (the board's own labels shown, the answer screen's hidden).
    void PrepareTeamLabels(int teams);

    // Lays the board out for its current size: banner, team labels, the
    // category row and the five tile rows, inside the centred 4:3 area.
    void Form_Resize() override;
    // Fit a header's or a tile's caption into 80% of its box.
    void vseCategory_RealignFrame(int Index);
    void vseQuestion_RealignFrame(int Index);

    // The answer screen grows out of a tile or header to cover the board.
    void ZoomTV(ZoomSource source, qint32 PictureID) override;
    void RotateTV(qint32 PictureID1, qint32 PictureID2) override;
    // Fits a clue or response into the answer screen, with its picture.
    void showOnScreen(const QString &text, const QString &picture = QString()) override;

    // Form_Unload: shuts the sound down, tells the home screen, and lets
    // the window go.
    void Unload() override;
    bool isUnloaded() const override;

    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    // Held while the game handles an event: an unload meanwhile lets the
    // window go only when the last handler has returned.
    class Busy {
    public:
        explicit Busy(frmMain &form);
        ~Busy();

    private:
        frmMain &form_;
    };

    static void warnBeforeStart(const Libraries &libraries);
    // Loads a board and plays the game on it (start or resume); the board,
    // or nullptr when the host ended it before the first round showed.
    template <class Board>
    static Board *open(GameState &state, Libraries &libraries, int teams, QScreen *hostScreen,
                       const std::function<void(frmMain *)> &loaded, const std::function<void(BoardGame &)> &play);
    // The loaded board's teams and labels, laid out and shown on its
    // screen; then play; false when the board was ended meanwhile.
    bool present(int teams, QScreen *hostScreen, const std::function<void(BoardGame &)> &play);

    // The game's announcements, shown on the controls.
    void showTile(int tile);
    void showHeader(int column);
    void showStepCode();
    void showScore(int team);
    void showTeamName(int team);
    void showBuzz();
    void showReveal(int team);
    void teamBuzzed(int team);

    // BoardView: what the rules ask of the board.
    void hideGrid() override;
    void showGrid() override;
    void showBoardWindow() override;
    void showHeaderRow() override;
    void showTileRow(int row) override;
    void setScreenCaption(const QString &caption) override;
    void screenTakesTile(int tile) override;
    void setOverlayCaptions(const QString &category, const QString &value) override;
    void setCategoryCaption(const QString &category) override;
    void showOverlay(int column) override;
    void hideScreen() override;
    void startAnswerTimer() override;
    void stopAnswerTimer() override;

    void createControls();
    void connectControls();
    void watchGame();
    void fitTile(int tile);
    void fitHeader(int column);
    void createTiles();
    void createAnswerScreen();
    void startSound();
    void setTileFaces();
    void layOutTeamLabels(qreal referencePoints);
    void scaleBanner();
    // Shows the board over the whole of its screen.
    void showOnWholeScreen();
    // A clue's picture, read once per board to fit the answer screen; null
    // when the file is missing or unreadable (the clue then shows alone).
    QImage cluePicture(const QString &path);
    // Shows one step of an animation as its own frame.
    void showFrame(int pauseMs);

    GameState &state_;
    Libraries &libraries_;
    BoardGame game_{*this, state_, libraries_};
    BuzzIn buzzIn_{game_};
    TeamAnswers answers_{game_};
    class JoinScreen *joinScreen_ = nullptr;
    class RevealPanel *revealPanel_ = nullptr;
    QWidget *area_ = nullptr;
    BoardGeometry geometry_;
    QImage banner_;
    QPixmap scaledBanner_;
    // Backdrop and banner as painted, kept for the window's size.
    QPixmap background_;
    bool unloaded_ = false;
    int busy_ = 0;
    bool deletePending_ = false;
    QPointer<QScreen> screen_;
    QHash<QString, QImage> cluePictures_;
};

template <class Board>
Board *frmMain::open(GameState &state, Libraries &libraries, int teams, QScreen *hostScreen,
                     const std::function<void(frmMain *)> &loaded, const std::function<void(BoardGame &)> &play)
{
    QPointer<Board> board = new Board(state, libraries);
    if (loaded)
        loaded(board);
    if (!board->present(teams, hostScreen, play) || !board)
        return nullptr;
    return board;
}

template <class Board>
Board *frmMain::StartGame(GameState &state, Libraries &libraries, int teams, QScreen *hostScreen,
                          const std::function<void(frmMain *)> &loaded)
{
    warnBeforeStart(libraries);
    return open<Board>(state, libraries, teams, hostScreen, loaded, [](BoardGame &game) { game.start(); });
}

template <class Board>
Board *frmMain::ResumeGame(GameState &state, Libraries &libraries, const JournalRecord &record, QScreen *hostScreen,
                           const std::function<void(frmMain *)> &loaded)
{
    return open<Board>(state, libraries, record.teams, hostScreen, loaded,
                       [&record](BoardGame &game) { game.resume(record); });
}
