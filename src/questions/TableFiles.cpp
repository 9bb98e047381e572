#include "TableFiles.h"

#include "platform/ReadableFile.h"

#include "TableFormats.h"

#include <QCoreApplication>
#include <minizip/unzip.h>

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>

namespace {

// A question set's table is a few kilobytes; a text file far beyond that
// is not one, and is refused before it is held in memory.
constexpr qint64 kTextFileLimit = 16 * 1024 * 1024;


bool isTextName(const QString &suffix)
{
    for (const char *known : {"csv", "tsv", "txt"}) {
        if (suffix.compare(QLatin1String(known), Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

TableFile readZip(const QString &path)
{
    ZipReader zip(path);
    if (!zip.isOpen())
        return {{}, QCoreApplication::translate("TableFiles", "a damaged zip container")};
    if (TableXlsx::holdsWorkbook(zip))
        return TableXlsx::read(zip);
    if (TableOds::holdsSpreadsheet(zip))
        return TableOds::read(zip);
    return {{}, QCoreApplication::translate("TableFiles", "a zip container, but neither an .xlsx workbook nor an .ods spreadsheet")};
}

TableFile readText(const QString &path, QFile &file)
{
    const QString suffix = QFileInfo(path).suffix();
    if (!isTextName(suffix)) {
        if (suffix.compare(QStringLiteral("xlsx"), Qt::CaseInsensitive) == 0 ||
            suffix.compare(QStringLiteral("ods"), Qt::CaseInsensitive) == 0)
            return {{}, QCoreApplication::translate("TableFiles", "not a zip container, so not a workbook: the file is damaged or "
                                       "only named so")};
        return {{}, QCoreApplication::translate("TableFiles", "not a spreadsheet; .csv, .xlsx and .ods files are read")};
    }
    if (file.size() > kTextFileLimit)
        return {{}, QCoreApplication::translate("TableFiles", "%1 MB is too large for a question set's table").arg(file.size() / (1024 * 1024))};
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return {{}, file.errorString()};
    return TableCsv::read(bytes);
}

} // namespace

bool TableBuilder::blank(const QString &text)
{
    if (text.isSharedWith(lastJudged_) || text.isEmpty())
        return text.isEmpty() || lastBlank_;
    lastJudged_ = text;
    lastBlank_ = std::all_of(text.begin(), text.end(), [](QChar c) { return c.isSpace(); });
    return lastBlank_;
}

void TableBuilder::hideColumns(qint64 first, qint64 count)
{
    for (qint64 c = qMax<qint64>(0, first); c < qMin<qint64>(kMaxTableColumns, first + count); ++c) {
        while (hidden_.size() <= c)
            hidden_.append(false);
        hidden_[c] = true;
    }
}

void TableBuilder::addCell(int column, const QString &text)
{
    if (column < 0 || column >= kMaxTableColumns || hidden_.value(column) || blank(text))
        return;
    while (cells_.size() <= column)
        cells_.append(QString());
    cells_[column] = text;
}

void TableBuilder::endRow(qint64 number, qint64 repeated)
{
    if (!cells_.isEmpty() && !full()) {
        if (repeated > kMaxTableRows - table_.rows.size())
            tooMany_ = number + kMaxTableRows - table_.rows.size(); // counted, not made
        for (qint64 k = 0; k < repeated && !full(); ++k)
            table_.rows.append({number + k, cells_});
    }
    cells_.clear();
}

void TableBuilder::addMerge(qint64 row, qint64 column, qint64 rows, qint64 columns)
{
    // More merges than a set's table has cells is a damaged file's.
    constexpr int kMostMerges = 4096;
    if (row >= 1 && column >= 0 && column < kMaxTableColumns && (rows > 1 || columns > 1) && merges_.size() < kMostMerges)
        merges_.append({row, column, qMax<qint64>(1, rows), qBound<qint64>(1, columns, kMaxTableColumns - column)});
}

void TableBuilder::applyMerges()
{
    // Rows are in order of their numbers: each merge finds its first row
    // and walks only the rows it spans that have something in them.
    for (const Merge &m : merges_) {
        const auto byNumber = [](const TableRow &r, qint64 n) { return r.number < n; };
        auto first = std::lower_bound(table_.rows.begin(), table_.rows.end(), m.row, byNumber);
        if (first == table_.rows.end() || first->number != m.row)
            continue;
        const QString text = first->cells.value(m.column);
        for (auto r = first; r != table_.rows.end() && r->number < m.row + m.rows; ++r) {
            for (qint64 c = m.column; c < m.column + m.columns; ++c) {
                if (hidden_.value(c))
                    continue;
                while (r->cells.size() <= c)
                    r->cells.append(QString());
                if (r->cells[c].isEmpty())
                    r->cells[c] = text;
            }
        }
    }
}

TableFile TableBuilder::finish()
{
    if (full())
        return {{}, QCoreApplication::translate("TableFiles", "more than %1 filled rows by row %2; a question set's table has at most 62")
                        .arg(kMaxTableRows)
                        .arg(tooMany_)};
    applyMerges();
    return {table_, QString()};
}

QString UnreasonableXml(const QByteArray &xml, const QString &name)
{
    constexpr int kMostAttributes = 512;
    if (xml.size() > ZipReader::kEntryLimit)
        return QCoreApplication::translate("TableFiles", "%1 inside is too large for a question set's table").arg(name);
    // A walk over the bytes: inside a tag, outside quotes, each "=" is an
    // attribute; comments and CDATA hold text, not tags.
    enum { Text, Tag, Quoted, Skipped } state = Text;
    char quote = 0;
    int attributes = 0;
    QByteArray skipEnd;
    for (qsizetype i = 0; i < xml.size(); ++i) {
        const char c = xml[i];
        switch (state) {
        case Text:
            if (c != '<')
                break;
            if (xml.mid(i, 4) == "<!--" || xml.mid(i, 9) == "<![CDATA[") {
                skipEnd = xml[i + 2] == '-' ? QByteArray("-->") : QByteArray("]]>");
                state = Skipped;
            } else {
                state = Tag;
                attributes = 0;
            }
            break;
        case Tag:
            if (c == '"' || c == '\'') {
                quote = c;
                state = Quoted;
            } else if (c == '=' && ++attributes > kMostAttributes) {
                return QCoreApplication::translate("TableFiles", "%1 inside is damaged (a tag with over %2 attributes)").arg(name, QString::number(kMostAttributes));
            } else if (c == '>') {
                state = Text;
            }
            break;
        case Quoted:
            if (c == quote)
                state = Tag;
            break;
        case Skipped: {
            const qsizetype end = xml.indexOf(skipEnd, i);
            if (end < 0)
                return QString(); // the reader will name the damage
            i = end + skipEnd.size() - 1;
            state = Text;
            break;
        }
        }
    }
    return QString();
}

TableFile ReadTableFile(const QString &path)
{
    const QString why = UnreadableFile(path);
    if (!why.isEmpty())
        return {{}, why};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {{}, file.errorString()};
    const QByteArray start = file.peek(4);
    if (start.startsWith("PK\x03\x04") || start.startsWith("PK\x05\x06")) {
        file.close();
        return readZip(path);
    }
    if (start == QByteArray("\xD0\xCF\x11\xE0", 4))
        return {{}, QCoreApplication::translate("TableFiles", "an old Excel workbook (.xls); save it as .xlsx or .csv")};
    return readText(path, file);
}

TableFormat WritableTableFormat(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix();
    if (suffix.compare(QStringLiteral("csv"), Qt::CaseInsensitive) == 0)
        return TableFormat::Csv;
    if (suffix.compare(QStringLiteral("xlsx"), Qt::CaseInsensitive) == 0)
        return TableFormat::Xlsx;
    return TableFormat::None;
}

FileError WriteTableFile(const Table &table, const QString &path)
{
    switch (WritableTableFormat(path)) {
    case TableFormat::Csv:
        return WriteFileReplacing(path, TableCsv::write(table));
    case TableFormat::Xlsx: {
        FileError error;
        const QByteArray bytes = TableXlsx::write(table, &error);
        return error ? error : WriteFileReplacing(path, bytes);
    }
    case TableFormat::None:
        break;
    }
    return {EINVAL, QCoreApplication::translate("TableFiles", "a spreadsheet is written as .csv or .xlsx")};
}

TableImport ImportQuestionTable(const QString &path, const QString &description, qint16 timer)
{
    const TableFile file = ReadTableFile(path);
    if (!file.error.isEmpty()) {
        TableImport failed;
        failed.error = file.error;
        failed.unreadable = true;
        return failed;
    }
    return QuestionSetFromTable(file.table, description, timer);
}

QString DescriptionFromTableName(const QString &path)
{
    QString name = QFileInfo(path).completeBaseName();
    for (QChar &c : name) {
        if (!SetTextFault(QString(c)).isEmpty())
            c = QLatin1Char(' ');
    }
    return name.left(kMaxSetText);
}

ZipReader::ZipReader(const QString &path) : zip_(unzOpen64(QFile::encodeName(path).constData())) {}

ZipReader::~ZipReader()
{
    if (zip_)
        unzClose(zip_);
}

bool ZipReader::contains(const QString &name)
{
    // 2: names compare without letter case, as the archives' makers differ.
    return zip_ && unzLocateFile(zip_, name.toUtf8().constData(), 2) == UNZ_OK;
}

QByteArray ZipReader::entry(const QString &name, QString *error)
{
    if (!contains(name)) {
        *error = QCoreApplication::translate("TableFiles", "%1 is missing from the zip container").arg(name);
        return {};
    }
    unz_file_info64 info{};
    const QString tooLarge = QCoreApplication::translate("TableFiles", "%1 inside is too large for a question set's table").arg(name);
    if (unzGetCurrentFileInfo64(zip_, &info, nullptr, 0, nullptr, 0, nullptr, 0) != UNZ_OK ||
        unzOpenCurrentFile(zip_) != UNZ_OK) {
        *error = QCoreApplication::translate("TableFiles", "%1 inside is damaged or encrypted").arg(name);
        return {};
    }
    if (info.uncompressed_size > quint64(kEntryLimit)) {
        unzCloseCurrentFile(zip_);
        *error = tooLarge;
        return {};
    }
    QByteArray bytes;
    char chunk[65536];
    int n = 0;
    // The sizes a zip states can lie; what comes out is what counts.
    while ((n = unzReadCurrentFile(zip_, chunk, sizeof chunk)) > 0 && bytes.size() <= kEntryLimit)
        bytes.append(chunk, n);
    const int closed = unzCloseCurrentFile(zip_);
    if (bytes.size() > kEntryLimit) {
        *error = tooLarge;
        return {};
    }
    if (n < 0 || closed != UNZ_OK) {
        *error = QCoreApplication::translate("TableFiles", "%1 inside is damaged (zip error %2)").arg(name, QString::number(n < 0 ? n : closed));
        return {};
    }
    return bytes;
}
