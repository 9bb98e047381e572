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
// stopping at the limits of a question set's table. Work stays bounded
// whatever a file repeats: a repeated cell is judged blank or not once, and
// a filled row repeated past the limit is counted, not made.
class TableBuilder {
public:
    // Columns the host hid: their cells are passed over.
    void hideColumns(qint64 first, qint64 count);
    // A cell of the current row; cells right of the last column read and
    // cells of hidden columns are dropped.
    void addCell(int column, const QString &text);
    // Ends the current row, which the spreadsheet numbers so; repeated, the
    // same cells stand in the rows numbered after it too.
    void endRow(qint64 number, qint64 repeated = 1);
    // A merged cell: the text of its first cell counts for every cell it
    // spans, in the rows that have something in them.
    void addMerge(qint64 row, qint64 column, qint64 rows, qint64 columns);
    bool full() const { return tooMany_ > 0; }
    // The table, or the fault that stopped it.
    TableFile finish();

    // Whether a text shows nothing; judged once for a text shared by many
    // cells (a repeated cell).
    bool blank(const QString &text);

private:
    void applyMerges();

    Table table_;
    QStringList cells_;
    QList<bool> hidden_;
    struct Merge {
        qint64 row, column, rows, columns;
    };
    QList<Merge> merges_;
    qint64 tooMany_ = 0; // the row that went past the limit, once one did
    QString lastJudged_;
    bool lastBlank_ = true;
};

// Whether XML can be read in bounded time: no start tag holds more than a
// few hundred attributes (an XML reader compares each with every other),
// and the file is no larger than kEntryLimit. Empty when it can, else why.
QString UnreasonableXml(const QByteArray &xml, const QString &name);

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
