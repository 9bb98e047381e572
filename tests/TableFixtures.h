// Spreadsheet tables made for a test, and CSV text of them.
#pragma once

#include "questions/QuestionSet.h"

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

using Rows = QList<QStringList>;

// A header (Round, Category, Clue, Response) and the rows of a set with the
// given numbers of categories, each in five rows in a row. Titles are
// "R<round> Cat <c>", clues "r<round>c<c> clue <row>", responses
// "r<round>c<c> response <row>"; the final is "Final Cat", "final clue",
// "final response".
Rows setRows(int round1, int round2, bool final = true);

// The rows as text with the separator, quoting as spreadsheets do, lines
// ending in line end.
QByteArray csvText(const Rows &rows, char separator = ',', const QByteArray &lineEnd = "\n");

// Whether two sets hold the same description, timer, counts, texts and
// pictures; where not, where.
bool equalSets(const QuestionSet &a, const QuestionSet &b, QString *where);
