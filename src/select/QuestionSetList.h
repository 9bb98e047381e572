// The question sets a game can be played from: every ".QZ2" file, in any
// letter case, in the program folder and in the documents folder, that has
// a description. Entries carry the file name, a tab and the description,
// and the code of the folder they came from.
#pragma once

#include <QList>
#include <QString>

struct QuestionSetEntry {
    QString text;   // file name, tab, description
    int folder = 0; // 0 program folder, 1 documents folder
};

// Entries of one folder (ending in "/"), in the order the file system
// gives them: ordinary files only, hidden ones left out.
QList<QuestionSetEntry> FindQuestionSets(const QString &folder, int folderCode);

// The whole list, sorted by text without regard to letter case.
QList<QuestionSetEntry> ListQuestionSets(const QString &programFolder, const QString &documentsFolder);

// Orders entries as the list shows them.
bool EntryBefore(const QString &a, const QString &b);

// The file name of an entry: its text up to the first tab.
QString EntryFileName(const QString &text);
