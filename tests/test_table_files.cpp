// Spreadsheet files as real programs write them: CSV with its quotes,
// separators, line ends and encodings, workbooks from a workbook writer and
// from other programs, OpenDocument sheets, and files that are damaged or
// no spreadsheet at all.

#include "TableFixtures.h"
#include "TestSets.h"
#include "platform/Windows1252.h"
#include "questions/TableFiles.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// The zip with one file's CRC-32 changed in its local and its central
// header alike, so the entry opens and inflates but is not what was stored.
QByteArray withWrongChecksum(QByteArray zip, const QByteArray &name)
{
    struct Header {
        QByteArray signature;
        int nameLength, name, crc;
    };
    for (const Header &h : {Header{"PK\x03\x04", 26, 30, 14}, Header{"PK\x01\x02", 28, 46, 16}}) {
        for (qsizetype i = zip.indexOf(h.signature); i >= 0; i = zip.indexOf(h.signature, i + 4)) {
            const int length = uchar(zip[i + h.nameLength]) | uchar(zip[i + h.nameLength + 1]) << 8;
            if (zip.mid(i + h.name, length) == name)
                zip[i + h.crc] = char(zip[i + h.crc] ^ 0x55);
        }
    }
    return zip;
}

// A sheet as a teacher saves it, the same in every format: a title row, a
// blank row, then the header (and a hidden old "Clue" column E), round 1's
// category "Rivers" written once in a cell merged over its five rows, with
// a hidden spare clue among them, Round shown as "1.0", and the final.
struct TeacherRow {
    QString round, category, clue, response, spare;
    bool hidden = false;
};

QList<TeacherRow> teacherRows()
{
    QList<TeacherRow> rows{{QStringLiteral("Round"), QStringLiteral("Category"), QStringLiteral("Clue"),
                            QStringLiteral("Response"), QStringLiteral("Clue")}};
    for (int j = 0; j < 6; ++j) {
        const bool spare = j == 2; // hidden, among the five
        rows.append({QStringLiteral("1"), j == 0 ? QStringLiteral("Rivers") : QString(),
                     spare ? QStringLiteral("spare clue") : QStringLiteral("clue %1").arg(j),
                     j == 0 ? QStringLiteral("1989") : QStringLiteral("response %1").arg(j), QStringLiteral("old"), spare});
    }
    rows.append({QStringLiteral("Final"), QStringLiteral("Seas"), QStringLiteral("final clue"),
                 QStringLiteral("final response"), QString()});
    return rows;
}

QByteArray teacherXlsxSheet()
{
    QByteArray rows;
    const QList<TeacherRow> t = teacherRows();
    auto cell = [](const char *ref, const QString &text, bool number = false) -> QByteArray {
        if (text.isEmpty())
            return {};
        return number ? QByteArray("<c r=\"") + ref + "\"><v>" + text.toUtf8() + "</v></c>"
                      : QByteArray("<c r=\"") + ref + "\" t=\"inlineStr\"><is><t>" + text.toUtf8() + "</t></is></c>";
    };
    rows += "<row r=\"1\">" + cell("A1", QStringLiteral("Quiz for class 5b")) + "</row>";
    for (int i = 0; i < t.size(); ++i) {
        const QByteArray n = QByteArray::number(i + 3);
        rows += "<row r=\"" + n + "\"" + (t[i].hidden ? " hidden=\"1\"" : "") + ">" +
                cell(("A" + n).constData(), t[i].round, t[i].round == QStringLiteral("1")) +
                cell(("B" + n).constData(), t[i].category) + cell(("C" + n).constData(), t[i].clue) +
                cell(("D" + n).constData(), t[i].response, t[i].response == QStringLiteral("1989")) + cell(("E" + n).constData(), t[i].spare) + "</row>";
    }
    return "<worksheet xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\"><cols><col min=\"5\" "
           "max=\"5\" width=\"9\" hidden=\"1\"/></cols><sheetData>" + rows +
           "</sheetData><mergeCells count=\"1\"><mergeCell ref=\"B4:B9\"/></mergeCells></worksheet>";
}

QString teacherOdsRows()
{
    QString xml = QStringLiteral("<table:table-column table:visibility=\"collapse\"/>") +
                  odsRow({QStringLiteral("Quiz for class 5b")}) + QStringLiteral("<table:table-row/>");
    const QList<TeacherRow> t = teacherRows();
    for (int i = 0; i < t.size(); ++i) {
        const QStringList texts{t[i].round, t[i].category, t[i].clue, t[i].response, t[i].spare};
        QString cells;
        for (int c = 0; c < texts.size(); ++c) {
            if (c == 0 && texts[c] == QStringLiteral("1"))
                cells += QStringLiteral("<table:table-cell office:value-type=\"float\" office:value=\"1\"><text:p>1.0</text:p></table:table-cell>");
            else if (c == 3 && texts[c] == QStringLiteral("1989")) // a year, shown with a separator
                cells += QStringLiteral("<table:table-cell office:value-type=\"float\" office:value=\"1989\"><text:p>1,989</text:p></table:table-cell>");
            else if (c == 1 && i == 1)
                cells += QStringLiteral("<table:table-cell table:number-rows-spanned=\"6\"><text:p>%1</text:p></table:table-cell>").arg(texts[c]);
            else if (c == 1 && i > 1 && i < 7)
                cells += QStringLiteral("<table:covered-table-cell/>");
            else
                cells += QStringLiteral("<table:table-cell><text:p>%1</text:p></table:table-cell>").arg(texts[c]);
        }
        xml += QStringLiteral("<table:table-row%1>%2</table:table-row>")
                   .arg(t[i].hidden ? QStringLiteral(" table:visibility=\"collapse\"") : QString(), cells);
    }
    return xml;
}

} // namespace

class TestTableFiles : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;

    QString path(const QString &name) const { return dir_.filePath(name); }

    QString write(const QString &name, const QByteArray &bytes) { return writeFile(path(name), bytes); }

    QByteArray read(const QString &file) const { return readFile(file); }

    QuestionSet imported(const QString &file)
    {
        const TableImport result = ImportQuestionTable(file, QStringLiteral("d"), 20);
        if (!result.set)
            qWarning("%s", qPrintable(result.error));
        return result.set.value_or(QuestionSet{});
    }

private slots:
    void csvSeparatorIsFound_data()
    {
        QTest::addColumn<char>("separator");
        QTest::newRow("comma") << ',';
        QTest::newRow("semicolon") << ';';
        QTest::newRow("tab") << '\t';
    }

    void csvSeparatorIsFound()
    {
        QFETCH(char, separator);
        Rows rows = setRows(1, 0);
        rows[1][2] = QStringLiteral("one, two; three\tfour");
        const QuestionSet s = imported(write(QStringLiteral("sep.csv"), csvText(rows, separator)));
        QCOMPARE(s.Categories[0][0].Answer[0], rows[1][2]);
        QCOMPARE(s.Categories[0][0].Question[4], QStringLiteral("r1c0 response 4"));
    }

    void csvQuotesAsSpreadsheetsWriteThem()
    {
        const QString file = write(QStringLiteral("quotes.csv"),
                                   "Round,Notes,Category,Clue,Response\r\n"
                                   "1,\"a note\r\nover two lines\",Cat,\"He said \"\"hi\"\", then left\",\"x,y\"\r\n"
                                   "\r\n"
                                   "1,,\"Cat\",  padded  ,5\" floppy\r\n");
        const TableFile t = ReadTableFile(file);
        QVERIFY2(t.error.isEmpty(), qPrintable(t.error));
        QCOMPARE(t.table.rows.size(), 3);
        QCOMPARE(t.table.rows[1].number, 2);
        QCOMPARE(t.table.rows[1].cells, (QStringList{QStringLiteral("1"), QStringLiteral("a note\r\nover two lines"),
                                                     QStringLiteral("Cat"), QStringLiteral("He said \"hi\", then left"),
                                                     QStringLiteral("x,y")}));
        // The quoted line break is inside row 2; the blank line is row 3.
        QCOMPARE(t.table.rows[2].number, 4);
        QCOMPARE(t.table.rows[2].cells.mid(2), (QStringList{QStringLiteral("Cat"), QStringLiteral("padded"),
                                                            QStringLiteral("5\" floppy")}));
    }

    void csvRowNumbersAreTheSpreadsheetsRows_data()
    {
        QTest::addColumn<QByteArray>("lineEnd");
        QTest::newRow("LF") << QByteArray("\n");
        QTest::newRow("CR LF") << QByteArray("\r\n");
        QTest::newRow("CR") << QByteArray("\r");
    }

    void csvRowNumbersAreTheSpreadsheetsRows()
    {
        QFETCH(QByteArray, lineEnd);
        Rows rows = setRows(1, 0);
        rows.insert(1, QStringList{}); // a blank row 2
        rows[3][3] = QStringLiteral("a response\nof two lines in a quoted cell"); // row 4
        rows[5][2] = QString(); // row 6
        const QString file = write(QStringLiteral("rows.csv"), csvText(rows, ',', lineEnd));
        QCOMPARE(ImportQuestionTable(file, QString(), 20).error,
                 QStringLiteral("row 4 (\"1 | R1 Cat 0 | r1c0 clue 1 | a response of two lines in a qu\u2026\"), column D (Response): a line break inside the text; a set holds every text on one line"));
        rows[3][3] = QStringLiteral("fine");
        write(QStringLiteral("rows.csv"), csvText(rows, ',', lineEnd));
        QCOMPARE(ImportQuestionTable(file, QString(), 20).error, QStringLiteral("row 6 (\"1 | R1 Cat 0 |  | r1c0 response 3\"), column C (Clue): the clue is empty"));
        write(QStringLiteral("rows.csv"), "Round,Category\n1,\"never closed\nstill,going" + lineEnd);
        const TableImport open = ImportQuestionTable(file, QString(), 20);
        QVERIFY(open.unreadable);
        QCOMPARE(open.error, QStringLiteral("row 2: a quotation mark opens a text that never ends"));
    }

    void csvEncodingsAreRecognised_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QString text = QStringLiteral("Café “quoted” – 5 € Œuvre");
        const QString csv = QStringLiteral("Round;Category;Clue;Response\n");
        QByteArray lines;
        for (int j = 0; j < 5; ++j)
            lines += "1;Cat;clue;" + text.toUtf8() + "\n";
        lines += "Final;F;c;r\n";
        const QString all = csv + QString::fromUtf8(lines);
        QTest::newRow("UTF-8 with its mark") << QByteArray("\xEF\xBB\xBF") + all.toUtf8();
        QTest::newRow("UTF-8") << all.toUtf8();
        bool ok = false;
        QTest::newRow("Windows-1252") << Windows1252::encode(all, &ok);
        QVERIFY(ok);
        QStringEncoder le(QStringConverter::Utf16LE), be(QStringConverter::Utf16BE);
        QTest::newRow("UTF-16 LE") << QByteArray("\xFF\xFE") + QByteArray(le(all));
        QTest::newRow("UTF-16 BE") << QByteArray("\xFE\xFF") + QByteArray(be(all));
    }

    void csvEncodingsAreRecognised()
    {
        QFETCH(QByteArray, bytes);
        const QuestionSet s = imported(write(QStringLiteral("enc.csv"), bytes));
        QCOMPARE(s.Categories[0][0].Title, QStringLiteral("Cat")); // no mark left on the header
        QCOMPARE(s.Categories[0][0].Question[3], QStringLiteral("Café “quoted” – 5 € Œuvre"));
    }

    // ------------------------------------------------------------ workbooks

    void xlsxFromAWorkbookWriter()
    {
        Rows rows;
        for (const QStringList &r : setRows(2, 2))
            rows << QStringList{r[3], QStringLiteral("note"), r[2], r[0], r[1]};
        rows[0] = {QStringLiteral("Response"), QStringLiteral("Notes"), QStringLiteral("CLUE"), QStringLiteral("round"),
                   QStringLiteral("Category")};
        rows.insert(3, QStringList{}); // a blank row 4
        rows[5][0] = QStringLiteral("Ærø & <Co> \"quoted\"");
        const QString file = path(QStringLiteral("writer.xlsx"));
        writeXlsx(file, rows, true);
        const QuestionSet s = imported(file);
        QCOMPARE(s.RoundCount, qint16(2));
        QCOMPARE(s.Categories[1][1].Answer[4], QStringLiteral("r2c1 clue 4"));
        QCOMPARE(s.Categories[0][0].Question[3], QStringLiteral("Ærø & <Co> \"quoted\""));
        // The blank row still counts: row 6 is the fourth clue.
        rows[5][2] = QString();
        writeXlsx(file, rows, true);
        QCOMPARE(ImportQuestionTable(file, QString(), 20).error, QStringLiteral("row 6 (\"\u00c6r\u00f8 & <Co> \"quoted\" | note |  | 1 | R1 Cat 0\"), column C (CLUE): the clue is empty"));
    }

    void xlsxLayoutsOfOtherProgramsAreRead()
    {
        // Inline strings, rich-text runs with a phonetic guide, cells and
        // rows without references, escapes, booleans and numbers.
        const QByteArray sheet =
            "<?xml version=\"1.0\"?><worksheet xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\">"
            "<sheetData><row><c t=\"inlineStr\"><is><t>Round</t></is></c><c t=\"s\"><v>0</v></c>"
            "<c t=\"inlineStr\"><is><t>Clue</t></is></c><c t=\"inlineStr\"><is><t>Response</t></is></c></row>"
            "<row r=\"5\"><c r=\"A5\"><v>1.0</v></c><c r=\"B5\" t=\"s\"><v>1</v></c>"
            "<c r=\"D5\" t=\"inlineStr\"><is><t>tab_x0009_here</t></is></c><c r=\"C5\" t=\"b\"><v>1</v></c></row>"
            "<row><c><v>0.30000000000000004</v></c><c t=\"str\"><f>A1</f><v>formula text</v></c><c t=\"e\"><v>#N/A</v></c></row>"
            "</sheetData></worksheet>";
        const QByteArray strings =
            "<sst xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\"><si><t>Category</t></si>"
            "<si><r><t>Bold</t></r><r><t xml:space=\"preserve\"> and plain</t></r><rPh><t>ふりがな</t></rPh></si></sst>";
        const QString file = path(QStringLiteral("other.xlsx"));
        writeZip(file,
                 {{QStringLiteral("xl/workbook.xml"),
                   "<workbook xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\"><sheets>"
                   "<sheet name=\"Q\" sheetId=\"7\" r:id=\"rId3\"/><sheet name=\"Other\" sheetId=\"1\" r:id=\"rId1\"/>"
                   "</sheets></workbook>"},
                  {QStringLiteral("xl/_rels/workbook.xml.rels"),
                   "<Relationships><Relationship Id=\"rId1\" Type=\"x/worksheet\" Target=\"worksheets/sheet1.xml\"/>"
                   "<Relationship Id=\"rId3\" Type=\"x/worksheet\" Target=\"/xl/worksheets/q.xml\"/>"
                   "<Relationship Id=\"rId9\" Type=\"x/sharedStrings\" Target=\"strings.xml\"/></Relationships>"},
                  {QStringLiteral("xl/worksheets/sheet1.xml"), "<worksheet/>"},
                  {QStringLiteral("xl/worksheets/q.xml"), sheet},
                  {QStringLiteral("xl/strings.xml"), strings}});
        const TableFile t = ReadTableFile(file);
        QVERIFY2(t.error.isEmpty(), qPrintable(t.error));
        QCOMPARE(t.table.rows.size(), 3);
        QCOMPARE(t.table.rows[0].cells, (QStringList{QStringLiteral("Round"), QStringLiteral("Category"),
                                                     QStringLiteral("Clue"), QStringLiteral("Response")}));
        QCOMPARE(t.table.rows[1].number, 5);
        QCOMPARE(t.table.rows[1].cells, (QStringList{QStringLiteral("1"), QStringLiteral("Bold and plain"),
                                                     QStringLiteral("TRUE"), QStringLiteral("tab\there")}));
        QCOMPARE(t.table.rows[2].number, 6);
        QCOMPARE(t.table.rows[2].cells, (QStringList{QStringLiteral("0.3"), QStringLiteral("formula text"),
                                                     QStringLiteral("#N/A")}));
    }

    // Saved by a spreadsheet program as a teacher fills it in: what shows
    // is what imports.
    void teachersSheetsImportAsTheyLook_data()
    {
        QTest::addColumn<QString>("format");
        QTest::newRow("xlsx") << QStringLiteral("xlsx");
        QTest::newRow("ods") << QStringLiteral("ods");
        QTest::newRow("csv") << QStringLiteral("csv");
    }
    void teachersSheetsImportAsTheyLook()
    {
        QFETCH(QString, format);
        const QString file = path(QStringLiteral("teacher.") + format);
        if (format == QStringLiteral("ods")) {
            writeOds(file, teacherOdsRows());
        } else if (format == QStringLiteral("xlsx")) {
            writeZip(file, {{QStringLiteral("xl/workbook.xml"), "<workbook><sheets><sheet name=\"Q\" sheetId=\"1\" r:id=\"rId1\" "
                                                                "xmlns:r=\"r\"/></sheets></workbook>"},
                            {QStringLiteral("xl/_rels/workbook.xml.rels"), "<Relationships><Relationship Id=\"rId1\" "
                                                                           "Type=\"x/worksheet\" Target=\"worksheets/sheet1.xml\"/></Relationships>"},
                            {QStringLiteral("xl/worksheets/sheet1.xml"), teacherXlsxSheet()}});
        } else {
            // No merges or hiding in a text file: the title, "1.0", and the
            // category in another letter case and with blanks around it.
            Rows rows{{QStringLiteral("Quiz for class 5b")}, {}};
            for (const TeacherRow &t : teacherRows()) {
                if (!t.hidden)
                    rows << QStringList{t.round == QStringLiteral("1") ? QStringLiteral("1.0") : t.round,
                                        t.category.isEmpty() ? QStringLiteral(" rivers ") : t.category, t.clue, t.response};
            }
            write(QStringLiteral("teacher.csv"), csvText(rows));
        }
        const TableImport result = ImportQuestionTable(file, QStringLiteral("d"), 20);
        QVERIFY2(result.set, qPrintable(result.error));
        const CategoryEntry &rivers = result.set->Categories[0][0];
        QCOMPARE(result.set->CategoryCount[0], qint16(1));
        QCOMPARE(rivers.Title, QStringLiteral("Rivers"));
        QCOMPARE(QStringList(rivers.Answer.begin(), rivers.Answer.end()),
                 (QStringList{QStringLiteral("clue 0"), QStringLiteral("clue 1"), QStringLiteral("clue 3"),
                              QStringLiteral("clue 4"), QStringLiteral("clue 5")}));
        QCOMPARE(rivers.Question[0], QStringLiteral("1989")); // a number by its value, not its look
        QCOMPARE(result.set->Categories[2][0].Title, QStringLiteral("Seas"));
    }

    // A category spelled otherwise in one row: that row is named, not the
    // four that are right; a sheet with no header among its first ten rows
    // names the row that came closest, with what it holds.
    void faultsNameTheRowAtFault()
    {
        Rows rows = setRows(2, 0);
        rows[8][1] = QStringLiteral("R1 Cat1"); // row 9: the fourth of "R1 Cat 1"
        QCOMPARE(ImportQuestionTable(write(QStringLiteral("spelt.csv"), csvText(rows)), QString(), 20).error,
                 QStringLiteral("row 9 (\"1 | R1 Cat1 | r1c1 clue 2 | r1c1 response 2\"), column B (Category): \"R1 Cat1\" "
                                "(row 9) in round 1 is spelled otherwise than \"R1 Cat 1\" (rows 7, 8, 10, 11); the five "
                                "rows of a category name it alike"));
        Rows titles(10, QStringList{QStringLiteral("Quiz")});
        titles[4] = QStringList{QStringLiteral("Round"), QStringLiteral("Category"), QStringLiteral("Question")};
        QCOMPARE(ImportQuestionTable(write(QStringLiteral("titles.csv"), csvText(titles + setRows(1, 0))), QString(), 20).error,
                 QStringLiteral("row 5 (\"Round | Category | Question\"): the header has no columns \"Clue\", \"Response\"; "
                                "one of the first ten filled rows must name the columns Round, Category, Clue and Response"));
    }

    void odsIsReadAsItsCellsShowIt()
    {
        QString rowsXml = odsRow({QStringLiteral("Round"), QStringLiteral("Category"), QStringLiteral("Clue"),
                                  QStringLiteral("Response")});
        // A sheet's empty middle and tail are single rows repeated.
        rowsXml += QStringLiteral("<table:table-row table:number-rows-repeated=\"1000000\"><table:table-cell "
                                  "table:number-columns-repeated=\"16384\"/></table:table-row>");
        for (int j = 0; j < 5; ++j)
            rowsXml += QStringLiteral("<table:table-row><table:table-cell office:value-type=\"float\" office:value=\"1\">"
                                      "<text:p>1</text:p></table:table-cell><table:table-cell><text:p>Cat</text:p>"
                                      "</table:table-cell><table:table-cell><text:p>a<text:s text:c=\"3\"/>b<text:tab/>"
                                      "<text:span>c<text:s/>d</text:span><office:annotation><text:p>hidden</text:p>"
                                      "</office:annotation></text:p></table:table-cell><table:table-cell "
                                      "office:value-type=\"float\" office:value=\"%1\"/></table:table-row>")
                           .arg(j * 100);
        rowsXml += odsRow({QStringLiteral("Final"), QStringLiteral("F"), QStringLiteral("c"), QStringLiteral("r")});
        rowsXml += QStringLiteral("<table:table-row table:number-rows-repeated=\"1048000\"><table:table-cell/></table:table-row>");
        const QString file = path(QStringLiteral("sheet.ods"));
        writeOds(file, rowsXml);
        const TableFile t = ReadTableFile(file);
        QVERIFY2(t.error.isEmpty(), qPrintable(t.error));
        QCOMPARE(t.table.rows.size(), 7);
        QCOMPARE(t.table.rows[1].number, 1000002);
        QCOMPARE(t.table.rows[6].number, 1000007);
        const QuestionSet s = imported(file);
        QCOMPARE(s.Categories[0][0].Answer[2], QStringLiteral("a   b\tc d"));
        QCOMPARE(s.Categories[0][0].Question[2], QStringLiteral("200"));
        QCOMPARE(s.Categories[2][0].Question[0], QStringLiteral("r"));
    }

    void odsParagraphsAreLinesAndRepeatsStop()
    {
        Rows rows = setRows(1, 0);
        QString rowsXml;
        for (const QStringList &r : rows)
            rowsXml += odsRow(r);
        rowsXml.replace(QStringLiteral("<text:p>r1c0 clue 1</text:p>"), QStringLiteral("<text:p>one</text:p><text:p>two</text:p>"));
        const QString file = path(QStringLiteral("lines.ods"));
        writeOds(file, rowsXml);
        QCOMPARE(ImportQuestionTable(file, QString(), 20).error,
                 QStringLiteral("row 3 (\"1 | R1 Cat 0 | one two | r1c0 response 1\"), column C (Clue): a line break inside the text; a set holds every text on one line"));
        // Blank cells repeated inside the rows keep the columns in place.
        QString spaced;
        for (const QStringList &r : rows) {
            QString cells;
            for (int c = 0; c < r.size(); ++c)
                cells += (c == 2 ? QStringLiteral("<table:table-cell table:number-columns-repeated=\"2\"/>") : QString()) +
                         QStringLiteral("<table:table-cell><text:p>%1</text:p></table:table-cell>").arg(r[c]);
            spaced += QStringLiteral("<table:table-row>") + cells + QStringLiteral("</table:table-row>");
        }
        writeOds(file, spaced);
        QCOMPARE(imported(file).Categories[0][0].Answer[4], QStringLiteral("r1c0 clue 4"));
        // A filled row repeated past any set's size stops at the limit.
        writeOds(file, odsRow(rows[0]) + QStringLiteral("<table:table-row table:number-rows-repeated=\"900000\">") +
                           odsRow(rows[1]).mid(17));
        const TableImport runaway = ImportQuestionTable(file, QString(), 20);
        QVERIFY(runaway.unreadable);
        QCOMPARE(runaway.error, QStringLiteral("more than 10000 filled rows by row 10001; a question set's table has at most 62"));
    }

    void filesFromASpreadsheetProgramAreRead_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("ods") << QStringLiteral("libreoffice.ods");
        QTest::newRow("xlsx") << QStringLiteral("libreoffice.xlsx");
    }

    // Saved by a spreadsheet program from tests/data/libreoffice.csv.
    void filesFromASpreadsheetProgramAreRead()
    {
        QFETCH(QString, name);
        const QString data = QStringLiteral(QUIZZARR_TEST_DATA "/");
        const TableImport csv = ImportQuestionTable(data + QStringLiteral("libreoffice.csv"), QStringLiteral("d"), 20);
        const TableImport saved = ImportQuestionTable(data + name, QStringLiteral("d"), 20);
        QVERIFY2(csv.set && saved.set, qPrintable(csv.error + saved.error));
        QString where;
        QVERIFY2(equalSets(*csv.set, *saved.set, &where), qPrintable(where));
        QCOMPARE(saved.set->Categories[0][1].Answer[0], QStringLiteral("Two  spaces,   three   and a “quote”"));
        QCOMPARE(saved.set->Categories[1][0].Title, QStringLiteral("Zahlen & Zeichen ✓"));
    }

    // ------------------------------------------------------------ bad files

    void unreadableFilesAreNamed_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("message");
        QTest::newRow("old workbook") << "old.xls" << QByteArray("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1 rest", 12)
                                      << "an old Excel workbook (.xls); save it as .xlsx or .csv";
        QTest::newRow("not a spreadsheet") << "set.QZ2" << QByteArray("[Round1]\r\n") << "not a spreadsheet; .csv, .xlsx and .ods files are read";
        QTest::newRow("text named .xlsx") << "text.xlsx" << QByteArray("Round,Category\n")
                                          << "not a zip container, so not a workbook: the file is damaged or only named so";
        QTest::newRow("cut zip") << "cut.xlsx" << QByteArray("PK\x03\x04\x14\x00\x00\x00", 8) << "a damaged zip container";
    }

    void unreadableFilesAreNamed()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, message);
        const QString file = write(name, bytes);
        const TableImport result = ImportQuestionTable(file, QString(), 20);
        QVERIFY(result.unreadable && !result.set);
        QCOMPARE(result.error, message);
        QByteArray err;
        QCOMPARE(runQz2({QStringLiteral("import"), file, path(QStringLiteral("never"))}, nullptr, &err), 1);
        QCOMPARE(QString::fromUtf8(err), QStringLiteral("qz2: cannot read ") + file + QStringLiteral(": ") + message + QLatin1Char('\n'));
        QVERIFY(!QFile::exists(path(QStringLiteral("never.QZ2"))));
    }

    void damagedZipsAreNamed()
    {
        const QString good = path(QStringLiteral("good.xlsx"));
        writeXlsx(good, setRows(1, 0), true);
        QCOMPARE(ReadTableFile(path(QStringLiteral("absent.csv"))).error, QStringLiteral("no such file"));
        QCOMPARE(ReadTableFile(dir_.path()).error, QStringLiteral("is a folder"));
        QByteArray bytes = read(good);
        write(QStringLiteral("end.xlsx"), bytes.left(bytes.size() - 30));
        QCOMPARE(ReadTableFile(path(QStringLiteral("end.xlsx"))).error, QStringLiteral("a damaged zip container"));
        const QString wrongZip = path(QStringLiteral("odt.ods"));
        writeZip(wrongZip, {{QStringLiteral("mimetype"), "application/vnd.oasis.opendocument.text"},
                            {QStringLiteral("content.xml"), "<x/>"}});
        QCOMPARE(ReadTableFile(wrongZip).error,
                 QStringLiteral("a zip container, but neither an .xlsx workbook nor an .ods spreadsheet"));
        const QString badXml = path(QStringLiteral("xml.ods"));
        writeZip(badXml, {{QStringLiteral("mimetype"), "application/vnd.oasis.opendocument.spreadsheet"},
                          {QStringLiteral("content.xml"), "<a><b></a>"}});
        QVERIFY2(ReadTableFile(badXml).error.startsWith(QStringLiteral("content.xml inside is damaged (XML error in line 1: ")),
                 qPrintable(ReadTableFile(badXml).error));
        // A flipped byte inside the compressed sheet does not inflate.
        QByteArray flipped = bytes;
        const qsizetype at = flipped.indexOf("xl/worksheets/sheet1.xml") + 40;
        flipped[at] = char(flipped[at] ^ 0x55);
        write(QStringLiteral("flip.xlsx"), flipped);
        QVERIFY2(ReadTableFile(path(QStringLiteral("flip.xlsx"))).error.startsWith(
                     QStringLiteral("xl/worksheets/sheet1.xml inside is damaged (zip error -")),
                 qPrintable(ReadTableFile(path(QStringLiteral("flip.xlsx"))).error));
        // Bytes that inflate but are not the ones stored fail the checksum.
        write(QStringLiteral("crc.xlsx"), withWrongChecksum(bytes, "xl/worksheets/sheet1.xml"));
        QCOMPARE(ReadTableFile(path(QStringLiteral("crc.xlsx"))).error,
                 QStringLiteral("xl/worksheets/sheet1.xml inside is damaged (zip error -105)"));
    }

    // Small files that ask for endless work: a repeated huge cell over
    // every column and past the row limit, and a cell with a hundred
    // thousand attributes. Each is refused at once (broken, each would keep
    // this test busy for minutes).
    void filesThatAskForEndlessWorkAreRefused()
    {
        const QString repeated = path(QStringLiteral("repeated.ods"));
        writeOds(repeated, QStringLiteral("<table:table-row table:number-rows-repeated=\"10001\"><table:table-cell "
                                          "table:number-columns-repeated=\"256\"><text:p><text:s text:c=\"65535\"/>x"
                                          "</text:p></table:table-cell></table:table-row>"));
        QVERIFY(QFileInfo(repeated).size() < 1000);
        QCOMPARE(ReadTableFile(repeated).error,
                 QStringLiteral("more than 10000 filled rows by row 10001; a question set's table has at most 62"));
        QByteArray attributes = "<worksheet><sheetData><row r=\"1\"><c r=\"A1\"";
        for (int i = 0; i < 100000; ++i)
            attributes += " a" + QByteArray::number(i) + "=\"\"";
        attributes += "/></row></sheetData></worksheet>";
        const QString crowded = path(QStringLiteral("crowded.xlsx"));
        writeZip(crowded, {{QStringLiteral("xl/workbook.xml"), "<workbook><sheets><sheet sheetId=\"1\"/></sheets></workbook>"},
                           {QStringLiteral("xl/_rels/workbook.xml.rels"), "<Relationships/>"},
                           {QStringLiteral("xl/worksheets/sheet1.xml"), attributes}});
        QCOMPARE(ReadTableFile(crowded).error,
                 QStringLiteral("xl/worksheets/sheet1.xml inside is damaged (a tag with over 512 attributes)"));
    }

    void anyBytesGetAnAnswer()
    {
        const QString sources[] = {path(QStringLiteral("m.xlsx")), path(QStringLiteral("m.ods")), path(QStringLiteral("m.csv"))};
        writeXlsx(sources[0], setRows(2, 2), true);
        QString rowsXml;
        for (const QStringList &r : setRows(1, 1))
            rowsXml += odsRow(r);
        writeOds(sources[1], rowsXml);
        write(QStringLiteral("m.csv"), csvText(setRows(3, 3)));
        QRandomGenerator rng(14);
        for (const QString &source : sources) {
            const QByteArray original = read(source);
            const QString target = path(QStringLiteral("mutant.") + QFileInfo(source).suffix());
            for (int i = 0; i < 150; ++i) {
                QByteArray bytes = original;
                for (int k = 0; k < 1 + int(rng.bounded(4)); ++k)
                    bytes[rng.bounded(int(bytes.size()))] = char(rng.bounded(256));
                if (i % 10 == 0)
                    bytes.truncate(rng.bounded(int(bytes.size())));
                write(QFileInfo(target).fileName(), bytes);
                const TableImport result = ImportQuestionTable(target, QString(), 20);
                QVERIFY(result.set.has_value() == result.error.isEmpty());
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestTableFiles)
#include "test_table_files.moc"
