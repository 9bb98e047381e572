// Comma-separated text as spreadsheets write it: fields in double quotes may
// hold separators, doubled quotes and line breaks. libcsv does the parsing
// and the quoting; what it leaves to us is the encoding, the separator and
// the row numbers a spreadsheet would show.

#include "TableFormats.h"

#include "platform/Windows1252.h"

#include <QCoreApplication>
#include <csv.h>

#include <QStringDecoder>

#include <array>

namespace {

constexpr std::array<char, 3> kSeparators{',', ';', '\t'};

// The text as UTF-8 bytes or as they are, and which.
struct Decoded {
    QByteArray bytes;
    bool utf8 = true;
};

Decoded decode(const QByteArray &raw)
{
    if (raw.startsWith(Utf8::kByteOrderMark))
        return {raw.mid(3), true};
    // What a spreadsheet saves as "Unicode text".
    if (raw.startsWith("\xFF\xFE") || raw.startsWith("\xFE\xFF")) {
        QStringDecoder utf16(raw.startsWith("\xFF\xFE") ? QStringConverter::Utf16LE : QStringConverter::Utf16BE);
        return {QString(utf16(QByteArrayView(raw).sliced(2))).toUtf8(), true};
    }
    return {raw, Utf8::looksLikeUtf8(raw)};
}

// Spreadsheets pad with spaces at most; a tab can be the separator.
int isSpace(unsigned char c)
{
    return c == ' ';
}

struct Parse {
    TableBuilder builder;
    bool utf8 = true;
    qint64 row = 0;
    int column = 0;
    int lastEnd = 0;
    qint64 openQuoteRow = 0; // where a text that never ends began
    // For finding the separator: the first row with something in it.
    bool firstOnly = false;
    QStringList current, firstRow;
};

void onField(void *data, size_t length, void *context)
{
    auto *p = static_cast<Parse *>(context);
    const QByteArrayView bytes(static_cast<const char *>(data), qsizetype(length));
    const QString text = p->utf8 ? QString::fromUtf8(bytes) : Windows1252::decode(bytes);
    if (p->firstOnly)
        p->current << text;
    else
        p->builder.addCell(p->column, text);
    ++p->column;
}

void onRowEnd(int end, void *context)
{
    auto *p = static_cast<Parse *>(context);
    // The parser reports every line end; the LF of a CR LF is no row.
    const bool secondHalf = p->column == 0 && end == '\n' && p->lastEnd == '\r';
    p->lastEnd = end;
    if (secondHalf)
        return;
    ++p->row;
    if (!p->firstOnly)
        p->builder.endRow(p->row);
    else if (p->firstRow.isEmpty() && !p->current.join(QString()).trimmed().isEmpty())
        p->firstRow = p->current;
    p->current.clear();
    p->column = 0;
}

// libcsv's state inside a field; with its quoted flag at the end of the
// bytes, a quotation mark that opened a text and was never closed. (Its own
// check for that comes only with the strict mode, which would refuse the
// stray quotes spreadsheets leave in unquoted texts, as in 5" floppy.)
constexpr int kFieldBegun = 2;

// Feeds the bytes through libcsv; false when a quoted text never ends.
bool parse(Parse &p, QByteArrayView bytes, char separator)
{
    csv_parser parser;
    csv_init(&parser, CSV_REPALL_NL);
    csv_set_delim(&parser, static_cast<unsigned char>(separator));
    csv_set_space_func(&parser, isSpace);
    // In chunks, so that a runaway file stops at the table's limit.
    constexpr qsizetype kChunk = 64 * 1024;
    bool ok = true;
    for (qsizetype at = 0; at < bytes.size() && !p.builder.full(); at += kChunk) {
        const QByteArrayView chunk = bytes.sliced(at, qMin(kChunk, bytes.size() - at));
        if (csv_parse(&parser, chunk.data(), size_t(chunk.size()), onField, onRowEnd, &p) != size_t(chunk.size())) {
            ok = false;
            break;
        }
    }
    if (ok && !p.builder.full()) {
        if (parser.quoted && parser.pstate == kFieldBegun)
            p.openQuoteRow = p.row + 1;
        ok = csv_fini(&parser, onField, onRowEnd, &p) == 0 && p.openQuoteRow == 0;
    }
    csv_free(&parser);
    return ok;
}

int headerScore(const QStringList &cells)
{
    int score = 0;
    for (const char *name : {"Round", "Category", "Clue", "Response"}) {
        for (const QString &cell : cells) {
            if (cell.trimmed().compare(QLatin1String(name), Qt::CaseInsensitive) == 0) {
                ++score;
                break;
            }
        }
    }
    return score;
}

// The separator that makes the first filled line the best header: the
// most of the required names, then the most columns.
char findSeparator(const Decoded &text)
{
    const QByteArrayView start = QByteArrayView(text.bytes).first(qMin<qsizetype>(text.bytes.size(), 64 * 1024));
    char best = ',';
    std::pair<int, qsizetype> bestScore{-1, 0};
    for (const char separator : kSeparators) {
        Parse p;
        p.utf8 = text.utf8;
        p.firstOnly = true;
        parse(p, start, separator);
        const std::pair<int, qsizetype> score{headerScore(p.firstRow), p.firstRow.size()};
        if (score > bestScore) {
            bestScore = score;
            best = separator;
        }
    }
    return best;
}

bool needsQuotes(const QByteArray &field)
{
    for (const char c : field) {
        if (c == ',' || c == '"' || c == '\r' || c == '\n')
            return true;
    }
    return !field.isEmpty() && (field.front() == ' ' || field.back() == ' ' || field.front() == '\t' ||
                                field.back() == '\t');
}

QByteArray field(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    if (!needsQuotes(bytes))
        return bytes;
    QByteArray quoted(bytes.size() * 2 + 2, Qt::Uninitialized);
    quoted.resize(qsizetype(csv_write(quoted.data(), size_t(quoted.size()), bytes.constData(), size_t(bytes.size()))));
    return quoted;
}

} // namespace

TableFile TableCsv::read(const QByteArray &bytes)
{
    const Decoded text = decode(bytes);
    Parse p;
    p.utf8 = text.utf8;
    if (!parse(p, text.bytes, findSeparator(text)))
        return {{}, QCoreApplication::translate("TableFiles", "row %1: a quotation mark opens a text that never ends").arg(p.openQuoteRow)};
    return p.builder.finish();
}

QByteArray TableCsv::write(const Table &table)
{
    QByteArray out(Utf8::kByteOrderMark);
    qint64 written = 0;
    for (const TableRow &row : table.rows) {
        for (; written + 1 < row.number; ++written)
            out += "\r\n";
        for (qsizetype i = 0; i < row.cells.size(); ++i) {
            if (i > 0)
                out += ',';
            out += field(row.cells[i]);
        }
        out += "\r\n";
        ++written;
    }
    return out;
}
