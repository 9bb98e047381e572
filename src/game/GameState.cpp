#include "GameState.h"

QString Tiles::caption(int tile, int round)
{
    return QLatin1Char('$') + QString::number(value(tile, round));
}

PictureIdSet pictureIdsForScreenWidth(double widthPixels)
{
    const qint32 base = widthPixels >= 950 ? 400 : widthPixels > 640 ? 300 : 200;
    return {base, base + 1, base + 2, base + 3};
}

void GameState::choosePictures(const PictureIdSet &ids)
{
    PicIdScreen = ids.screen;
    PicIdDailyDouble = ids.dailyDouble;
    PicIdFinal = ids.final;
    PicIdBackdrop = ids.backdrop;
}
