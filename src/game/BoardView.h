// What the rules ask of the one board that shows them: bringing a round
// into view, the answer screen's zoom, flip and texts, the answer timer and
// the end of the board. Changes of state are not told here: the game
// announces them to every watcher (BoardGame's signals).
#pragma once

#include <QString>

// What the answer screen grows out of: a tile or a column header.
struct ZoomSource {
    enum Kind { Tile, Header } kind = Tile;
    int index = 0;
};

class BoardView {
public:
    virtual ~BoardView() = default;

    // Bringing a round's board into view.
    virtual void hideGrid() = 0;
    virtual void showGrid() = 0;
    virtual void showBoardWindow() = 0;
    virtual void Form_Resize() = 0;
    virtual void showHeaderRow() = 0;
    virtual void showTileRow(int row) = 0;

    // The answer screen grows out of a tile or header to cover the board,
    // showing picture PictureID; a header's title grows with it.
    virtual void ZoomTV(ZoomSource source, qint32 PictureID) = 0;
    // Folds the answer screen away showing PictureID1 and unfolds it
    // showing PictureID2.
    virtual void RotateTV(qint32 PictureID1, qint32 PictureID2) = 0;
    virtual void setScreenCaption(const QString &caption) = 0;
    // The screen takes a tile's font and caption, so its value grows out.
    virtual void screenTakesTile(int tile) = 0;
    // Fits a text into the answer screen and shows it, with the picture of
    // this file beside or above it when there is one it can read.
    virtual void showOnScreen(const QString &text, const QString &picture = QString()) = 0;
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
    virtual void Unload() = 0;
    virtual bool isUnloaded() const = 0;
};
