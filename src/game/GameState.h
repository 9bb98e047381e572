// The game settings of the main module, which outlive every board, and the
// rules of tile numbering and value that every part of the game shares.
#pragma once

#include <QString>

#include <array>

// The four picture ids of the size class of a screen this many pixels wide.
struct PictureIdSet {
    qint32 screen, dailyDouble, final, backdrop;
};
PictureIdSet pictureIdsForScreenWidth(double widthPixels);

// One for the whole run, handed by reference to whoever plays or shows it.
struct GameState {
    // 1 and 2 are the ordinary rounds, 3 the final, 4 or more: the game is over.
    qint16 Round = 1;
    // Tiles of the current round that are out of play; 30 ends the round.
    qint16 TilesDone = 0;
    // Tile indices of the round's daily doubles; equal when it has only one.
    qint16 DailyDouble1 = 0;
    qint16 DailyDouble2 = 0;
    // Full path of the question set being played.
    QString QuestionFile;
    // Score of team i + 1 in entry i.
    std::array<qint32, 10> Scores{};
    // Names the host gave the teams, for the whole run; empty: "Team N".
    std::array<QString, 10> TeamNames;

    // The picture set chosen at start-up for the screen's size class.
    qint32 PicIdScreen = 400;
    qint32 PicIdDailyDouble = 401;
    qint32 PicIdFinal = 402;
    qint32 PicIdBackdrop = 403;

    void choosePictures(const PictureIdSet &ids);
};

namespace Tiles {

constexpr int Count = 30;
constexpr int Columns = 6;
constexpr int Rows = 5;

constexpr int column(int tile) { return tile % Columns; }
constexpr int row(int tile) { return tile / Columns; }

// Value of a tile in ordinary round 1 or 2: 100..500, doubled in round 2.
constexpr int value(int tile, int round) { return (row(tile) + 1) * round * 100; }

// "$" and the value in plain digits: "$100", "$1000".
QString caption(int tile, int round);

} // namespace Tiles
