// The single values the home screen and the board read from a question set
// while a game is chosen and played, each with the default that gives it
// its meaning. (The editor loads whole sets instead; see QuestionSet.h.)
#pragma once

#include <QString>

namespace GameReads {

// The marker of a missing description or round title.
inline const QString kNone = QStringLiteral("-NONE-");

// [Round1] Description, default "-NONE-": exactly "-NONE-" marks a file that
// is not a question set; an empty description is a valid one.
QString Description(const QString &file);
bool IsQuestionSet(const QString &description);

// The answer time in milliseconds: [Round1] Timer (default "10"), its
// leading number times 1000, rounded; 0 (or less) gives 10,000.
int AnswerTimerMs(const QString &file);

// Whether round 1 or 2 ("Category0" of [RoundN]) or, for 3, the final
// ("Category" of [Final]) is present; an empty value counts as present.
bool RoundExists(const QString &file, int round);

// Title of column c (0..5) of round 1 or 2; empty when the column is empty
// (the title is missing, empty or "-NONE-").
QString ColumnTitle(const QString &file, int round, int column);

// The clue or response of a tile of round 1 or 2 (tile 0..29), or of the
// final for tile -1; a missing key shows its own name.
QString Clue(const QString &file, int round, int tile);
QString Response(const QString &file, int round, int tile);
// The picture shown with a clue: its full path (a name in the set names a
// file beside the set, or an absolute one); empty when the clue has none.
QString CluePicture(const QString &file, int round, int tile);
// A picture's name as a set holds it, made a full path beside the set.
QString PicturePath(const QString &setFile, const QString &name);

// The final's category as shown, default "Category".
QString FinalTitle(const QString &file);

// The section and key a tile's clue or response is read from.
QString TileSection(int round, int tile);
QString ClueKey(int tile);
QString ResponseKey(int tile);

} // namespace GameReads
