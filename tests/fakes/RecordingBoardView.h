// A board for the rules alone: it records every request the game makes of
// its view, and keeps what a real board would show on its answer screen.
#pragma once

#include "game/BoardView.h"

#include <QStringList>

#include <functional>

class BoardGame;

class RecordingBoardView final : public BoardView {
public:
    // The game whose tiles and headers the screen takes its captions from.
    BoardGame *game = nullptr;

    QStringList requests;   // "ZoomTV tile 3 401", "RotateTV 402 400", "Unload", ...
    QString screenText;     // the answer screen's caption
    QString screenPicture;  // the picture shown with it, if any
    QString overlayCategory, overlayValue;
    bool screenShown = false;
    bool overlayShown = false;
    bool timerActive = false;
    bool unloaded = false;
    // Runs at every request, as the event loop of a real board would run
    // between its steps.
    std::function<void(const QString &)> onRequest;

    // The answer screen's text with its lines joined.
    QString screenLine() const { return QString(screenText).replace(QLatin1Char('\n'), QLatin1Char(' ')); }
    int count(const QString &prefix) const;

    void hideGrid() override { record(QStringLiteral("hideGrid")); }
    void showGrid() override { record(QStringLiteral("showGrid")); }
    void showBoardWindow() override { record(QStringLiteral("showBoardWindow")); }
    void Form_Resize() override { record(QStringLiteral("Form_Resize")); }
    void showHeaderRow() override { record(QStringLiteral("showHeaderRow")); }
    void showTileRow(int row) override { record(QStringLiteral("showTileRow %1").arg(row)); }
    void ZoomTV(ZoomSource source, qint32 PictureID) override;
    void RotateTV(qint32 PictureID1, qint32 PictureID2) override;
    void setScreenCaption(const QString &caption) override { screenText = caption; }
    void screenTakesTile(int tile) override;
    void showOnScreen(const QString &text, const QString &picture = QString()) override;
    void setOverlayCaptions(const QString &category, const QString &value) override;
    void setCategoryCaption(const QString &category) override { overlayCategory = category; }
    void showOverlay(int) override { overlayShown = true; }
    void hideScreen() override;
    bool screenVisible() const override { return screenShown; }
    void startAnswerTimer() override { timerActive = true; }
    void stopAnswerTimer() override { timerActive = false; }
    void Unload() override;
    bool isUnloaded() const override { return unloaded; }

private:
    void record(const QString &request);
};
