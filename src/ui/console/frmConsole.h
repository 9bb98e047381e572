// The host's console: the game as only the host may see it (the board in
// miniature with its daily doubles, the open clue with its response, the
// lock and think time left, the teams) and every action the host takes on
// the board, run through the same rules as the board's presses and keys.
// It watches the game like the board does; it lives for the run, follows
// each game while one runs, and names the teams before or during a game.
#pragma once

#include <QPointer>
#include <QWidget>

#include <array>
#include <functional>

struct GameState;
class BoardGame;
class BuzzerInputs;
class Phones;
class QComboBox;
class QListWidget;
class QCheckBox;
class frmMain;
class QLabel;
class QLineEdit;
class QPushButton;
class QScreen;
class QSpinBox;
class QTimer;

class frmConsole : public QWidget {
    Q_OBJECT
public:
    explicit frmConsole(GameState &state, QWidget *parent = nullptr);

    // Follows this board's game from now on; nullptr: no game runs.
    void attach(frmMain *board);
    frmMain *board() const { return board_; }

    // Puts the board on the console's screen and the console on the
    // board's: for a host whose projector got the wrong one.
    void switchScreens();
    // Shows the console over the working area of a screen.
    void showOn(QScreen *screen);

    // The room's buzzers: the console turns buzz-in on and off, opens the
    // window that learns them, and judges the team that buzzed first.
    void setBuzzers(BuzzerInputs *inputs, std::function<void()> openWindow);
    // The phones: turned on and off, their join screen shown on the board,
    // their players listed (and removed), and what they send.
    void setPhones(Phones *phones, std::function<void(bool)> turnOn);

    // Shows the game's state as it is now (also on every announcement and
    // on a timer for the seconds left).
    void refresh();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void createControls();
    QWidget *createBoardGrid();
    QWidget *createCluePanel();
    QWidget *createTeamPanel();
    QWidget *createBuzzPanel();
    void refreshBuzz();
    QWidget *createPhonesPanel();
    QWidget *createAnswersPanel();
    QWidget *createDailyDoublePanel();
    void refreshPhones();
    void refreshAnswers();
    void act(const std::function<void(BoardGame &)> &action);
    bool confirm(const QString &question);
    void pressTile(int tile);
    void nameTeam(int team);
    void refreshGrid(const BoardGame &game);
    void refreshClue(const BoardGame &game);
    void refreshTeams(const BoardGame *game);

    GameState &state_;
    QPointer<frmMain> board_;
    qint16 valueShown_ = -1;
    int fontPoints_ = 0;

    QLabel *lblRound = nullptr;
    QPushButton *cmdSwitch = nullptr;
    QPushButton *cmdEndRound = nullptr;
    QPushButton *cmdEndGame = nullptr;
    std::array<QPushButton *, 6> cmdHeader{};
    std::array<QPushButton *, 30> cmdTile{};
    QLabel *lblCategory = nullptr;
    QLabel *lblClue = nullptr;
    QLabel *lblResponse = nullptr;
    QLabel *lblWait = nullptr;
    QPushButton *cmdNext = nullptr;
    QSpinBox *spnAmount = nullptr;
    QPushButton *cmdUndo = nullptr;
    std::array<QLineEdit *, 10> txtName{};
    std::array<QLabel *, 10> lblScore{};
    std::array<QPushButton *, 10> cmdPlus{};
    std::array<QPushButton *, 10> cmdMinus{};
    QTimer *tmrRefresh = nullptr;
    QCheckBox *chkBuzzIn = nullptr;
    QPushButton *cmdBuzzers = nullptr;
    QLabel *lblBuzzers = nullptr;
    QPushButton *cmdOpenBuzzers = nullptr;
    QLabel *lblOrder = nullptr;
    QPushButton *cmdRight = nullptr;
    QPushButton *cmdWrong = nullptr;
    BuzzerInputs *buzzers_ = nullptr;
    Phones *phones_ = nullptr;
    std::function<void(bool)> turnPhonesOn_;
    QCheckBox *chkPhones = nullptr;
    QPushButton *cmdJoinScreen = nullptr;
    QLabel *lblRoom = nullptr;
    QListWidget *lstPlayers = nullptr;
    QPushButton *cmdRemovePlayer = nullptr;
    class QStackedWidget *stkBoard = nullptr;
    QWidget *pnlAnswers = nullptr;
    QWidget *pnlDailyDouble = nullptr;
    QLabel *lblDailyDouble = nullptr;
    QComboBox *cmbDailyDouble = nullptr;
    std::array<QLabel *, 10> lblAnswer{};
    std::array<QPushButton *, 10> cmdAnswerRight{};
    std::array<QPushButton *, 10> cmdAnswerWrong{};
    QPushButton *cmdReveal = nullptr;
    qint64 wagerShown_ = -1;
    std::function<void()> openBuzzersWindow_;
};
