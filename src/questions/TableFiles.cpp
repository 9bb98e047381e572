#include "TableFiles.h"

#include "platform/ReadableFile.h"

#include "TableFormats.h"

#include <minizip/unzip.h>

#include <QFile>
#include <QFileInfo>

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
        return {{}, QStringLiteral("a damaged zip container")};
    if (TableXlsx::holdsWorkbook(zip))
        return TableXlsx::read(zip);
    if (TableOds::holdsSpreadsheet(zip))
        return TableOds::read(zip);
    return {{}, QStringLiteral("a zip container, but neither an .xlsx workbook nor an .ods spreadsheet")};
}

TableFile readText(const QString &path, QFile &file)
{
    const QString suffix = QFileInfo(path).suffix();
    if (!isTextName(suffix)) {
        if (suffix.compare(QStringLiteral("xlsx"), Qt::CaseInsensitive) == 0 ||
            suffix.compare(QStringLiteral("ods"), Qt::CaseInsensitive) == 0)
            return {{}, QStringLiteral("not a zip container, so not a workbook: the file is damaged or "
                                       "only named so")};
        return {{}, QStringLiteral("not a spreadsheet; .csv, .xlsx and .ods files are read")};
    }
    if (file.size() > kTextFileLimit)
        return {{}, QStringLiteral("%1 MB is too large for a question set's table").arg(file.size() / (1024 * 1024))};
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return {{}, file.errorString()};
    return TableCsv::read(bytes);
}

} // namespace

void TableBuilder::addCell(int column, const QString &text)
{
    if (column < 0 || column >= kMaxTableColumns || text.trimmed().isEmpty())
        return;
    while (cells_.size() <= column)
        cells_.append(QString());
    cells_[column] = text;
}

void TableBuilder::endRow(qint64 number)
{
    if (!cells_.isEmpty() && !full())
        table_.rows.append({number, cells_});
    cells_.clear();
    lastNumber_ = number;
}

TableFile TableBuilder::finish()
{
    if (full())
        return {{}, QStringLiteral("more than %1 filled rows by row %2; a question set's table has at most 62")
                        .arg(kMaxTableRows)
                        .arg(table_.rows.last().number)};
    return {table_, QString()};
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
        return {{}, QStringLiteral("an old Excel workbook (.xls); save it as .xlsx or .csv")};
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
    return {EINVAL, QStringLiteral("a spreadsheet is written as .csv or .xlsx")};
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
        *error = name + QStringLiteral(" is missing from the zip container");
        return {};
    }
    unz_file_info64 info{};
    const QString tooLarge = name + QStringLiteral(" inside is too large for a question set's table");
    if (unzGetCurrentFileInfo64(zip_, &info, nullptr, 0, nullptr, 0, nullptr, 0) != UNZ_OK ||
        unzOpenCurrentFile(zip_) != UNZ_OK) {
        *error = name + QStringLiteral(" inside is damaged or encrypted");
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
        *error = name + QStringLiteral(" inside is damaged (zip error %1)").arg(n < 0 ? n : closed);
        return {};
    }
    return bytes;
}
