// The file formats behind TableFiles, one source file each. Every reader
// returns the rows it found, or why it found none.
#pragma once

#include "questions/TableFiles.h"

#include <QByteArray>

// A zip opened for reading, through the system's minizip: the same one
// libxlsxwriter writes with, as two copies of it in one program would
// answer to the same names.
class ZipReader {
public:
    explicit ZipReader(const QString &path);
    ~ZipReader();
    ZipReader(const ZipReader &) = delete;
    ZipReader &operator=(const ZipReader &) = delete;

    bool isOpen() const { return zip_ != nullptr; }
    bool contains(const QString &name);
    // One file of the archive, whole; an empty array and *error set when it
    // is missing, damaged, encrypted or larger than kEntryLimit.
    QByteArray entry(const QString &name, QString *error);
    // The largest inner file read: a table's sheet is a few kilobytes.
    static constexpr qint64 kEntryLimit = 64 * 1024 * 1024;

private:
    void *zip_ = nullptr;
};

// Grows a table row by row, keeping rows with something in them only and
// stopping at the limits of a question set's table.
class TableBuilder {
public:
    // A cell of the current row; cells right of the last column read are
    // dropped.
    void addCell(int column, const QString &text);
    // Ends the current row, which the spreadsheet numbers so.
    void endRow(qint64 number);
    bool full() const { return table_.rows.size() > kMaxTableRows; }
    // The table, or the fault that stopped it.
    TableFile finish();

private:
    Table table_;
    QStringList cells_;
    qint64 lastNumber_ = 0;
};

namespace TableCsv {
// Text with its separator (comma, semicolon or tab) and its encoding
// (UTF-8 with or without its mark, UTF-16 with its mark, or Windows-1252)
// found.
TableFile read(const QByteArray &bytes);
// UTF-8 with its mark, so that spreadsheets take it for UTF-8; commas; CR LF.
QByteArray write(const Table &table);
} // namespace TableCsv

namespace TableXlsx {
bool holdsWorkbook(ZipReader &zip);
TableFile read(ZipReader &zip);
// The bytes of a workbook of one sheet, or the error.
QByteArray write(const Table &table, FileError *error);
} // namespace TableXlsx

namespace TableOds {
bool holdsSpreadsheet(ZipReader &zip);
TableFile read(ZipReader &zip);
} // namespace TableOds
