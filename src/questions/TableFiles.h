// Spreadsheet files in and out: .csv, .xlsx and .ods read, .csv and .xlsx
// written, and a whole question set imported from or exported to one.
#pragma once

#include "platform/WriteFileReplacing.h"
#include "questions/QuestionTable.h"

#include <QString>

struct TableFile {
    Table table;
    QString error; // why the file cannot be read; empty when it was
};

// Reads a spreadsheet's first sheet. A zip is judged by what it holds (a
// workbook or an OpenDocument spreadsheet), any other file by its name:
// .csv, .tsv or .txt is read as text with its separator found.
TableFile ReadTableFile(const QString &path);

enum class TableFormat { None, Csv, Xlsx };

// The format a table is written in, by the name's extension in any letter
// case; None for a name that is neither .csv nor .xlsx.
TableFormat WritableTableFormat(const QString &path);

// Writes the table; the old file is replaced only by a complete new one.
FileError WriteTableFile(const Table &table, const QString &path);

// The set a spreadsheet makes, or why it makes none.
TableImport ImportQuestionTable(const QString &path, const QString &description, qint16 timer);

// A set's description when the host gives none: the table's name without
// folder and extension, on one line.
QString DescriptionFromTableName(const QString &path);
