// A whole question set in memory, as the editor holds it, and the rules of
// its file: reading one value, loading a whole set, writing it back.
#pragma once

#include "platform/WriteFileReplacing.h"

#include <QString>

#include <array>

struct CategoryEntry {
    QString Title;
    std::array<QString, 5> Answer;   // the clues, top row first
    std::array<QString, 5> Question; // the responses
    // Pictures shown with the clues: a file name relative to the set's
    // folder, or absolute; empty for none (and then not written at all).
    std::array<QString, 5> Picture;
};

struct QuestionSet {
    QString Description;
    qint16 Timer = 20;
    qint16 RoundCount = 2; // 1 or 2 regular rounds
    // Categories in use: [0] round 1, [1] round 2; [2] belongs to the final,
    // which always has exactly one category, and is never read or written.
    std::array<qint16, 3> CategoryCount{6, 6, 0};
    // [round][category]: round 0 and 1 the regular rounds, 2 the final
    // (category 0 only). Entries beyond the counts keep their texts.
    std::array<std::array<CategoryEntry, 6>, 3> Categories;
};

// The editor's reader: the profile read, but an empty value reads like a
// missing key and gives the default.
QString ReadIniValue(const QString &Section, const QString &Key, const QString &Default, const QString &FileName);

// FileName up to, not including, its last "."; without a "." the whole.
QString FileBaseOf(const QString &FileName);

// FileName with ".QZ2" appended unless it ends so, in any letter case.
QString WithQz2Extension(const QString &FileName);

// A ".QZA" file has the answer and question keys exchanged.
bool IsLegacyFileName(const QString &FileName);

// Reads a whole set from a file; whatever is missing takes the loader's
// defaults. Never fails: any file, or none, gives a set.
QuestionSet LoadQuestionSet(const QString &FileName);

// The exact bytes of the file a set is written as.
QByteArray QuestionSetFileBytes(const QuestionSet &set);

// Writes the set to FileName (".QZ2" appended when it lacks it). On failure
// the error's number and description come back and any old file of that
// name is left as it was.
FileError WriteQuestionSet(const QuestionSet &set, const QString &FileName);

// Copies the pictures a set names by a relative name from beside the set
// toSet was copied from to the same places beside toSet, making folders
// as needed. Absolute names, names that leave the set's folder, pictures
// that are not there and a copy onto itself are passed over: the set plays
// without them. The first failure to write comes back.
FileError CopySetPictures(const QString &fromSet, const QString &toSet);
// Whether a picture's name, as a set holds it, names a file in the set's
// own folder or below: not absolute, and not leaving it ("../x.png").
bool IsPictureInSetFolder(const QString &name);
// The same for a set in memory, whose relative names start in fromFolder.
FileError CopySetPictures(const QuestionSet &set, const QString &fromFolder, const QString &toFolder);
