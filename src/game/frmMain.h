// The game board: six category columns of five value tiles under the title
// banner, the teams' scores down the left, and the full-screen answer
// screen that grows out of a pressed tile. One board lives for one game.
//
// The form only shows and forwards: the rules of play are BoardGame's, and
// the form shows the game's state through the BoardView it implements. It
// is split across files by concern: load and unload (frmMain_Load.cpp),
// layout and text fitting (frmMain_Layout.cpp), the answer screen's
// animation (frmMain_Animation.cpp), play (frmMain_Play.cpp).
#pragma once

#include "BoardGame.h"
#include "BoardView.h"
#include "board/BoardLayout.h"
#include "platform/PictureBox.h"

#include <QColor>
#include <QImage>
#include <QList>
#include <QPixmap>
#include <QWidget>

#include <array>

class CaptionControl;
class ShadowLabel;
class QTimer;

class frmMain : public QWidget, public BoardView {
    Q_OBJECT
public:
    // Form_Load: builds the controls, starts the sound library (offering to
    // retry), reads the answer time and gives tiles their face.
    explicit frmMain(QWidget *parent = nullptr);
    ~frmMain() override;

    // The rules of play, and the state of the round they keep.
    BoardGame game{*this};
    // Dollar amounts in gold, titles and clues in white: both with a shadow.
    static inline const QColor kValueGold{255, 204, 51};

    // Number of scoring teams, 0 ("No scoring") to 10; set after loading.
    qint16 &Teams = game.state().Teams;

    // Sets up the round named by Round, or ends the game.
    void SetUpRound();
    // Shows the board over the whole screen.
    void showOnWholeScreen();

    // Controls, under the names the game gives them.
    CaptionControl *vseCategories = nullptr;
    std::array<CaptionControl *, 6> vseCategory{};
    std::array<CaptionControl *, 5> vseQuestions{};
    std::array<CaptionControl *, 30> vseQuestion{};
    CaptionControl *vseTV = nullptr;
    ShadowLabel *lblCategory = nullptr;
    ShadowLabel *lblValue = nullptr;
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
    void Form_Resize();
    // Fit a header's or a tile's caption into 80% of its box.
    void vseCategory_RealignFrame(int Index);
    void vseQuestion_RealignFrame(int Index);

    // Grows the answer screen out of a tile or header to cover the board,
    // showing picture PictureID.
    void ZoomTV(QWidget *source, qint32 PictureID);
    // Folds the answer screen away showing PictureID1 and unfolds it
    // showing PictureID2.
    void RotateTV(qint32 PictureID1, qint32 PictureID2);

    // The area the board lays out in (the centred 4:3 rectangle), in the
    // window's coordinates, and its size W x H.
    QRect boardArea() const;
    QSizeF boardSize() const;
    const BoardGeometry &geometry() const { return geometry_; }

    // Form_Unload: shuts the sound down, tells the home screen, and lets
    // the window go.
    void Unload();

    // BoardView: the game's state shown on the controls.
    void tileChanged(int tile) override;
    void headerChanged(int column) override;
    void stepCodeChanged() override;
    void scoreChanged(int team) override;
    void hideGrid() override;
    void showGrid() override;
    void showBoardWindow() override;
    void layOut() override;
    void showHeaderRow() override;
    void showTileRow(int row) override;
    void zoomFromTile(int tile, qint32 picture) override;
    void zoomFromHeader(int column, qint32 picture) override;
    void rotate(qint32 fromPicture, qint32 toPicture) override;
    void setScreenCaption(const QString &caption) override;
    void screenTakesTile(int tile) override;
    void showOnScreen(const QString &text) override;
    void setOverlayCaptions(const QString &category, const QString &value) override;
    void setCategoryCaption(const QString &category) override;
    void showOverlay(int column) override;
    void hideScreen() override;
    bool screenVisible() const override;
    void startAnswerTimer() override;
    void stopAnswerTimer() override;
    void unload() override;
    bool isUnloaded() const override;

signals:
    void unloaded();

protected:
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

    void createControls();
    void connectControls();
    void fitTile(int tile);
    void fitHeader(int column);
    void createTiles();
    void createAnswerScreen();
    void startSound();
    void setTileFaces();
    void layOutTeamLabels(qreal referencePoints);
    void scaleBanner();
    // Shows one step of an animation as its own frame.
    void showFrame(int pauseMs);

    QWidget *area_ = nullptr;
    BoardGeometry geometry_;
    QImage banner_;
    QPixmap scaledBanner_;
    // Backdrop and banner as painted, kept for the window's size.
    QPixmap background_;
    bool unloaded_ = false;
    int busy_ = 0;
    bool deletePending_ = false;
};
