// Question sets from and to spreadsheets: the rows a set is made of, the
// faults a table can have, the round trip, qz2's import and export, and
// the files themselves.

#include "TableFixtures.h"
#include "TestSets.h"
#include "questions/TableFiles.h"
#include "questions/TableFormats.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

namespace {

Table tableOf(const Rows &rows)
{
    Table table;
    for (qsizetype i = 0; i < rows.size(); ++i)
        table.rows.append({i + 1, rows[i]});
    return table;
}

// Texts a spreadsheet and a CSV file must carry unchanged.
QuestionSet awkwardSet(int round2Categories)
{
    QuestionSet s = distinctSet();
    s.Description = QStringLiteral("Awkward");
    s.RoundCount = round2Categories ? 2 : 1;
    s.CategoryCount = {6, qint16(round2Categories ? round2Categories : 6), 0};
    s.Categories[0][0].Answer[0] = QStringLiteral("Commas, \"quotes\" and; semicolons\tand a tab");
    s.Categories[0][0].Question[1] = QStringLiteral("=SUM(A1:A2) stays text");
    s.Categories[0][1].Title = QStringLiteral("Ünïcödé ✓ 漢字 🎲");
    s.Categories[0][2].Answer[3] = QStringLiteral("_x0041_ is no escape here");
    s.Categories[0][3].Question[4] = QStringLiteral("007");
    s.Categories[0][3].Answer[2] = QStringLiteral("1969");
    s.Categories[0][4].Picture[2] = QStringLiteral("maps/alps, west.png");
    s.Categories[0][4].Answer[3] = QStringLiteral("He said \"hi\" and left"); // a quote, no comma
    s.Categories[0][5].Answer[4] = QString(1999, QChar(u'\u00e9'));         // as long as a text may be
    s.Categories[2][0].Picture[0] = QStringLiteral("final.png");
    return s;
}

const QString kTables = QStringLiteral(QUIZZARR_TEST_DATA "/tables/");

// Rows as the .rows files write them, with line breaks and tabs escaped.
QString dump(const Table &table)
{
    QString text;
    for (const TableRow &row : table.rows) {
        QStringList cells;
        for (QString c : row.cells)
            cells << c.replace(QLatin1Char('\\'), QStringLiteral("\\\\")).replace(QLatin1Char('\n'), QStringLiteral("\\n"))
                         .replace(QLatin1Char('\r'), QStringLiteral("\\r")).replace(QLatin1Char('\t'), QStringLiteral("\\t"));
        text += QStringLiteral("%1: %2\n").arg(row.number).arg(cells.join(QStringLiteral(" | ")));
    }
    return text;
}

} // namespace

class TestTables : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;

    QString path(const QString &name) const { return dir_.filePath(name); }

    QString write(const QString &name, const QByteArray &bytes) { return writeFile(path(name), bytes); }

private slots:
    // ------------------------------------------------------------ the rows

    void rowsMakeTheSetInTheirOrder()
    {
        Rows rows = setRows(2, 1);
        rows[0] << QStringLiteral("Picture");
        rows.move(6, 2);  // the first clue of category 1 before the rest of category 0
        rows.move(16, 1); // the final first: rounds are told by their column
        rows[9] << QStringLiteral("p.png");
        const TableImport result = QuestionSetFromTable(tableOf(rows), QStringLiteral("Desc"), 33);
        QVERIFY2(result.set, qPrintable(result.error));
        const QuestionSet &s = *result.set;
        QCOMPARE(s.Description, QStringLiteral("Desc"));
        QCOMPARE(s.Timer, qint16(33));
        QCOMPARE(s.RoundCount, qint16(2));
        QCOMPARE(s.CategoryCount[0], qint16(2));
        QCOMPARE(s.CategoryCount[1], qint16(1));
        QCOMPARE(s.Categories[0][0].Title, QStringLiteral("R1 Cat 0"));
        QCOMPARE(s.Categories[0][1].Title, QStringLiteral("R1 Cat 1"));
        for (int j = 0; j < 5; ++j) {
            QCOMPARE(s.Categories[0][1].Answer[size_t(j)], QStringLiteral("r1c1 clue %1").arg(j));
            QCOMPARE(s.Categories[0][1].Question[size_t(j)], QStringLiteral("r1c1 response %1").arg(j));
            QCOMPARE(s.Categories[1][0].Answer[size_t(j)], QStringLiteral("r2c0 clue %1").arg(j));
        }
        QCOMPARE(s.Categories[0][1].Picture[2], QStringLiteral("p.png"));
        QCOMPARE(s.Categories[0][1].Picture[1], QString());
        QCOMPARE(s.Categories[2][0].Title, QStringLiteral("Final Cat"));
        QCOMPARE(s.Categories[2][0].Answer[0], QStringLiteral("final clue"));
        QCOMPARE(s.Categories[2][0].Question[0], QStringLiteral("final response"));
        QCOMPARE(s.Categories[0][2].Title, QString());
    }

    // ------------------------------------------------------------ export

    void exportThenImportGivesTheSameSet_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("round2");
        QTest::newRow("csv, two rounds") << QStringLiteral("trip.csv") << 6;
        QTest::newRow("xlsx, two rounds") << QStringLiteral("trip.xlsx") << 6;
        QTest::newRow("csv, one round") << QStringLiteral("trip.CSV") << 0;
        QTest::newRow("xlsx, three in round 2") << QStringLiteral("trip.XLSX") << 3;
    }

    void exportThenImportGivesTheSameSet()
    {
        QFETCH(QString, name);
        QFETCH(int, round2);
        const QuestionSet set = awkwardSet(round2);
        const QString file = path(name);
        QVERIFY(!WriteTableFile(TableFromQuestionSet(set), file));
        const TableImport back = ImportQuestionTable(file, set.Description, set.Timer);
        QVERIFY2(back.set, qPrintable(back.error));
        QString where;
        QVERIFY2(equalSets(set, *back.set, &where), qPrintable(where));
    }

    // The sheets a host copies to start from are the sample set itself.
    void samplesInTheDocsAreTheSampleSet_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("csv") << QStringLiteral("sample-questions.csv");
        QTest::newRow("xlsx") << QStringLiteral("sample-questions.xlsx");
    }

    void samplesInTheDocsAreTheSampleSet()
    {
        QFETCH(QString, name);
        const QuestionSet sample = LoadQuestionSet(programFile(QStringLiteral("General Knowledge.QZ2")));
        const TableImport sheet =
            ImportQuestionTable(QStringLiteral(QUIZZARR_DOCS "/") + name, sample.Description, sample.Timer);
        QVERIFY2(sheet.set, qPrintable(sheet.error));
        QString where;
        QVERIFY2(equalSets(sample, *sheet.set, &where), qPrintable(where));
    }

    void exportedFilesAreWhatSpreadsheetsOpen()
    {
        const QString csv = path(QStringLiteral("look.csv")), xlsx = path(QStringLiteral("look.xlsx"));
        QVERIFY(!WriteTableFile(TableFromQuestionSet(awkwardSet(6)), csv));
        const QByteArray text = readFile(csv);
        QVERIFY(text.startsWith("\xEF\xBB\xBF" "Round,Category,Value,Clue,Response,Picture\r\n"
                                "1,R0C0 title,100,\"Commas, \"\"quotes\"\" and; semicolons\tand a tab\","));
        QVERIFY(text.contains("\r\n2,R1C0 title,1000,clue 1.0.4 = yes,What is 1.0.4?,\r\n"));
        QVERIFY(text.endsWith("\r\nFinal,R2C0 title,,clue 2.0.0 = yes,What is 2.0.0?,final.png\r\n"));
        QCOMPARE(text.count("\r\n"), 62);
        QVERIFY(!WriteTableFile(TableFromQuestionSet(awkwardSet(6)), xlsx));
        ZipReader zip(xlsx);
        QString error;
        const QByteArray sheet = zip.entry(QStringLiteral("xl/worksheets/sheet1.xml"), &error);
        // Round and value are numbers a spreadsheet can sort and sum.
        QVERIFY2(sheet.contains("<c r=\"A2\" s=\"1\"><v>1</v></c>") && sheet.contains("<c r=\"C61\" s=\"1\"><v>1000</v></c>"),
                 sheet.left(2000).constData());
        QVERIFY(WriteTableFile(Table{}, path(QStringLiteral("look.ods"))).description.contains(QStringLiteral(".csv or .xlsx")));
    }

    // ------------------------------------------------------------ qz2

    void qz2ImportWritesTheSetBesideTheTable()
    {
        QDir().mkpath(path(QStringLiteral("class")));
        const QString table = write(QStringLiteral("class/Class Quiz.csv"), csvText(setRows(6, 6)));
        QByteArray out;
        QCOMPARE(runQz2({QStringLiteral("import"), table}, &out), 0);
        const QString set = path(QStringLiteral("class/Class Quiz.QZ2"));
        // Beside the table, which the home screen does not list: qz2 says so.
        const QStringList lines = QString::fromUtf8(out).split(QLatin1Char('\n'));
        QCOMPARE(lines.value(0), QStringLiteral("wrote ") + set);
        QVERIFY2(lines.value(1).startsWith(QStringLiteral("note: the home screen lists only the sets in the program folder (" QUIZZARR_PROGRAM_DIR ") and in Documents (")) &&
                     lines.value(1).endsWith(QStringLiteral("); move Class Quiz.QZ2 there to play it")),
                 out.constData());
        QuestionSet s = LoadQuestionSet(set);
        QCOMPARE(s.Description, QStringLiteral("Class Quiz"));
        QCOMPARE(s.Timer, qint16(20));
        QCOMPARE(s.Categories[1][5].Question[4], QStringLiteral("r2c5 response 4"));
        // As convert does, a second import replaces the set it wrote.
        QCOMPARE(runQz2({QStringLiteral("import"), table, QStringLiteral("--description"), QStringLiteral("Mixed bag"),
                         QStringLiteral("--timer=45")}),
                 0);
        s = LoadQuestionSet(set);
        QCOMPARE(s.Description, QStringLiteral("Mixed bag"));
        QCOMPARE(s.Timer, qint16(45));
        QCOMPARE(runQz2({QStringLiteral("import"), QStringLiteral("--timer"), QStringLiteral("5"), table,
                         path(QStringLiteral("class/named"))}, &out),
                 0);
        QCOMPARE(LoadQuestionSet(path(QStringLiteral("class/named.QZ2"))).Timer, qint16(5));
    }

    void qz2ImportRefusesBadArguments_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("message");
        const QString usage = QStringLiteral("usage: qz2 import TABLE [OUT.QZ2] [--description TEXT] [--timer SECONDS]\n");
        QTest::newRow("timer 4") << QStringList{QStringLiteral("--timer"), QStringLiteral("4")}
                                 << "qz2: --timer takes whole seconds from 5 to 60, not \"4\"\n";
        QTest::newRow("timer 61") << QStringList{QStringLiteral("--timer=61")}
                                  << "qz2: --timer takes whole seconds from 5 to 60, not \"61\"\n";
        QTest::newRow("timer 20.5") << QStringList{QStringLiteral("--timer=20.5")}
                                    << "qz2: --timer takes whole seconds from 5 to 60, not \"20.5\"\n";
        QTest::newRow("two-line description") << QStringList{QStringLiteral("--description"), QStringLiteral("a\nb")}
                                              << "qz2: --description: a line break inside the text; a set holds every "
                                                 "text on one line\n";
        QTest::newRow("unknown option") << QStringList{QStringLiteral("--force")} << usage;
        QTest::newRow("option without value") << QStringList{QStringLiteral("--timer")} << usage;
        QTest::newRow("three files") << QStringList{QStringLiteral("a"), QStringLiteral("b")} << usage;
    }

    void qz2ImportRefusesBadArguments()
    {
        QFETCH(QStringList, options);
        QFETCH(QString, message);
        const QString table = write(QStringLiteral("args.csv"), csvText(setRows(1, 0)));
        QByteArray err;
        QCOMPARE(runQz2(QStringList{QStringLiteral("import"), table} + options, nullptr, &err), 2);
        QCOMPARE(QString::fromUtf8(err), message);
        QVERIFY(!QFile::exists(path(QStringLiteral("args.QZ2"))));
    }

    void qz2ExportWritesTablesThatImportBack_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("csv") << QStringLiteral("science.csv");
        QTest::newRow("xlsx") << QStringLiteral("science.xlsx");
    }

    void qz2ExportWritesTablesThatImportBack()
    {
        QFETCH(QString, name);
        const QString sample = programFile(QStringLiteral("Science Lab.QZ2"));
        const QuestionSet original = LoadQuestionSet(sample);
        const QString table = path(name);
        QByteArray out, err;
        QCOMPARE(runQz2({QStringLiteral("export"), sample, table}, &out, &err), 0);
        QCOMPARE(QString::fromUtf8(out), QStringLiteral("wrote ") + table + QLatin1Char('\n'));
        QVERIFY(err.isEmpty());
        QCOMPARE(runQz2({QStringLiteral("import"), table, path(QStringLiteral("back")), QStringLiteral("--description"),
                         original.Description, QStringLiteral("--timer"), QString::number(original.Timer)}),
                 0);
        QCOMPARE(readFile(path(QStringLiteral("back.QZ2"))), readFile(sample));
    }

    void qz2ExportSaysWhatItCannotDo()
    {
        const QString sample = programFile(QStringLiteral("Party Mix.QZ2"));
        QByteArray out, err;
        QCOMPARE(runQz2({QStringLiteral("export"), sample, path(QStringLiteral("party.ods"))}, &out, &err), 1);
        QCOMPARE(QString::fromUtf8(err), QStringLiteral("qz2: cannot write ") + path(QStringLiteral("party.ods")) +
                                             QStringLiteral(": a spreadsheet is written as .csv or .xlsx\n"));
        QVERIFY(!QFile::exists(path(QStringLiteral("party.ods"))));
        QCOMPARE(runQz2({QStringLiteral("export"), path(QStringLiteral("gone.QZ2")), path(QStringLiteral("x.csv"))}, &out, &err), 1);
        QVERIFY(err.startsWith("qz2: cannot read "));
        QCOMPARE(runQz2({QStringLiteral("export"), sample, path(QStringLiteral("no/such/x.xlsx"))}, &out, &err), 1);
        QVERIFY2(err.contains(": error #"), err.constData());
        QCOMPARE(runQz2({QStringLiteral("export"), sample}, &out, &err), 2);
        // A half-made set is written, with a warning of what import refuses.
        const QString half = write(QStringLiteral("half.QZ2"), setText({"A", "A"}, {}, "F"));
        QCOMPARE(runQz2({QStringLiteral("export"), half, path(QStringLiteral("half.csv"))}, &out, &err), 0);
        QVERIFY(QFile::exists(path(QStringLiteral("half.csv"))));
        QCOMPARE(QString::fromUtf8(err), QStringLiteral("qz2: warning: ") + path(QStringLiteral("half.csv")) +
                                             QStringLiteral(" will not import as it is: row 7 (\"1 | A | 100 | r1c1a0 | r1c1q0\"), column B (Category): a "
                                                            "sixth clue for \"A\" in round 1 (five are in rows 2, 3, "
                                                            "4, 5, 6); a category holds 5\n"));
    }

    // ------------------------------------------------------------ the files

    // Spreadsheet files as real programs write them, each a small file in
    // tests/data/tables: CSV with its quotes, separators, line ends and
    // encodings, workbooks from a workbook writer, a spreadsheet program and
    // other programs, OpenDocument sheets, and files that are damaged, are no
    // spreadsheet or ask for endless work (a tag with a hundred thousand
    // attributes, a row repeated past any set's size). Beside each file stands what it
    // must give: <stem>.set, the set it imports as (description "d", 20 s);
    // <file>.error, the fault an import names (the fault-* files: each fault
    // a table can have, named by its row and column); <file>.unreadable, the same for
    // a file that cannot be read at all (a last "*" leaves the rest to the
    // library's own words); <file>.rows, its rows as read ("number: cells").
    void everyFileGivesWhatStandsBesideIt_data()
    {
        QTest::addColumn<QString>("file");
        const QStringList expectations{QStringLiteral("set"), QStringLiteral("error"), QStringLiteral("unreadable"),
                                       QStringLiteral("rows")};
        for (const QFileInfo &f : QDir(kTables).entryInfoList(QDir::Files, QDir::Name)) {
            if (!expectations.contains(f.suffix()))
                QTest::newRow(qPrintable(f.fileName())) << f.fileName();
        }
    }
    void everyFileGivesWhatStandsBesideIt()
    {
        QFETCH(QString, file);
        const QString path = kTables + file;
        const QByteArray set = readFile(kTables + QFileInfo(file).completeBaseName() + QStringLiteral(".set"));
        const QByteArray error = readFile(path + QStringLiteral(".error")).trimmed();
        const QByteArray unreadable = readFile(path + QStringLiteral(".unreadable")).trimmed();
        QCOMPARE(int(!set.isEmpty()) + int(!error.isEmpty()) + int(!unreadable.isEmpty()), 1);
        const TableImport result = ImportQuestionTable(path, QStringLiteral("d"), 20);
        if (!set.isEmpty()) {
            QVERIFY2(result.set, qPrintable(result.error));
            QCOMPARE(QuestionSetFileBytes(*result.set), set);
        } else {
            QString message = QString::fromUtf8(error + unreadable);
            const bool prefix = message.endsWith(QLatin1Char('*'));
            message.remove(QRegularExpression(QStringLiteral("\\*$")));
            QVERIFY2(prefix ? result.error.startsWith(message) : result.error == message, qPrintable(result.error));
            QCOMPARE(result.unreadable, !unreadable.isEmpty());
            QVERIFY(!result.set);
        }
        if (!result.set) {
            // Through qz2, as a host meets it: the message, status 1, and no
            // set written, nor an old one beside the table touched.
            const QString table = dir_.filePath(QStringLiteral("fault.") + QFileInfo(file).suffix());
            QFile::remove(table);
            QVERIFY(QFile::copy(path, table));
            const QString old = write(QStringLiteral("fault.QZ2"), "old bytes");
            QByteArray out, err;
            QCOMPARE(runQz2({QStringLiteral("import"), table}, &out, &err), 1);
            QCOMPARE(QString::fromUtf8(err), (result.unreadable ? QStringLiteral("qz2: cannot read %1: %2\n")
                                                                : QStringLiteral("qz2: %1: %2\n")).arg(table, result.error));
            QVERIFY(out.isEmpty());
            QCOMPARE(readFile(old), QByteArray("old bytes"));
        }
        const QByteArray rows = readFile(path + QStringLiteral(".rows"));
        if (!rows.isEmpty())
            QCOMPARE(dump(ReadTableFile(path).table), QString::fromUtf8(rows));
    }

    void missingFilesAndFoldersAreNamed()
    {
        QCOMPARE(ReadTableFile(dir_.filePath(QStringLiteral("absent.csv"))).error, QStringLiteral("no such file"));
        QCOMPARE(ReadTableFile(dir_.path()).error, QStringLiteral("is a folder"));
    }
};

QTEST_GUILESS_MAIN(TestTables)
#include "test_tables.moc"
