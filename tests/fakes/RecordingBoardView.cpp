#include "RecordingBoardView.h"

#include "game/BoardGame.h"

int RecordingBoardView::count(const QString &prefix) const
{
    int n = 0;
    for (const QString &r : requests)
        n += r.startsWith(prefix) ? 1 : 0;
    return n;
}

void RecordingBoardView::record(const QString &request)
{
    requests << request;
    if (onRequest)
        onRequest(request);
}

void RecordingBoardView::ZoomTV(ZoomSource source, qint32 PictureID)
{
    const bool tile = source.kind == ZoomSource::Tile;
    // A header's title grows with the screen; a tile's caption was given
    // to the screen before (screenTakesTile) or cleared.
    if (!tile && game)
        screenText = game->state().headerCaption[size_t(source.index)];
    screenShown = true;
    overlayShown = false;
    record(QStringLiteral("ZoomTV %1 %2 %3").arg(tile ? QStringLiteral("tile") : QStringLiteral("header"))
               .arg(source.index).arg(PictureID));
}

void RecordingBoardView::RotateTV(qint32 PictureID1, qint32 PictureID2)
{
    record(QStringLiteral("RotateTV %1 %2").arg(PictureID1).arg(PictureID2));
}

void RecordingBoardView::screenTakesTile(int tile)
{
    if (game)
        screenText = game->state().tileCaption[size_t(tile)];
}

void RecordingBoardView::showOnScreen(const QString &text, const QString &picture)
{
    screenText = text;
    screenPicture = picture;
    record(QStringLiteral("showOnScreen ") + text);
}

void RecordingBoardView::setOverlayCaptions(const QString &category, const QString &value)
{
    overlayCategory = category;
    overlayValue = value;
}

void RecordingBoardView::hideScreen()
{
    screenShown = false;
    overlayShown = false;
    record(QStringLiteral("hideScreen"));
}

void RecordingBoardView::Unload()
{
    unloaded = true;
    timerActive = false;
    record(QStringLiteral("Unload"));
}
