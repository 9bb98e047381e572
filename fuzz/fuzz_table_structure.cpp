// The spreadsheet import on workbooks and OpenDocument sheets built from
// the input: always a valid zip, its sheet XML made of rows, cells, repeats,
// merges, hidden rows and columns and numbers that the input chooses, so
// that the readers' own logic is reached, not only the zip's checks. An
// import ends with a set or a message, within the time and memory bounds.

#include "FuzzFiles.h"

#include "questions/TableFiles.h"

#include <QFile>

#include <fuzzer/FuzzedDataProvider.h>
#include <minizip/zip.h>

namespace {

QByteArray escaped(const std::string &text)
{
    return QString::fromUtf8(QByteArray::fromStdString(text)).toHtmlEscaped().toUtf8();
}

// Texts a sheet of questions holds, and any text at all.
QByteArray text(FuzzedDataProvider &in)
{
    static const char *const kWords[] = {"Round", "Category", "Clue", "Response", "Picture", "1", "2",
                                         "Final", "1.0", " rivers ", "Rivers", "", "x"};
    if (in.ConsumeBool())
        return kWords[in.ConsumeIntegralInRange<size_t>(0, std::size(kWords) - 1)];
    return escaped(in.ConsumeRandomLengthString(80));
}

QByteArray column(qint64 c)
{
    QByteArray letters;
    for (qint64 n = c + 1; n > 0; n = (n - 1) / 26)
        letters.prepend(char('A' + (n - 1) % 26));
    return letters;
}

QByteArray xlsxSheet(FuzzedDataProvider &in, QByteArray *strings)
{
    QByteArray cols, rows, merges;
    *strings = "<sst>";
    for (int s = 0; s < 8; ++s)
        *strings += "<si><t>" + text(in) + "</t></si>";
    *strings += "</sst>";
    qint64 row = 0;
    while (in.remaining_bytes() > 0 && rows.size() < 200000) {
        switch (in.ConsumeIntegralInRange(0, 7)) {
        case 0:
            cols += "<col min=\"" + QByteArray::number(in.ConsumeIntegralInRange(0, 300)) + "\" max=\"" +
                    QByteArray::number(in.ConsumeIntegralInRange(0, 300)) + "\" hidden=\"1\"/>";
            break;
        case 1:
            merges += "<mergeCell ref=\"" + column(in.ConsumeIntegralInRange(0, 8)) +
                      QByteArray::number(in.ConsumeIntegralInRange(1, 70)) + ":" +
                      column(in.ConsumeIntegralInRange(0, 300)) + QByteArray::number(in.ConsumeIntegralInRange(1, 20000)) +
                      "\"/>";
            break;
        default: {
            row += in.ConsumeBool() ? 1 : in.ConsumeIntegralInRange<qint64>(0, 20000);
            rows += "<row r=\"" + QByteArray::number(row) + "\"" + (in.ConsumeIntegralInRange(0, 7) == 0 ? " hidden=\"1\"" : "") + ">";
            for (int c = 0, n = in.ConsumeIntegralInRange(0, 8); c < n; ++c) {
                const QByteArray ref = column(in.ConsumeBool() ? c : in.ConsumeIntegralInRange(0, 300)) + QByteArray::number(row);
                switch (in.ConsumeIntegralInRange(0, 3)) {
                case 0: rows += "<c r=\"" + ref + "\" t=\"s\"><v>" + QByteArray::number(in.ConsumeIntegralInRange(-1, 9)) + "</v></c>"; break;
                case 1: rows += "<c r=\"" + ref + "\"><v>" + QByteArray::number(in.ConsumeFloatingPoint<double>(), 'g', 17) + "</v></c>"; break;
                case 2: rows += "<c r=\"" + ref + "\" t=\"str\"><v>" + text(in) + "</v></c>"; break;
                default: rows += "<c r=\"" + ref + "\" t=\"inlineStr\"><is><t>" + text(in) + "</t></is></c>"; break;
                }
            }
            rows += "</row>";
        }
        }
    }
    return "<worksheet>" + (cols.isEmpty() ? QByteArray() : "<cols>" + cols + "</cols>") + "<sheetData>" + rows +
           "</sheetData>" + (merges.isEmpty() ? QByteArray() : "<mergeCells>" + merges + "</mergeCells>") + "</worksheet>";
}

QByteArray odsContent(FuzzedDataProvider &in)
{
    QByteArray body;
    while (in.remaining_bytes() > 0 && body.size() < 200000) {
        const auto repeat = [&](const char *name) {
            static const qint64 kCounts[] = {1, 2, 5, 256, 1000, 10001, 1 << 20, 1 << 24, qint64(1) << 40};
            return QByteArray(" table:") + name + "=\"" +
                   QByteArray::number(kCounts[in.ConsumeIntegralInRange<size_t>(0, std::size(kCounts) - 1)]) + "\"";
        };
        if (in.ConsumeIntegralInRange(0, 9) == 0) {
            body += "<table:table-column" + repeat("number-columns-repeated") +
                    (in.ConsumeBool() ? " table:visibility=\"collapse\"" : "") + "/>";
            continue;
        }
        body += "<table:table-row" + (in.ConsumeBool() ? QByteArray() : repeat("number-rows-repeated")) +
                (in.ConsumeIntegralInRange(0, 7) == 0 ? " table:visibility=\"filter\"" : "") + ">";
        for (int c = 0, n = in.ConsumeIntegralInRange(0, 8); c < n; ++c) {
            QByteArray cell = in.ConsumeIntegralInRange(0, 9) == 0 ? "table:covered-table-cell" : "table:table-cell";
            QByteArray attributes;
            if (in.ConsumeIntegralInRange(0, 3) == 0)
                attributes += repeat("number-columns-repeated");
            if (in.ConsumeIntegralInRange(0, 5) == 0)
                attributes += repeat("number-rows-spanned") + repeat("number-columns-spanned");
            if (in.ConsumeIntegralInRange(0, 3) == 0)
                attributes += " office:value-type=\"float\" office:value=\"" +
                              QByteArray::number(in.ConsumeFloatingPoint<double>(), 'g', 17) + "\"";
            QByteArray paragraph = text(in);
            if (in.ConsumeIntegralInRange(0, 5) == 0)
                paragraph += "<text:s text:c=\"" + QByteArray::number(in.ConsumeIntegralInRange(0, 1 << 20)) + "\"/>" + text(in);
            if (in.ConsumeIntegralInRange(0, 5) == 0)
                paragraph += "<text:span>" + text(in) + "<text:line-break/></text:span>";
            body += "<" + cell + attributes + "><text:p>" + paragraph + "</text:p></" + cell + ">";
        }
        body += "</table:table-row>";
    }
    return "<?xml version=\"1.0\"?><office:document-content xmlns:office=\"urn:oasis:names:tc:opendocument:xmlns:office:1.0\" "
           "xmlns:table=\"urn:oasis:names:tc:opendocument:xmlns:table:1.0\" "
           "xmlns:text=\"urn:oasis:names:tc:opendocument:xmlns:text:1.0\"><office:body><office:spreadsheet>"
           "<table:table table:name=\"Q\">" + body + "</table:table></office:spreadsheet></office:body></office:document-content>";
}

void writeZip(const QString &path, const QList<QPair<const char *, QByteArray>> &entries)
{
    zipFile zip = zipOpen64(QFile::encodeName(path).constData(), APPEND_STATUS_CREATE);
    for (const auto &[name, bytes] : entries) {
        zip_fileinfo info{};
        zipOpenNewFileInZip64(zip, name, &info, nullptr, 0, nullptr, 0, nullptr, Z_DEFLATED, 1, 1);
        zipWriteInFileInZip(zip, bytes.constData(), unsigned(bytes.size()));
        zipCloseFileInZip(zip);
    }
    zipClose(zip, nullptr);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzedDataProvider input(data, size);
    const bool workbook = input.ConsumeBool();
    const QString path = Fuzz::folder() + (workbook ? QStringLiteral("/made.xlsx") : QStringLiteral("/made.ods"));
    if (workbook) {
        QByteArray strings;
        const QByteArray sheet = xlsxSheet(input, &strings);
        writeZip(path, {{"xl/workbook.xml", "<workbook><sheets><sheet sheetId=\"1\" r:id=\"rId1\" xmlns:r=\"r\"/></sheets></workbook>"},
                        {"xl/_rels/workbook.xml.rels",
                         "<Relationships><Relationship Id=\"rId1\" Target=\"worksheets/sheet1.xml\"/>"
                         "<Relationship Id=\"rId2\" Type=\"x/sharedStrings\" Target=\"sharedStrings.xml\"/></Relationships>"},
                        {"xl/worksheets/sheet1.xml", sheet},
                        {"xl/sharedStrings.xml", strings}});
    } else {
        writeZip(path, {{"mimetype", "application/vnd.oasis.opendocument.spreadsheet"}, {"content.xml", odsContent(input)}});
    }
    const TableImport result = ImportQuestionTable(path, QStringLiteral("fuzz"), 20);
    if (result.set.has_value() == !result.error.isEmpty())
        Fuzz::diverged(QStringLiteral("an import"), QStringLiteral("a set or a message"),
                       result.set ? QStringLiteral("both") : QStringLiteral("neither"));
    return 0;
}
