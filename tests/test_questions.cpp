// Question sets on disk: the reading rules every reader shares, the
// editor's loader with its defaults, the writer's exact bytes, legacy
// files, encodings, and the qz2 tool.

#include "TestSets.h"
#include "platform/GetPrivateProfileString.h"
#include "platform/Windows1252.h"
#include "questions/GameReads.h"
#include "questions/HostSheet.h"
#include "questions/QuestionSet.h"

#include <QDir>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QByteArray crlf(const QStringList &lines)
{
    return lines.join(QStringLiteral("\r\n")).toLatin1() + "\r\n";
}

// A text as the reader gives it back: blanks and one pair of quotes at the
// ends go, so round trips are checked with texts that keep their ends.
QString randomText(QRandomGenerator &rng, bool eightBitOnly)
{
    static const QString cp1252Extras = QStringLiteral("€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ ¡¢£éèêëàâäçñöüÿÉÀÇÑÖÜß«»°±²³µ¶·¸¹º¼½¾¿×÷");
    const int length = 1 + int(rng.bounded(60));
    QString s;
    while (s.size() < length) {
        const int pick = int(rng.bounded(10));
        if (pick < 5) {
            s += QChar(char16_t(0x20 + rng.bounded(0x5f))); // printable ASCII, "=" and quotes included
        } else if (eightBitOnly || pick < 7) {
            s += cp1252Extras.at(int(rng.bounded(quint32(cp1252Extras.size()))));
        } else {
            char32_t u;
            do {
                u = char32_t(0xA0 + rng.bounded(0x10FFFF - 0xA0));
            } while ((u >= 0xD800 && u <= 0xDFFF) || (u >= 0xFDD0 && u <= 0xFDEF) || (u & 0xFFFE) == 0xFFFE);
            s += QString::fromUcs4(&u, 1);
        }
    }
    s = s.trimmed();
    while (!s.isEmpty() && (s.front() == QLatin1Char('"') || s.front() == QLatin1Char('\'')))
        s.remove(0, 1);
    return s.isEmpty() ? QStringLiteral("x") : s;
}

QString programFile(const char *name)
{
    return QStringLiteral(QUIZZARR_PROGRAM_DIR "/") + QString::fromUtf8(name);
}

} // namespace

class TestQuestions : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;

    QString write(const QString &name, const QByteArray &bytes)
    {
        const QString path = dir_.filePath(name);
        QFile f(path);
        if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(path));
        return path;
    }

    QByteArray read(const QString &path)
    {
        QFile f(path);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }

    int runQz2(const QStringList &args, QByteArray *out = nullptr, QByteArray *err = nullptr)
    {
        QProcess p;
        p.start(programFile("qz2"), args);
        if (!p.waitForFinished(20000))
            return -1;
        if (out)
            *out = p.readAllStandardOutput();
        if (err)
            *err = p.readAllStandardError();
        return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
    }

private slots:
    void readsOneValueByTheRules_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("section");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("expected");
        const QByteArray set = "[Round1]\r\nDescription=  Rivers and lakes \t\r\nTimer=20\r\n"
                               "Category0=A=B=C\r\nCategory1=\r\nCategory2=\"Quoted\"\r\n"
                               "Category3='single'\r\nCategory4=\"half'\r\nCategory5=\"\"twice\"\"\r\n"
                               "\r\n[Round1Category0]\r\nAnswer0=first\r\nAnswer0=second\r\n"
                               "  Question0  =  spaced key  \r\n\r\n[Final]\r\nCategory=Seas";
        QTest::newRow("letter case of section and key") << set << "ROUND1" << "timer" << "20";
        QTest::newRow("blanks around the value go") << set << "Round1" << "Description" << "Rivers and lakes";
        QTest::newRow("split at the first =") << set << "Round1" << "Category0" << "A=B=C";
        QTest::newRow("empty value stays empty") << set << "Round1" << "Category1" << "";
        QTest::newRow("double quotes go") << set << "Round1" << "Category2" << "Quoted";
        QTest::newRow("single quotes go") << set << "Round1" << "Category3" << "single";
        QTest::newRow("unmatched quotes stay") << set << "Round1" << "Category4" << "\"half'";
        QTest::newRow("only one pair goes") << set << "Round1" << "Category5" << "\"twice\"";
        QTest::newRow("first of two keys") << set << "Round1Category0" << "Answer0" << "first";
        QTest::newRow("blanks around the key") << set << "Round1Category0" << "Question0" << "spaced key";
        QTest::newRow("last line without line end") << set << "Final" << "Category" << "Seas";
        QTest::newRow("key of another section") << set << "Round1" << "Answer0" << "DEFAULT";
        QTest::newRow("missing section") << set << "Round2" << "Category0" << "DEFAULT";
        QTest::newRow("line feeds only") << QByteArray("[A]\nk=v\n[B]\nk=w\n") << "b" << "K" << "w";
        QTest::newRow("section name with blanks") << QByteArray("[ A ]\r\nk=v\r\n") << "A" << "k" << "v";
        QTest::newRow("lone quote stays") << QByteArray("[A]\r\nk=\"\r\n") << "A" << "k" << "\"";
        QTest::newRow("8-bit code page") << QByteArray("[A]\r\nk=caf\xe9 \x80 5\r\n") << "A" << "k" << "café € 5";
        QTest::newRow("UTF-8 file") << QByteArray("[A]\r\nk=caf\xc3\xa9 \xe2\x82\xac 5\r\n") << "A" << "k"
                                    << "café € 5";
        QTest::newRow("byte-order mark") << QByteArray("\xef\xbb\xbf[A]\r\nk=v\xc3\xa9\r\n") << "A" << "k" << "vé";
        QTest::newRow("invalid UTF-8 after the value: code page")
            << QByteArray("[A]\r\nk=\xc3\xa9\r\n[B]\r\nx=\xe9\r\n") << "A" << "k" << "Ã©";
        // One verdict for the whole file, names included: here the 8-bit code
        // page, though the names alone would pass for UTF-8.
        QTest::newRow("names in the 8-bit code page")
            << QByteArray("[\xc3\xa9]\r\n\xe2\x84\xaa=kelvin\r\nk=plain\r\n\xe9=e\r\n") << "\u00c3\u00a9" << "K" << "plain";
        QTest::newRow("empty file") << QByteArray() << "A" << "k" << "DEFAULT";
        QTest::newRow("NUL bytes") << QByteArray("[A]\r\nk=a\0b\r\n", 11) << "A" << "k" << QString::fromUtf8("a\0b", 3);
    }
    void readsOneValueByTheRules()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, section);
        QFETCH(QString, key);
        QFETCH(QString, expected);
        const QString path = write(QStringLiteral("rules.QZ2"), content);
        QCOMPARE(GetPrivateProfileString(section, key, QStringLiteral("DEFAULT"), path), expected);
    }

    void missingFileOrFolderGivesDefault()
    {
        QCOMPARE(GetPrivateProfileString(QStringLiteral("A"), QStringLiteral("k"), QStringLiteral("dflt"),
                                         dir_.filePath(QStringLiteral("absent.QZ2"))),
                 QStringLiteral("dflt"));
        QCOMPARE(GetPrivateProfileString(QStringLiteral("A"), QStringLiteral("k"), QStringLiteral("dflt"), dir_.path()),
                 QStringLiteral("dflt"));
    }

    void cutsValuesAndDefaultsAt1999Characters()
    {
        const QByteArray long2500(2500, 'x');
        const QString path = write(QStringLiteral("long.QZ2"), "[A]\r\nk=" + long2500 + "\r\nq=\"" + long2500 + "\"\r\n");
        QCOMPARE(GetPrivateProfileString(QStringLiteral("A"), QStringLiteral("k"), QString(), path),
                 QString(1999, QLatin1Char('x')));
        QCOMPARE(GetPrivateProfileString(QStringLiteral("A"), QStringLiteral("q"), QString(), path),
                 QString(1999, QLatin1Char('x')));
        QCOMPARE(GetPrivateProfileString(QStringLiteral("A"), QStringLiteral("none"), QString(3000, QLatin1Char('d')), path)
                     .size(),
                 1999);
        QCOMPARE(ReadIniValue(QStringLiteral("A"), QStringLiteral("k"), QString(), path).size(), 1999);
    }

    void editorReaderTakesEmptyAsMissing()
    {
        const QString path = write(QStringLiteral("empty.QZ2"), "[A]\r\nk=\r\n");
        QCOMPARE(ReadIniValue(QStringLiteral("A"), QStringLiteral("k"), QStringLiteral("Nothing"), path),
                 QStringLiteral("Nothing"));
        QCOMPARE(GetPrivateProfileString(QStringLiteral("A"), QStringLiteral("k"), QStringLiteral("Nothing"), path),
                 QString());
    }

    void loaderGivesDefaultsForAFileThatIsNoSet()
    {
        const QString path = write(QStringLiteral("notes.txt"), "just some notes\r\nno sections here\r\n");
        const QuestionSet s = LoadQuestionSet(path);
        QCOMPARE(s.Description, QString());
        QCOMPARE(s.Timer, qint16(20));
        QCOMPARE(s.RoundCount, qint16(1));
        QCOMPARE(s.CategoryCount[0], qint16(1));
        QCOMPARE(s.Categories[0][0].Title, QStringLiteral("Nothing"));
        for (int j = 0; j < 5; ++j) {
            QCOMPARE(s.Categories[0][0].Answer[size_t(j)], QStringLiteral("Nothing"));
            QCOMPARE(s.Categories[0][0].Question[size_t(j)], QStringLiteral("Nothing"));
        }
        QCOMPARE(s.Categories[2][0].Title, QStringLiteral("-> NONE <-"));
        QCOMPARE(s.Categories[2][0].Answer[0], QStringLiteral("Nothing"));
        QCOMPARE(s.Categories[2][0].Question[0], QStringLiteral("Nothing"));
        QCOMPARE(s.Categories[0][1].Title, QString()); // beyond the count: as New left it
    }

    void loaderReadsTimerAsWholeSecondsWithinRange_data()
    {
        QTest::addColumn<QString>("timer");
        QTest::addColumn<int>("seconds");
        QTest::newRow("7") << "7" << 7;
        QTest::newRow("too short") << "3" << 20;
        QTest::newRow("too long") << "75" << 20;
        QTest::newRow("empty") << "" << 20;
        QTest::newRow("not a number") << "abc" << 20;
        QTest::newRow("number then text") << "12s" << 20;
        QTest::newRow("7.5 to even") << "7.5" << 8;
        QTest::newRow("6.5 to even") << "6.5" << 6;
        QTest::newRow("edge 5") << "5" << 5;
        QTest::newRow("edge 60") << "60" << 60;
        QTest::newRow("4.5 rounds to 4") << "4.5" << 20;
        QTest::newRow("huge") << "1e400" << 20;
    }
    void loaderReadsTimerAsWholeSecondsWithinRange()
    {
        QFETCH(QString, timer);
        QFETCH(int, seconds);
        const QString path = write(QStringLiteral("timer.QZ2"), "[Round1]\r\nTimer=" + timer.toLatin1() + "\r\n");
        QCOMPARE(int(LoadQuestionSet(path).Timer), seconds);
    }

    void loaderEndsCategoryListAtFirstMissingTitle()
    {
        const QString path = write(QStringLiteral("titles.QZ2"),
                                   crlf({QStringLiteral("[Round1]"), QStringLiteral("Category0="),
                                         QStringLiteral("Category1=B"), QStringLiteral("Category2="),
                                         QStringLiteral("Category3=D"), QString(), QStringLiteral("[Round2]"),
                                         QStringLiteral("Category0="), QString(), QStringLiteral("[Final]"),
                                         QStringLiteral("Category="), QStringLiteral("Answer=")}));
        const QuestionSet s = LoadQuestionSet(path);
        QCOMPARE(s.Categories[0][0].Title, QStringLiteral("Nothing")); // empty Category0 of round 1
        QCOMPARE(s.Categories[0][1].Title, QStringLiteral("B"));
        QCOMPARE(s.CategoryCount[0], qint16(2));                       // the empty Category2 ends the list
        QCOMPARE(s.Categories[0][2].Title, QString());
        QCOMPARE(s.Categories[0][3].Title, QString());                 // D stays in the file, not in the set
        QCOMPARE(s.RoundCount, qint16(1));                             // empty Category0 of round 2
        QCOMPARE(s.Categories[2][0].Title, QStringLiteral("-> NONE <-"));
        QCOMPARE(s.Categories[2][0].Answer[0], QStringLiteral("Nothing"));
    }

    void writesTheExactLayout()
    {
        QuestionSet s;
        s.Description = QStringLiteral("Sample set for the first class");
        s.Timer = 20;
        s.RoundCount = 1;
        s.CategoryCount = {1, 6, 0};
        s.Categories[0][0].Title = QStringLiteral("Rivers");
        s.Categories[0][0].Answer = {QStringLiteral("It flows through the capital."), QStringLiteral("a1"),
                                     QStringLiteral("a2"), QString(), QStringLiteral("a4")};
        s.Categories[0][0].Question = {QStringLiteral("What is the main river?"), QStringLiteral("q1"),
                                       QStringLiteral("q2"), QStringLiteral("q3"), QStringLiteral("q4")};
        s.Categories[0][1].Title = QStringLiteral("hidden, not written");
        s.Categories[1][0].Title = QStringLiteral("round 2, not written");
        s.Categories[2][0].Title = QStringLiteral("Seas");
        s.Categories[2][0].Answer[0] = QStringLiteral("It is the largest of them.");
        s.Categories[2][0].Question[0] = QStringLiteral("What is the ocean?");
        s.Categories[2][1].Title = QStringLiteral("never written");

        const QString path = dir_.filePath(QStringLiteral("Rivers"));
        QVERIFY(!WriteQuestionSet(s, path));
        const QByteArray golden = "[Round1]\r\nDescription=Sample set for the first class\r\nTimer=20\r\n"
                                  "Category0=Rivers\r\n\r\n[Round1Category0]\r\n"
                                  "Answer0=It flows through the capital.\r\nQuestion0=What is the main river?\r\n"
                                  "Answer1=a1\r\nQuestion1=q1\r\nAnswer2=a2\r\nQuestion2=q2\r\n"
                                  "Answer3=\r\nQuestion3=q3\r\nAnswer4=a4\r\nQuestion4=q4\r\n"
                                  "\r\n[Final]\r\nCategory=Seas\r\nAnswer=It is the largest of them.\r\n"
                                  "Question=What is the ocean?\r\n";
        QCOMPARE(read(path + QStringLiteral(".QZ2")), golden);
    }

    void writesTwoFullRoundsIn166Lines()
    {
        const QuestionSet s = distinctSet();
        const QByteArray bytes = QuestionSetFileBytes(s);
        QCOMPARE(bytes.count("\r\n"), 166);
        QCOMPARE(bytes.count('\n'), 166);
        QVERIFY(bytes.endsWith("Question=What is 2.0.0?\r\n"));
        QVERIFY(bytes.contains("\r\n\r\n[Round2]\r\nCategory0=R1C0 title\r\n"));
        QVERIFY(!bytes.contains("R2C1"));

        QString where;
        const QString path = dir_.filePath(QStringLiteral("full.QZ2"));
        QVERIFY(!WriteQuestionSet(s, path));
        QVERIFY2(sameTexts(s, LoadQuestionSet(path), &where), qPrintable(where));
    }

    void countsLimitWhatIsWrittenAndReadBack()
    {
        QuestionSet s = distinctSet();
        s.RoundCount = 1;
        s.CategoryCount[0] = 4;
        const QString path = dir_.filePath(QStringLiteral("four.QZ2"));
        QVERIFY(!WriteQuestionSet(s, path));
        const QByteArray bytes = read(path);
        QVERIFY(bytes.contains("Category3=R0C3 title\r\n\r\n[Round1Category0]"));
        QVERIFY(!bytes.contains("Category4"));
        QVERIFY(!bytes.contains("[Round2]"));
        QVERIFY(bytes.contains("[Round1Category3]"));
        QVERIFY(!bytes.contains("[Round1Category4]"));
        const QuestionSet back = LoadQuestionSet(path);
        QCOMPARE(back.RoundCount, qint16(1));
        QCOMPARE(back.CategoryCount[0], qint16(4));
        QCOMPARE(GameReads::ColumnTitle(path, 1, 4), QString()); // the board's column 4 is empty
        QVERIFY(!GameReads::RoundExists(path, 2));
    }

    void appendsTheExtensionOnlyWhenMissing_data()
    {
        QTest::addColumn<QString>("given");
        QTest::addColumn<QString>("written");
        QTest::newRow("no extension") << "Set" << "Set.QZ2";
        QTest::newRow("other extension") << "Set.txt" << "Set.txt.QZ2";
        QTest::newRow("lower case") << "Set.qz2" << "Set.qz2";
        QTest::newRow("mixed case") << "Set.Qz2" << "Set.Qz2";
    }
    void appendsTheExtensionOnlyWhenMissing()
    {
        QFETCH(QString, given);
        QFETCH(QString, written);
        QCOMPARE(WithQz2Extension(given), written);
    }

    void keepsTheFolderWhenCuttingTheExtension()
    {
        QCOMPARE(FileBaseOf(QStringLiteral("/home/a.b/Quiz.QZ2")), QStringLiteral("/home/a.b/Quiz"));
        QCOMPARE(FileBaseOf(QStringLiteral("/home/a.b/Quiz")), QStringLiteral("/home/a.b/Quiz"));
        QCOMPARE(FileBaseOf(QStringLiteral("Old.QZA")), QStringLiteral("Old"));
    }

    void legacyFilesExchangeAnswerAndQuestionKeys()
    {
        const QString legacy = write(QStringLiteral("Old.QZA"),
                                     crlf({QStringLiteral("[Round1]"), QStringLiteral("Description=Old set"),
                                           QStringLiteral("Timer=15"), QStringLiteral("Category0=Birds"), QString(),
                                           QStringLiteral("[Round1Category0]"), QStringLiteral("Answer0=What is a robin?"),
                                           QStringLiteral("Question0=A red-breasted bird."), QString(),
                                           QStringLiteral("[Final]"), QStringLiteral("Category=Owls"),
                                           QStringLiteral("Answer=What is an owl?"),
                                           QStringLiteral("Question=It hoots at night.")}));
        const QByteArray before = read(legacy);
        const QuestionSet s = LoadQuestionSet(legacy);
        QCOMPARE(s.Categories[0][0].Answer[0], QStringLiteral("A red-breasted bird."));
        QCOMPARE(s.Categories[0][0].Question[0], QStringLiteral("What is a robin?"));
        QCOMPARE(s.Categories[2][0].Answer[0], QStringLiteral("It hoots at night."));
        QCOMPARE(s.Categories[2][0].Question[0], QStringLiteral("What is an owl?"));
        QCOMPARE(s.Timer, qint16(15));

        QVERIFY(!WriteQuestionSet(s, FileBaseOf(legacy)));
        const QString converted = dir_.filePath(QStringLiteral("Old.QZ2"));
        const QByteArray bytes = read(converted);
        QVERIFY(bytes.contains("Answer0=A red-breasted bird.\r\nQuestion0=What is a robin?\r\n"));
        QVERIFY(bytes.endsWith("Answer=It hoots at night.\r\nQuestion=What is an owl?\r\n"));
        QCOMPARE(read(legacy), before);
    }

    void roundTripsEveryText_data()
    {
        QTest::addColumn<bool>("eightBit");
        QTest::newRow("8-bit code page texts") << true;
        QTest::newRow("any Unicode texts") << false;
    }
    void roundTripsEveryText()
    {
        QFETCH(bool, eightBit);
        QRandomGenerator rng(eightBit ? 1252 : 8);
        for (int n = 0; n < 30; ++n) {
            QuestionSet s;
            s.Description = randomText(rng, eightBit);
            for (int r = 0; r < 3; ++r) {
                for (int c = 0; c < 6; ++c) {
                    CategoryEntry &e = s.Categories[size_t(r)][size_t(c)];
                    e.Title = randomText(rng, eightBit);
                    for (int j = 0; j < 5; ++j) {
                        e.Answer[size_t(j)] = randomText(rng, eightBit);
                        e.Question[size_t(j)] = randomText(rng, eightBit);
                    }
                }
            }
            const QString path = dir_.filePath(QStringLiteral("random%1.QZ2").arg(n));
            QVERIFY(!WriteQuestionSet(s, path));
            const QByteArray bytes = read(path);
            if (eightBit)
                QVERIFY(!bytes.startsWith(Utf8::kByteOrderMark));
            QString where;
            QVERIFY2(sameTexts(s, LoadQuestionSet(path), &where), qPrintable(where));
        }
    }

    void writesUtf8WhenEightBitsWouldReadBackWrong()
    {
        QuestionSet s = distinctSet();
        s.Description = QStringLiteral("Ã© looks like UTF-8 in 8 bits");
        const QString path = dir_.filePath(QStringLiteral("tricky.QZ2"));
        QVERIFY(!WriteQuestionSet(s, path));
        QVERIFY(read(path).startsWith(Utf8::kByteOrderMark));
        QCOMPARE(LoadQuestionSet(path).Description, s.Description);
        QCOMPARE(GameReads::Description(path), s.Description);
    }

    void qz2GetPrintsTheReadValue()
    {
        const QString path = write(QStringLiteral("get.QZ2"), "[Round1]\r\nDescription= \"Caf\xe9 set\" \r\n");
        QByteArray out;
        QCOMPARE(runQz2({QStringLiteral("get"), path, QStringLiteral("round1"), QStringLiteral("DESCRIPTION"),
                         QStringLiteral("-NONE-")},
                        &out),
                 0);
        QCOMPARE(QString::fromUtf8(out), QStringLiteral("Café set\n"));
        QCOMPARE(runQz2({QStringLiteral("get"), path, QStringLiteral("Round2"), QStringLiteral("Category0"),
                         QStringLiteral("-NONE-")},
                        &out),
                 0);
        QCOMPARE(out, QByteArray("-NONE-\n"));
        // A missing file gives the default as the read returns it, cut to
        // 1999 characters, with a warning beside it.
        QByteArray err;
        const QString longDefault(2500, QLatin1Char('d'));
        QCOMPARE(runQz2({QStringLiteral("get"), dir_.filePath(QStringLiteral("absent.QZ2")), QStringLiteral("A"),
                         QStringLiteral("k"), longDefault},
                        &out, &err),
                 0);
        QCOMPARE(out, QByteArray(1999, 'd') + '\n');
        QVERIFY(err.contains("absent.QZ2"));
    }

    void qz2ShowPrintsTheLoadedSetAsJson()
    {
        const QString path = write(QStringLiteral("show.QZ2"),
                                   crlf({QStringLiteral("[Round1]"), QStringLiteral("Description=Say \"hi\""),
                                         QStringLiteral("Timer=7.5"), QStringLiteral("Category0=Only"), QString(),
                                         QStringLiteral("[Round1Category0]"), QStringLiteral("Answer0=a0"),
                                         QStringLiteral("Question0=q0"), QString(), QStringLiteral("[Final]"),
                                         QStringLiteral("Category=F"), QStringLiteral("Answer=fa"),
                                         QStringLiteral("Question=fq")}));
        QByteArray out;
        QCOMPARE(runQz2({QStringLiteral("show"), path}, &out), 0);
        QCOMPARE(out, QByteArray("{\"description\": \"Say \\\"hi\\\"\", \"timer\": 8, \"roundCount\": 1, "
                                 "\"categoryCount\": [1], \"rounds\": [[{\"title\": \"Only\", "
                                 "\"answers\": [\"a0\", \"Nothing\", \"Nothing\", \"Nothing\", \"Nothing\"], "
                                 "\"questions\": [\"q0\", \"Nothing\", \"Nothing\", \"Nothing\", \"Nothing\"]}]], "
                                 "\"final\": {\"title\": \"F\", \"answer\": \"fa\", \"question\": \"fq\"}}\n"));
    }

    void qz2PrintsTheHostSheet()
    {
        QuestionSet set = distinctSet();
        set.Categories[1][5].Answer[4] = QStringLiteral("Fish & <chips>");
        QVERIFY(!WriteQuestionSet(set, dir_.filePath(QStringLiteral("sheet.QZ2"))));
        const QString pdf = dir_.filePath(QStringLiteral("sheet.pdf"));
        QByteArray out;
        QCOMPARE(runQz2({QStringLiteral("sheet"), dir_.filePath(QStringLiteral("sheet.QZ2")), pdf}, &out), 0);
        QVERIFY(read(pdf).startsWith("%PDF"));
        // The PDF's own text, page by page, as poppler reads it.
        auto pages = [&](int first, int last) {
            QProcess p;
            p.start(QStringLiteral("pdftotext"), {QStringLiteral("-f"), QString::number(first), QStringLiteral("-l"),
                                                  QString::number(last), pdf, QStringLiteral("-")});
            p.waitForFinished(20000);
            return QString::fromUtf8(p.readAllStandardOutput()).simplified();
        };
        const QString all = pages(1, 99);
        for (const QString &text : {set.Description, QStringLiteral("Round 1"), QStringLiteral("Round 2"), QStringLiteral("Final"),
                                    QStringLiteral("R0C0 title"), QStringLiteral("clue 0.0.0 = yes"), QStringLiteral("What is 1.5.4?"),
                                    QStringLiteral("$1000"), QStringLiteral("Fish & <chips>"), QStringLiteral("R2C0 title")})
            QVERIFY2(all.contains(text), qPrintable(text));
        QVERIFY(!pages(1, 1).contains(QStringLiteral("Round 2"))); // each round from a new page
        QCOMPARE(HostSheetPaper(QLocale(QLocale::English, QLocale::UnitedStates)), QPageSize::Letter);
        QCOMPARE(HostSheetPaper(QLocale(QLocale::German, QLocale::Germany)), QPageSize::A4);
        QCOMPARE(runQz2({QStringLiteral("sheet"), dir_.filePath(QStringLiteral("absent.QZ2")), pdf}, &out), 1);
    }

    // A clue and its response stay on one page, and a category's title
    // never stands alone at a page's foot, however long the clues run.
    void theSheetKeepsEachClueOnOnePage()
    {
        QuestionSet set = distinctSet();
        for (int r = 0; r < 2; ++r) {
            for (int c = 0; c < 6; ++c) {
                for (int j = 0; j < 5; ++j) {
                    const QString id = QStringLiteral("%1%2%3").arg(r).arg(c).arg(j);
                    set.Categories[size_t(r)][size_t(c)].Answer[size_t(j)] =
                        QStringLiteral("start%1 ").arg(id) + QStringLiteral("words and more words ").repeated((c * 5 + j) % 13) +
                        QStringLiteral("end%1").arg(id);
                    set.Categories[size_t(r)][size_t(c)].Question[size_t(j)] = QStringLiteral("response%1").arg(id);
                }
            }
        }
        const QString pdf = dir_.filePath(QStringLiteral("long.pdf"));
        QVERIFY(!WriteHostSheet(set, pdf, QPageSize::A4));
        QProcess p;
        p.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), pdf, QStringLiteral("-")});
        QVERIFY(p.waitForFinished(20000));
        const QStringList pages = QString::fromUtf8(p.readAllStandardOutput()).split(QLatin1Char('\f'));
        QVERIFY(pages.size() > 4);
        for (int r = 0; r < 2; ++r) {
            for (int c = 0; c < 6; ++c) {
                for (int j = 0; j < 5; ++j) {
                    const QString id = QStringLiteral("%1%2%3").arg(r).arg(c).arg(j);
                    const auto onPage = [&](const QString &word) {
                        for (int page = 0; page < pages.size(); ++page) {
                            if (pages[page].contains(word))
                                return page;
                        }
                        return -1;
                    };
                    const int page = onPage(QStringLiteral("start") + id);
                    QVERIFY(page >= 0);
                    QCOMPARE(onPage(QStringLiteral("end") + id), page);
                    QCOMPARE(onPage(QStringLiteral("response") + id), page);
                }
            }
        }
        for (const QString &page : pages) {
            const QStringList lines = page.trimmed().split(QLatin1Char('\n'));
            QVERIFY2(!lines.last().trimmed().endsWith(QStringLiteral(" title")), qPrintable(lines.last()));
        }
    }

    void qz2ConvertsALegacyFile()
    {
        const QString legacy = write(QStringLiteral("Conv.QZA"),
                                     crlf({QStringLiteral("[Round1]"), QStringLiteral("Description=d"),
                                           QStringLiteral("Category0=C"), QString(), QStringLiteral("[Round1Category0]"),
                                           QStringLiteral("Answer0=response"), QStringLiteral("Question0=clue")}));
        QByteArray out;
        QCOMPARE(runQz2({QStringLiteral("convert"), legacy}, &out), 0);
        const QString converted = dir_.filePath(QStringLiteral("Conv.QZ2"));
        QCOMPARE(QString::fromUtf8(out), QStringLiteral("wrote ") + converted + QLatin1Char('\n'));
        QVERIFY(read(converted).contains("Answer0=clue\r\nQuestion0=response\r\n"));
        QCOMPARE(runQz2({QStringLiteral("convert"), legacy, dir_.filePath(QStringLiteral("Other"))}), 0);
        QVERIFY(QFile::exists(dir_.filePath(QStringLiteral("Other.QZ2"))));
        QCOMPARE(runQz2({QStringLiteral("convert"), legacy, dir_.filePath(QStringLiteral("none/x"))}), 1);
    }

    void qz2ChecksWhatTheGameMakesOfAFile()
    {
        const QString partial = write(QStringLiteral("Partial.QZ2"),
                                      crlf({QStringLiteral("[Round1]"), QStringLiteral("Description=Half done"),
                                            QStringLiteral("Timer=2.5"), QStringLiteral("Category0=A"),
                                            QStringLiteral("Category1="), QStringLiteral("Category2=C"), QString(),
                                            QStringLiteral("[Round1Category0]"), QStringLiteral("Answer0=a"),
                                            QStringLiteral("Question0=q")}));
        QByteArray out;
        QCOMPARE(runQz2({QStringLiteral("check"), partial}, &out), 0);
        const QString text = QString::fromUtf8(out);
        QVERIFY2(text.contains(QStringLiteral("Partial.QZ2: playable")), qPrintable(text));
        QVERIFY(text.contains(QStringLiteral("answer time: 2.5 s")));
        QVERIFY(text.contains(QStringLiteral("round 1: played, empty columns 2, 4, 5, 6")));
        QVERIFY(text.contains(QStringLiteral("round 2: skipped: no Category0 in [Round2]")));
        QVERIFY(text.contains(QStringLiteral("final: skipped")));
        QVERIFY(text.contains(QStringLiteral("missing: [Round1Category0] Answer1 (the screen shows \"Answer1\")")));
        QVERIFY(text.contains(QStringLiteral("missing: [Round1Category2] Question4")));
        QVERIFY(!text.contains(QStringLiteral("[Round1Category1]")));

        const QString noSet = write(QStringLiteral("NoSet.QZ2"), "[Round1]\r\nCategory0=A\r\n");
        QCOMPARE(runQz2({QStringLiteral("check"), noSet}, &out), 1);
        QVERIFY(out.contains("not listed"));
        const QString empty = write(QStringLiteral("Empty.QZ2"), "[Round1]\r\nDescription=\r\n");
        QCOMPARE(runQz2({QStringLiteral("check"), empty}, &out), 1);
        QVERIFY(out.contains("nothing to play"));
        QCOMPARE(runQz2({QStringLiteral("check"), partial, dir_.filePath(QStringLiteral("gone.QZ2"))}), 1);
    }

    void qz2RefusesBadArguments()
    {
        QByteArray out, err;
        QCOMPARE(runQz2({}, &out, &err), 2);
        QVERIFY(err.startsWith("usage: qz2 "));
        QVERIFY(out.isEmpty());
        QCOMPARE(runQz2({QStringLiteral("--version"), QStringLiteral("x")}), 2);
        QCOMPARE(runQz2({QStringLiteral("--help"), QStringLiteral("get")}), 2);
        QCOMPARE(runQz2({QStringLiteral("get"), QStringLiteral("a")}), 2);
        QCOMPARE(runQz2({QStringLiteral("frobnicate"), QStringLiteral("a")}), 2);
        QCOMPARE(runQz2({QStringLiteral("show"), dir_.filePath(QStringLiteral("absent.QZ2"))}, nullptr, &err), 1);
        QVERIFY(err.contains("cannot read"));
    }

    void qz2AnswersHelpAndVersion()
    {
        QByteArray out, err;
        QCOMPARE(runQz2({QStringLiteral("--help")}, &out, &err), 0);
        QVERIFY(err.isEmpty());
        QVERIFY(out.startsWith("usage: qz2 "));
        for (const char *command : {"get", "show", "convert", "check", "sheet", "import", "export"})
            QVERIFY2(out.contains(QByteArray("\n  ") + command + ' '), command);
        QVERIFY(out.contains("--version"));
        QCOMPARE(runQz2({QStringLiteral("--version")}, &out, &err), 0);
        QCOMPARE(out, QByteArray("qz2 " QUIZZARR_VERSION "\n"));
        QVERIFY(err.isEmpty());
    }

    void sampleSetsAreAllPlayable()
    {
        const QStringList sets = QDir(QStringLiteral(QUIZZARR_PROGRAM_DIR)).entryList({QStringLiteral("*.QZ2")});
        QVERIFY(sets.size() >= 5);
        bool twoFullRounds = false, oneRound = false, fewerThanSix = false;
        for (const QString &name : sets) {
            const QString path = programFile(name.toUtf8().constData());
            QCOMPARE(runQz2({QStringLiteral("check"), path}), 0);
            const QuestionSet s = LoadQuestionSet(path);
            QVERIFY2(GameReads::RoundExists(path, 3), qPrintable(name));
            twoFullRounds |= s.RoundCount == 2 && s.CategoryCount[0] == 6 && s.CategoryCount[1] == 6;
            oneRound |= s.RoundCount == 1;
            fewerThanSix |= s.CategoryCount[0] < 6;
            for (int r = 0; r < s.RoundCount; ++r) {
                for (int c = 0; c < s.CategoryCount[size_t(r)]; ++c) {
                    for (const QString &clue : s.Categories[size_t(r)][size_t(c)].Answer)
                        QVERIFY2(clue.size() <= 200, qPrintable(name + QStringLiteral(": ") + clue));
                }
            }
            QVERIFY(QuestionSetFileBytes(s) == read(path)); // written exactly as the editor would
        }
        QVERIFY(twoFullRounds && oneRound && fewerThanSix);
    }
};

QTEST_MAIN(TestQuestions)
#include "test_questions.moc"
