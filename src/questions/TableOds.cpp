// OpenDocument spreadsheets (.ods): a zip whose content.xml holds every
// sheet. Only the first sheet's cells are read, as the text a host sees in
// them. Rows and cells can be marked repeated (a sheet's empty tail is one
// row repeated a million times), so a repeat costs nothing until something
// is in it.

#include "TableFormats.h"


#include <QXmlStreamReader>

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

// A cell's paragraphs, one line each; a cell without any shows its value.
QString cellText(QXmlStreamReader &x)
{
    const QString value = x.attributes().value(kOfficeNs, QLatin1String("value")).toString();
    QStringList lines;
    while (x.readNextStartElement()) {
        if (is(x, kTextNs, "p") || is(x, kTextNs, "h"))
            lines << paragraph(x);
        else
            x.skipCurrentElement();
    }
    return lines.isEmpty() ? value : lines.join(QLatin1Char('\n'));
}

QStringList rowCells(QXmlStreamReader &x)
{
    QStringList cells;
    while (x.readNextStartElement()) {
        if (!is(x, kTableNs, "table-cell") && !is(x, kTableNs, "covered-table-cell")) {
            x.skipCurrentElement();
            continue;
        }
        const qint64 count = qMin<qint64>(repeat(x, "number-columns-repeated"), kMaxTableColumns - cells.size());
        const QString text = cellText(x);
        for (qint64 k = 0; k < count; ++k)
            cells.append(text);
    }
    return cells;
}

void addRows(TableBuilder &table, const QStringList &cells, qint64 first, qint64 count)
{
    const bool empty = cells.join(QString()).trimmed().isEmpty();
    for (qint64 k = 0; k < count && !empty && !table.full(); ++k) {
        for (qsizetype c = 0; c < cells.size(); ++c)
            table.addCell(int(c), cells[c]);
        table.endRow(first + k);
    }
}

TableFile readContent(const QByteArray &bytes)
{
    TableBuilder table;
    QXmlStreamReader x(bytes);
    qint64 row = 0;
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
        } else if (inTable && is(x, kTableNs, "table-row")) {
            const qint64 count = repeat(x, "number-rows-repeated");
            addRows(table, rowCells(x), row + 1, count);
            row += count;
        }
    }
    if (x.hasError())
        return {{}, kContent + QStringLiteral(" inside is damaged (XML error in line %1: %2)")
                                   .arg(x.lineNumber())
                                   .arg(x.errorString())};
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
