// A question set as a spreadsheet holds it: a header row that names the
// columns, then one row per clue. Hosts write their questions where they
// already work, in a spreadsheet, and the set comes out of it whole or not
// at all, with the row and column at fault named.
#pragma once

#include "questions/QuestionSet.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

struct TableRow {
    qint64 number = 0;  // the row's number as the spreadsheet shows it, from 1
    QStringList cells;  // column A first
};

struct Table {
    // Only rows with something in them, top to bottom: a blank row costs
    // nothing, and the numbers still name the rows a host sees.
    QList<TableRow> rows;
    // Columns whose whole-number texts a workbook stores as numbers, so a
    // spreadsheet sorts and sums them as such.
    QList<int> numberColumns;
};

// The most rows with something in them a table may have: a set needs 62,
// and a runaway file stops here instead of filling the memory.
constexpr int kMaxTableRows = 10000;
// Cells right of this many columns are never read.
constexpr int kMaxTableColumns = 256;
// The longest text a set's file gives back when it is read.
constexpr int kMaxSetText = 1999;

// "A" for column 0, "Z" for 25, "AA" for 26, as spreadsheets name them.
QString ColumnLetters(int column);

struct TableImport {
    std::optional<QuestionSet> set;
    // Why the table cannot make a set ("row 5, column C (Clue): the clue is
    // empty"), or why the file cannot be read; empty when set holds one.
    QString error;
    bool unreadable = false; // the error is about the file, not its rows
};

// The set that the table's rows make, with the given description and
// timer; or the first fault found, naming its row and column.
TableImport QuestionSetFromTable(const Table &table, const QString &description, qint16 timer);

// The rows a set is exported as: Round, Category, Value, Clue, Response and
// Picture, every clue of round 1, of round 2 and the final.
Table TableFromQuestionSet(const QuestionSet &set);

// A text a set can hold: one line, no control characters, not too long.
// Empty when it can, otherwise what is wrong with it.
QString SetTextFault(const QString &text);
