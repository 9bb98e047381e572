// OpenDocument spreadsheets (.ods): a zip whose content.xml holds every
// sheet. Only the first sheet's visible cells are read, as the text a host
// sees in them, a number by its value. Rows and cells can be marked
// repeated (a sheet's empty tail is one row repeated a million times), so
// a repeat costs nothing until something is in it, and then is counted.

#include "TableFormats.h"


#include <QCoreApplication>
#include <QXmlStreamReader>

#include <cmath>

namespace {

const QString kContent = QStringLiteral("content.xml");
const QString kTableNs = QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:table:1.0");
const QString kTextNs = QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:text:1.0");
const QString kOfficeNs = QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:office:1.0");

// More text than any cell of a set can hold is not kept.
constexpr qsizetype kCellLimit = 64 * 1024;
// The most rows a sheet can have; a repeat beyond it is a damaged file.
constexpr qint64 kSheetRows = 1 << 24;

bool is(const QXmlStreamReader &x, const QString &ns, const char *name)
{
    return x.namespaceUri() == ns && x.name() == QLatin1String(name);
}

qint64 repeat(const QXmlStreamReader &x, const char *attribute)
{
    const qint64 n = x.attributes().value(kTableNs, QLatin1String(attribute)).toLongLong();
    return qBound<qint64>(1, n, kSheetRows);
}

// What a text element inside a paragraph adds to it: runs of spaces, tabs
// and line breaks; notes and comments add nothing, as the cell does not
// show them. False for elements whose content is text, such as spans.
bool special(QXmlStreamReader &x, QString &text)
{
    if (is(x, kTextNs, "s"))
        text += QString(qMin(qMax<qint64>(1, x.attributes().value(kTextNs, QLatin1String("c")).toLongLong()),
                             qMax<qint64>(0, kCellLimit - text.size())),
                        QLatin1Char(' '));
    else if (is(x, kTextNs, "tab"))
        text += QLatin1Char('\t');
    else if (is(x, kTextNs, "line-break"))
        text += QLatin1Char('\n');
    else if (!is(x, kTextNs, "note") && !is(x, kOfficeNs, "annotation"))
        return false;
    x.skipCurrentElement();
    return true;
}

QString paragraph(QXmlStreamReader &x)
{
    QString text;
    for (int depth = 1; depth > 0 && !x.atEnd();) {
        const QXmlStreamReader::TokenType token = x.readNext();
        if (token == QXmlStreamReader::Characters && text.size() < kCellLimit)
            text += x.text();
        else if (token == QXmlStreamReader::EndElement)
            --depth;
        else if (token == QXmlStreamReader::StartElement && !special(x, text))
            ++depth;
    }
    text.truncate(kCellLimit);
    return text;
}

// A number as a spreadsheet shows it in a general cell: "1", "0.3".
QString numberText(const QString &value)
{
    bool ok = false;
    const double number = value.toDouble(&ok);
    return ok && std::isfinite(number) ? QString::number(number, 'g', 15) : value;
}

// A cell's paragraphs, one line each; a number cell, or a cell without
// paragraphs, is its value ("1", not the "1.0" a format shows).
QString cellText(QXmlStreamReader &x)
{
    const QXmlStreamAttributes a = x.attributes();
    const QString value = a.value(kOfficeNs, QLatin1String("value")).toString();
    const bool number = a.value(kOfficeNs, QLatin1String("value-type")) == QLatin1String("float");
    QStringList lines;
    while (x.readNextStartElement()) {
        if (is(x, kTextNs, "p") || is(x, kTextNs, "h"))
            lines << paragraph(x);
        else
            x.skipCurrentElement();
    }
    if (number && !value.isEmpty())
        return numberText(value);
    return lines.isEmpty() ? value : lines.join(QLatin1Char('\n'));
}

bool hidden(const QXmlStreamReader &x)
{
    const QStringView visibility = x.attributes().value(kTableNs, QLatin1String("visibility"));
    return !visibility.isEmpty() && visibility != QLatin1String("visible");
}

// The cells of a row into the table, merged cells noted; nothing of a row
// the host hid.
void readRow(QXmlStreamReader &x, TableBuilder &table, qint64 row)
{
    const bool shown = !hidden(x);
    int column = 0;
    while (x.readNextStartElement()) {
        if (!is(x, kTableNs, "table-cell") && !is(x, kTableNs, "covered-table-cell")) {
            x.skipCurrentElement();
            continue;
        }
        const qint64 count = qMin<qint64>(repeat(x, "number-columns-repeated"), kMaxTableColumns - column);
        const qint64 rows = repeat(x, "number-rows-spanned"), columns = repeat(x, "number-columns-spanned");
        if (shown)
            table.addMerge(row, column, rows, columns);
        const QString text = cellText(x);
        for (qint64 k = 0; k < count && shown; ++k)
            table.addCell(int(column + k), text);
        column += int(count);
    }
}

TableFile readContent(const QByteArray &bytes)
{
    const QString unreasonable = UnreasonableXml(bytes, kContent);
    if (!unreasonable.isEmpty())
        return {{}, unreasonable};
    TableBuilder table;
    QXmlStreamReader x(bytes);
    qint64 row = 0, column = 0;
    bool inTable = false;
    while (!x.atEnd() && !table.full()) {
        const QXmlStreamReader::TokenType token = x.readNext();
        if (token == QXmlStreamReader::EndElement && is(x, kTableNs, "table"))
            break; // the first sheet is done
        if (token != QXmlStreamReader::StartElement)
            continue;
        if (is(x, kTableNs, "table")) {
            if (inTable)
                x.skipCurrentElement(); // a table inside a cell's drawing
            inTable = true;
        } else if (inTable && is(x, kTableNs, "table-column")) {
            const qint64 count = repeat(x, "number-columns-repeated");
            if (hidden(x))
                table.hideColumns(column, count);
            column += qMin<qint64>(count, kMaxTableColumns);
        } else if (inTable && is(x, kTableNs, "table-row")) {
            const qint64 count = repeat(x, "number-rows-repeated");
            readRow(x, table, row + 1);
            table.endRow(row + 1, count);
            row += count;
        }
    }
    if (x.hasError())
        return {{}, QCoreApplication::translate("TableFiles", "%1 inside is damaged (XML error in line %2: %3)")
                        .arg(kContent, QString::number(x.lineNumber()), x.errorString())};
    return table.finish();
}

} // namespace

bool TableOds::holdsSpreadsheet(ZipReader &zip)
{
    QString error;
    const QByteArray type = zip.entry(QStringLiteral("mimetype"), &error);
    return type.trimmed() == "application/vnd.oasis.opendocument.spreadsheet";
}

TableFile TableOds::read(ZipReader &zip)
{
    QString error;
    const QByteArray content = zip.entry(kContent, &error);
    if (!error.isEmpty())
        return {{}, error};
    return readContent(content);
}
