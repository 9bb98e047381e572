// What the game's rules need of the screen. The board form implements it;
// the rules call it and never touch a widget themselves.
#pragma once

#include <QString>

class BoardView {
public:
    virtual ~BoardView() = default;

    // The state of a tile, a header or the answer screen's step code
    // changed: show it.
    virtual void tileChanged(int tile) = 0;
    virtual void headerChanged(int column) = 0;
    virtual void stepCodeChanged() = 0;
    virtual void scoreChanged(int team) = 0;

    // Bringing a round's board into view.
    virtual void hideGrid() = 0;
    virtual void showGrid() = 0;
    virtual void showBoardWindow() = 0;
    virtual void layOut() = 0;
    virtual void showHeaderRow() = 0;
    virtual void showTileRow(int row) = 0;

    // The answer screen.
    virtual void zoomFromTile(int tile, qint32 picture) = 0;
    virtual void zoomFromHeader(int column, qint32 picture) = 0;
    virtual void rotate(qint32 fromPicture, qint32 toPicture) = 0;
    virtual void setScreenCaption(const QString &caption) = 0;
    // The screen takes a tile's font and caption, so its value grows out.
    virtual void screenTakesTile(int tile) = 0;
    // Fits a text into the answer screen and shows it.
    virtual void showOnScreen(const QString &text) = 0;
    virtual void setOverlayCaptions(const QString &category, const QString &value) = 0;
    virtual void setCategoryCaption(const QString &category) = 0;
    // Places the category and value labels in the fonts of a column's
    // header and shows them.
    virtual void showOverlay(int column) = 0;
    virtual void hideScreen() = 0;
    virtual bool screenVisible() const = 0;

    virtual void startAnswerTimer() = 0;
    virtual void stopAnswerTimer() = 0;

    // Ends the board; the home screen comes back.
    virtual void unload() = 0;
    virtual bool isUnloaded() const = 0;
};
