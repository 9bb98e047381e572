// Excel workbooks (.xlsx): a zip of XML files. libxlsxwriter writes them;
// reading needs only the first sheet's cells, which QXmlStreamReader takes
// out of the zip that minizip opens.

#include "TableFormats.h"

#include <QCoreApplication>
#include <xlsxwriter.h>

#include <QFile>
#include <QHash>
#include <QLibrary>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <cmath>

namespace {

const QString kWorkbook = QStringLiteral("xl/workbook.xml");

QString xmlFault(const QString &name, const QXmlStreamReader &x)
{
    return QCoreApplication::translate("TableFiles", "%1 inside is damaged (XML error in line %2: %3)")
        .arg(name, QString::number(x.lineNumber()), x.errorString());
}

// Workbooks write characters that XML cannot carry as "_xHHHH_", and a
// literal "_x" as "_x005F_x".
QString unescape(const QString &text)
{
    if (!text.contains(QStringLiteral("_x")))
        return text;
    static const QRegularExpression escape(QStringLiteral("_x([0-9A-Fa-f]{4})_"));
    QString out;
    qsizetype at = 0;
    for (auto it = escape.globalMatch(text); it.hasNext();) {
        const QRegularExpressionMatch m = it.next();
        out += QStringView(text).mid(at, m.capturedStart() - at);
        out += QChar(char16_t(m.captured(1).toUShort(nullptr, 16)));
        at = m.capturedEnd();
    }
    out += QStringView(text).mid(at);
    return out;
}

QString attribute(const QXmlStreamReader &x, const char *name)
{
    for (const QXmlStreamAttribute &a : x.attributes()) {
        if (a.name() == QLatin1String(name))
            return a.value().toString();
    }
    return QString();
}

// The text of a string item (<si> or <is>): its runs, without the phonetic
// guides that East Asian workbooks add.
QString itemText(QXmlStreamReader &x)
{
    QString text;
    for (int depth = 1; depth > 0 && !x.atEnd();) {
        const QXmlStreamReader::TokenType token = x.readNext();
        if (token == QXmlStreamReader::EndElement)
            --depth;
        else if (token != QXmlStreamReader::StartElement)
            continue;
        else if (x.name() == QLatin1String("t"))
            text += x.readElementText(QXmlStreamReader::SkipChildElements);
        else if (x.name() == QLatin1String("rPh"))
            x.skipCurrentElement();
        else
            ++depth;
    }
    return unescape(text);
}

struct Parts {
    QString sheet = QStringLiteral("xl/worksheets/sheet1.xml");
    QString sharedStrings;
};

QString partPath(const QString &target)
{
    return target.startsWith(QLatin1Char('/')) ? target.mid(1) : QStringLiteral("xl/") + target;
}

// The first sheet's file and the shared strings' file, from the workbook
// and its relationships.
QString findParts(ZipReader &zip, Parts &parts)
{
    QString error;
    const QByteArray workbook = zip.entry(kWorkbook, &error);
    if (error.isEmpty())
        error = UnreasonableXml(workbook, kWorkbook);
    if (!error.isEmpty())
        return error;
    QString sheetId;
    for (QXmlStreamReader x(workbook); sheetId.isEmpty() && !x.atEnd();) {
        if (x.readNext() == QXmlStreamReader::StartElement && x.name() == QLatin1String("sheet"))
            sheetId = attribute(x, "id");
    }
    const QString relsName = QStringLiteral("xl/_rels/workbook.xml.rels");
    const QByteArray rels = zip.entry(relsName, &error);
    if (error.isEmpty())
        error = UnreasonableXml(rels, relsName);
    if (!error.isEmpty())
        return error;
    QXmlStreamReader x(rels);
    while (!x.atEnd()) {
        if (x.readNext() != QXmlStreamReader::StartElement || x.name() != QLatin1String("Relationship"))
            continue;
        const QString target = partPath(attribute(x, "Target"));
        if (attribute(x, "Id") == sheetId)
            parts.sheet = target;
        else if (attribute(x, "Type").endsWith(QStringLiteral("/sharedStrings")))
            parts.sharedStrings = target;
    }
    return x.hasError() ? xmlFault(relsName, x) : QString();
}

QString readSharedStrings(ZipReader &zip, const QString &name, QStringList &strings)
{
    if (name.isEmpty())
        return QString();
    QString error;
    const QByteArray bytes = zip.entry(name, &error);
    if (!error.isEmpty())
        return error;
    const QString unreasonable = UnreasonableXml(bytes, name);
    if (!unreasonable.isEmpty())
        return unreasonable;
    // No sheet of a set's table uses more strings than it has cells.
    constexpr qsizetype kMostStrings = qsizetype(kMaxTableRows) * 8;
    QXmlStreamReader x(bytes);
    while (!x.atEnd() && strings.size() < kMostStrings) {
        if (x.readNext() == QXmlStreamReader::StartElement && x.name() == QLatin1String("si"))
            strings << itemText(x);
    }
    return x.hasError() ? xmlFault(name, x) : QString();
}

// "C12" → 2; a reference without letters gives fallback.
int columnOf(const QString &reference, int fallback)
{
    qint64 column = 0;
    qsizetype i = 0;
    for (; i < reference.size() && reference[i].isLetter() && column <= kMaxTableColumns; ++i)
        column = column * 26 + (reference[i].toUpper().unicode() - u'A' + 1);
    return i == 0 ? fallback : int(qMin<qint64>(column, kMaxTableColumns + 1)) - 1;
}

// A number as a spreadsheet shows it in a general cell: "1", "0.3", "1e+20".
QString numberText(const QString &value)
{
    bool ok = false;
    const double number = value.toDouble(&ok);
    return ok && std::isfinite(number) ? QString::number(number, 'g', 15) : value;
}

QString cellText(QXmlStreamReader &x, const QStringList &strings)
{
    const QString type = attribute(x, "t");
    QString value;
    while (x.readNextStartElement()) {
        if (x.name() == QLatin1String("v"))
            value = x.readElementText(QXmlStreamReader::SkipChildElements);
        else if (x.name() == QLatin1String("is"))
            value = itemText(x);
        else
            x.skipCurrentElement();
    }
    if (type == QLatin1String("s")) {
        bool ok = false;
        const int index = value.toInt(&ok);
        return ok ? strings.value(index) : QString();
    }
    if (type == QLatin1String("b"))
        return value == QLatin1String("1") ? QStringLiteral("TRUE") : QStringLiteral("FALSE");
    if (type == QLatin1String("inlineStr"))
        return value;
    if (type == QLatin1String("str") || type == QLatin1String("e"))
        return unescape(value);
    return numberText(value);
}

// "B12" → row 12, column 1; false for anything else.
bool cellAt(QStringView reference, qint64 *row, qint64 *column)
{
    qsizetype letters = 0;
    while (letters < reference.size() && reference[letters].isLetter())
        ++letters;
    bool ok = false;
    *row = reference.mid(letters).toLongLong(&ok);
    *column = columnOf(reference.left(letters).toString(), -1);
    return ok && letters > 0 && *row >= 1 && *column >= 0;
}

// A merged range, "B2:B6", for the table.
void addMerge(TableBuilder &table, const QString &range)
{
    const qsizetype colon = range.indexOf(QLatin1Char(':'));
    qint64 row1 = 0, column1 = 0, row2 = 0, column2 = 0;
    if (colon > 0 && cellAt(QStringView(range).left(colon), &row1, &column1) &&
        cellAt(QStringView(range).mid(colon + 1), &row2, &column2) && row2 >= row1 && column2 >= column1)
        table.addMerge(row1, column1, row2 - row1 + 1, column2 - column1 + 1);
}

// Columns the host hid: <col min="3" max="4" hidden="1"/>, counted from 1.
void hideColumns(TableBuilder &table, const QXmlStreamReader &x)
{
    if (attribute(x, "hidden") != QLatin1String("1") && attribute(x, "hidden") != QLatin1String("true"))
        return;
    const qint64 first = attribute(x, "min").toLongLong(), last = attribute(x, "max").toLongLong();
    if (first >= 1 && last >= first)
        table.hideColumns(first - 1, qMin<qint64>(last - first + 1, kMaxTableColumns));
}

bool isHiddenRow(const QXmlStreamReader &x)
{
    const QString hidden = attribute(x, "hidden");
    return hidden == QLatin1String("1") || hidden == QLatin1String("true");
}

TableFile readSheet(const QByteArray &bytes, const QString &name, const QStringList &strings)
{
    const QString unreasonable = UnreasonableXml(bytes, name);
    if (!unreasonable.isEmpty())
        return {{}, unreasonable};
    TableBuilder table;
    qint64 row = 0;
    int column = -1;
    bool hiddenRow = false;
    QXmlStreamReader x(bytes);
    while (!x.atEnd() && !table.full()) {
        const QXmlStreamReader::TokenType token = x.readNext();
        if (token == QXmlStreamReader::StartElement && x.name() == QLatin1String("row")) {
            const qint64 number = attribute(x, "r").toLongLong();
            row = number > row ? number : row + 1;
            column = -1;
            hiddenRow = isHiddenRow(x);
        } else if (token == QXmlStreamReader::StartElement && x.name() == QLatin1String("c")) {
            column = columnOf(attribute(x, "r"), column + 1);
            const QString text = cellText(x, strings);
            if (!hiddenRow)
                table.addCell(column, text);
        } else if (token == QXmlStreamReader::EndElement && x.name() == QLatin1String("row")) {
            table.endRow(row);
        } else if (token == QXmlStreamReader::StartElement && x.name() == QLatin1String("col")) {
            hideColumns(table, x);
        } else if (token == QXmlStreamReader::StartElement && x.name() == QLatin1String("mergeCell")) {
            addMerge(table, attribute(x, "ref"));
        }
    }
    if (x.hasError())
        return {{}, xmlFault(name, x)};
    return table.finish();
}

// The widest text of each column, for a sheet a host can read at once.
QList<double> columnWidths(const Table &table)
{
    QList<double> widths;
    for (const TableRow &row : table.rows) {
        for (qsizetype c = 0; c < row.cells.size(); ++c) {
            if (widths.size() <= c)
                widths.append(8);
            widths[c] = qBound(widths[c], double(row.cells[c].size() + 2), 60.0);
        }
    }
    return widths;
}

// A text that looks like an escape keeps its look: libxlsxwriter escapes
// the characters XML cannot carry, but not a literal "_x0041_", which every
// reader would take for "A".
QByteArray escapedUtf8(QString text)
{
    static const QRegularExpression lookalike(QStringLiteral("_(x[0-9A-Fa-f]{4}_)"));
    return text.replace(lookalike, QStringLiteral("_x005F_\\1")).toUtf8();
}

bool isWholeNumber(const QString &text)
{
    static const QRegularExpression digits(QStringLiteral("^[0-9]{1,9}$"));
    return digits.match(text).hasMatch();
}

// libxlsxwriter is opened when a workbook is first written, not with the
// program: it brings a cryptography library whose loading every start of
// the game would otherwise pay for, and few ever export.
struct XlsxWriter {
    decltype(&::workbook_new) workbookNew = nullptr;
    decltype(&::workbook_add_worksheet) addWorksheet = nullptr;
    decltype(&::workbook_add_format) addFormat = nullptr;
    decltype(&::workbook_close) close = nullptr;
    decltype(&::format_set_bold) setBold = nullptr;
    decltype(&::format_set_text_wrap) setTextWrap = nullptr;
    decltype(&::format_set_align) setAlign = nullptr;
    decltype(&::worksheet_set_column) setColumn = nullptr;
    decltype(&::worksheet_freeze_panes) freezePanes = nullptr;
    decltype(&::worksheet_write_string) writeString = nullptr;
    decltype(&::worksheet_write_number) writeNumber = nullptr;
    decltype(&::lxw_strerror) strerror = nullptr;

    bool bind(QLibrary &library)
    {
        return library.load() && find(library, "workbook_new", workbookNew) &&
               find(library, "workbook_add_worksheet", addWorksheet) &&
               find(library, "workbook_add_format", addFormat) && find(library, "workbook_close", close) &&
               find(library, "format_set_bold", setBold) && find(library, "format_set_text_wrap", setTextWrap) &&
               find(library, "format_set_align", setAlign) && find(library, "worksheet_set_column", setColumn) &&
               find(library, "worksheet_freeze_panes", freezePanes) &&
               find(library, "worksheet_write_string", writeString) &&
               find(library, "worksheet_write_number", writeNumber) && find(library, "lxw_strerror", strerror);
    }

private:
    template <typename F> static bool find(QLibrary &library, const char *name, F &function)
    {
        function = reinterpret_cast<F>(library.resolve(name));
        return function != nullptr;
    }
};

// The library's functions, or null when it cannot be had; bound once and
// kept for the life of the process (a QLibrary left loaded on destruction).
const XlsxWriter *xlsxWriter()
{
    static const XlsxWriter bound = [] {
        QLibrary library(QStringLiteral(QUIZZARR_XLSXWRITER_LIBRARY));
        XlsxWriter w;
        return w.bind(library) ? w : XlsxWriter{};
    }();
    return bound.workbookNew ? &bound : nullptr;
}

lxw_error writeCells(const XlsxWriter &xlsx, lxw_worksheet *sheet, const Table &table, lxw_format *header)
{
    for (const TableRow &row : table.rows) {
        const auto r = lxw_row_t(row.number - 1);
        for (qsizetype c = 0; c < row.cells.size(); ++c) {
            const QString &text = row.cells[c];
            lxw_error e = LXW_NO_ERROR;
            if (text.isEmpty())
                continue;
            if (r > 0 && table.numberColumns.contains(int(c)) && isWholeNumber(text))
                e = xlsx.writeNumber(sheet, r, lxw_col_t(c), text.toDouble(), nullptr);
            else
                e = xlsx.writeString(sheet, r, lxw_col_t(c), escapedUtf8(text).constData(), r == 0 ? header : nullptr);
            if (e != LXW_NO_ERROR)
                return e;
        }
    }
    return LXW_NO_ERROR;
}

} // namespace

bool TableXlsx::holdsWorkbook(ZipReader &zip)
{
    return zip.contains(kWorkbook);
}

TableFile TableXlsx::read(ZipReader &zip)
{
    Parts parts;
    QStringList strings;
    QString error = findParts(zip, parts);
    if (error.isEmpty())
        error = readSharedStrings(zip, parts.sharedStrings, strings);
    const QByteArray sheet = error.isEmpty() ? zip.entry(parts.sheet, &error) : QByteArray();
    if (!error.isEmpty())
        return {{}, error};
    return readSheet(sheet, parts.sheet, strings);
}

QByteArray TableXlsx::write(const Table &table, FileError *error)
{
    // libxlsxwriter writes only to a file: a private one, whose bytes then
    // replace the target as safely as every other file of the game.
    const XlsxWriter *xlsx = xlsxWriter();
    if (!xlsx) {
        *error = {ENOENT, QCoreApplication::translate("TableFiles", "%1 (libxlsxwriter) could not be loaded").arg(QStringLiteral(QUIZZARR_XLSXWRITER_LIBRARY))};
        return {};
    }
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("table.xlsx"));
    lxw_workbook *book = folder.isValid() ? xlsx->workbookNew(QFile::encodeName(path).constData()) : nullptr;
    if (!book) {
        *error = {EIO, QCoreApplication::translate("TableFiles", "no temporary file for the workbook")};
        return {};
    }
    lxw_worksheet *sheet = xlsx->addWorksheet(book, "Questions");
    lxw_format *header = xlsx->addFormat(book);
    xlsx->setBold(header);
    lxw_format *wrapped = xlsx->addFormat(book);
    xlsx->setTextWrap(wrapped);
    xlsx->setAlign(wrapped, LXW_ALIGN_VERTICAL_TOP);
    const QList<double> widths = columnWidths(table);
    for (qsizetype c = 0; c < widths.size(); ++c)
        xlsx->setColumn(sheet, lxw_col_t(c), lxw_col_t(c), widths[c], wrapped);
    xlsx->freezePanes(sheet, 1, 0);
    const lxw_error cells = writeCells(*xlsx, sheet, table, header);
    const lxw_error closed = xlsx->close(book);
    const lxw_error e = cells != LXW_NO_ERROR ? cells : closed;
    if (e != LXW_NO_ERROR) {
        *error = {EIO, QString::fromUtf8(xlsx->strerror(e))};
        return {};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = {EIO, file.errorString()};
        return {};
    }
    return file.readAll();
}
