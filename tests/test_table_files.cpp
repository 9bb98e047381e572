// Spreadsheet files as real programs write them, each a small file in
// tests/data/tables: CSV with its quotes, separators, line ends and
// encodings, workbooks from a workbook writer, a spreadsheet program and
// other programs, OpenDocument sheets, and files that are damaged, are no
// spreadsheet or ask for endless work. Beside each file stands what it
// must give: <stem>.set, the set it imports as (description "d", 20 s);
// <file>.error, the fault an import names; <file>.unreadable, the same for
// a file that cannot be read at all (a last "*" leaves the rest to the
// library's own words); <file>.rows, its rows as read ("number: cells").

#include "TableFixtures.h"
#include "TestSets.h"
#include "questions/TableFiles.h"

#include <QDir>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

namespace {

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

class TestTableFiles : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;

private slots:
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
        if (result.unreadable) {
            QByteArray err;
            QCOMPARE(runQz2({QStringLiteral("import"), path, dir_.filePath(QStringLiteral("never"))}, nullptr, &err), 1);
            QCOMPARE(QString::fromUtf8(err), QStringLiteral("qz2: cannot read %1: %2\n").arg(path, result.error));
            QVERIFY(!QFile::exists(dir_.filePath(QStringLiteral("never.QZ2"))));
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

    // A cell with a hundred thousand attributes is refused at once (broken,
    // the reader would keep this test busy for minutes).
    void aTagWithEndlessAttributesIsRefused()
    {
        QByteArray attributes = "<worksheet><sheetData><row r=\"1\"><c r=\"A1\"";
        for (int i = 0; i < 100000; ++i)
            attributes += " a" + QByteArray::number(i) + "=\"\"";
        attributes += "/></row></sheetData></worksheet>";
        const QString crowded = dir_.filePath(QStringLiteral("crowded.xlsx"));
        writeZip(crowded, {{QStringLiteral("xl/workbook.xml"), "<workbook><sheets><sheet sheetId=\"1\"/></sheets></workbook>"},
                           {QStringLiteral("xl/_rels/workbook.xml.rels"), "<Relationships/>"},
                           {QStringLiteral("xl/worksheets/sheet1.xml"), attributes}});
        QCOMPARE(ReadTableFile(crowded).error,
                 QStringLiteral("xl/worksheets/sheet1.xml inside is damaged (a tag with over 512 attributes)"));
    }

    void anyBytesGetAnAnswer()
    {
        QRandomGenerator rng(14);
        for (const char *seed : {"seed.xlsx", "seed.ods", "seed.csv"}) {
            const QByteArray original = readFile(kTables + QStringLiteral("seeds/") + QLatin1String(seed));
            QVERIFY(!original.isEmpty());
            const QString target = dir_.filePath(QStringLiteral("mutant.") + QFileInfo(QLatin1String(seed)).suffix());
            for (int i = 0; i < 150; ++i) {
                QByteArray bytes = original;
                for (int k = 0; k < 1 + int(rng.bounded(4)); ++k)
                    bytes[rng.bounded(int(bytes.size()))] = char(rng.bounded(256));
                if (i % 10 == 0)
                    bytes.truncate(rng.bounded(int(bytes.size())));
                writeFile(target, bytes);
                const TableImport result = ImportQuestionTable(target, QString(), 20);
                QVERIFY(result.set.has_value() == result.error.isEmpty());
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestTableFiles)
#include "test_table_files.moc"
