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

// A command line, its words parted by blanks.
QStringList words(const char *line)
{
    return QString::fromUtf8(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace

class TestQuestions : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;

    QString write(const QString &name, const QByteArray &bytes) { return writeFile(dir_.filePath(name), bytes); }

    QByteArray read(const QString &path) { return readFile(path); }

private slots:
    void readsOneValueByTheRules_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("section");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("expected");
        // Small files in tests/data/ini, each beside what reads of it give,
        // a line each: section, key and value, parted by tabs ("DEFAULT":
        // none); their names say the rule.
        const QDir ini(QStringLiteral(QUIZZARR_TEST_DATA "/ini"));
        for (const QString &name : ini.entryList({QStringLiteral("*.ini")})) {
            const QByteArray content = readFile(ini.filePath(name));
            for (const QString &line : QString::fromUtf8(readFile(ini.filePath(name + QStringLiteral(".reads")))).split(
                     QLatin1Char('\n'), Qt::SkipEmptyParts)) {
                const QStringList read = line.split(QLatin1Char('\t'));
                QTest::addRow("%s: %s %s", qPrintable(name), qPrintable(read[0]), qPrintable(read[1]))
                    << content << read[0] << read[1] << read.value(2);
            }
        }
        QTest::newRow("NUL bytes") << QByteArray("[A]\r\nk=a\0b\r\n", 11) << "A" << "k" << QString::fromUtf8("a\0b", 3);
        // Lines of any length.
        const QByteArray blanks(70000, ' ');
        const QByteArray tabs(70000, '\t');
        const QByteArray letters(70000, 'x');
        QTest::newRow("long section line ends the section")
            << "[A]\r\n[" + letters + "]\r\nk=v\r\n" << "A" << "k" << "DEFAULT";
        QTest::newRow("section name between long blanks")
            << "[A]\r\nk=a\r\n[" + blanks + "B" + tabs + "]\r\nk=b\r\n" << "B" << "k" << "b";
        QTest::newRow("long line without ] is no section")
            << "[A]\r\n[" + letters + "\r\nk=v\r\n" << "A" << "k" << "v";
        QTest::newRow("key after long blanks") << "[A]\r\n" + blanks + "k=v\r\n" << "A" << "k" << "v";
        QTest::newRow("long key is another key")
            << "[A]\r\n" + letters + "k=w\r\nk=v\r\n" << "A" << "k" << "v";
        QTest::newRow("value after long blanks") << "[A]\r\nk=" + blanks + "v" + tabs + "\r\n" << "A" << "k" << "v";
        QTest::newRow("quoted value between long blanks")
            << "[A]\r\nk=" + blanks + "\"v\"" + blanks << "A" << "k" << "v";
        QTest::newRow("long blanks inside a value are kept")
            << "[A]\r\nk=a" + blanks + "b\r\n" << "A" << "k" << QStringLiteral("a") + QString(1998, QLatin1Char(' '));
        QTest::newRow("long quoted value loses its opening mark")
            << "[A]\r\nk='" + letters + "'\r\n" << "A" << "k" << QString(1999, QLatin1Char('x'));
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

    void editorReaderCutsValuesAt1999Characters()
    {
        const QString path = write(QStringLiteral("long.QZ2"), "[A]\r\nk=" + QByteArray(2500, 'x') + "\r\n");
        QCOMPARE(ReadIniValue(QStringLiteral("A"), QStringLiteral("k"), QString(), path).size(), 1999);
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

    void writesTwoFullRoundsIn166Lines()
    {
        const QuestionSet s = distinctSet();
        const QByteArray bytes = QuestionSetFileBytes(s);
        QCOMPARE(bytes.count("\r\n"), 166);
        QCOMPARE(bytes.count('\n'), 166);
        QVERIFY(bytes.endsWith("Question=What is 2.0.0?\r\n"));
        QVERIFY(bytes.contains("\r\n\r\n[Round2]\r\nCategory0=R1C0 title\r\n"));
        QVERIFY(!bytes.contains("R2C1"));
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

    // The host's sheet from qz2: every title, clue and value in the PDF's
    // own text, each round from a new page, a clue and its response on one
    // page and no category's title alone at a page's foot, however long the
    // clues run; the paper the locale uses.
    void qz2PrintsTheHostSheet()
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
        set.Categories[1][5].Answer[4] = QStringLiteral("Fish & <chips> start154 end154");
        QVERIFY(!WriteQuestionSet(set, dir_.filePath(QStringLiteral("sheet.QZ2"))));
        const QString pdf = dir_.filePath(QStringLiteral("sheet.pdf"));
        QByteArray out;
        QCOMPARE(runQz2({QStringLiteral("sheet"), dir_.filePath(QStringLiteral("sheet.QZ2")), pdf}, &out), 0);
        QCOMPARE(runQz2({QStringLiteral("sheet"), dir_.filePath(QStringLiteral("absent.QZ2")), pdf}, &out), 1);
        QProcess p;
        p.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), pdf, QStringLiteral("-")});
        QVERIFY(p.waitForFinished(20000));
        const QStringList pages = QString::fromUtf8(p.readAllStandardOutput()).split(QLatin1Char('\f'));
        QVERIFY(pages.size() > 4);
        const QString all = pages.join(QLatin1Char(' ')).simplified();
        for (const QString &text : {set.Description, QStringLiteral("Round 1"), QStringLiteral("Round 2"), QStringLiteral("Final"),
                                    QStringLiteral("R0C0 title"), QStringLiteral("$1000"), QStringLiteral("Fish & <chips>"),
                                    QStringLiteral("R2C0 title"), QStringLiteral("clue 2.0.0 = yes"), QStringLiteral("What is 2.0.0?")})
            QVERIFY2(all.contains(text), qPrintable(text));
        const auto onPage = [&](const QString &word) {
            for (int page = 0; page < pages.size(); ++page) {
                if (pages[page].contains(word))
                    return page;
            }
            return -1;
        };
        QVERIFY(onPage(QStringLiteral("Round 2")) > onPage(QStringLiteral("end054")));
        for (int r = 0; r < 2; ++r) {
            for (int c = 0; c < 6; ++c) {
                for (int j = 0; j < 5; ++j) {
                    const QString id = QStringLiteral("%1%2%3").arg(r).arg(c).arg(j);
                    const int page = onPage(QStringLiteral("start") + id);
                    QVERIFY(page >= 0);
                    QCOMPARE(onPage(QStringLiteral("end") + id), page);
                    QCOMPARE(onPage(QStringLiteral("response") + id), page);
                }
            }
        }
        for (const QString &page : pages)
            QVERIFY2(!page.trimmed().split(QLatin1Char('\n')).last().trimmed().endsWith(QStringLiteral(" title")), qPrintable(page));
        QCOMPARE(HostSheetPaper(QLocale(QLocale::English, QLocale::UnitedStates)), QPageSize::Letter);
        QCOMPARE(HostSheetPaper(QLocale(QLocale::German, QLocale::Germany)), QPageSize::A4);
    }

    void qz2ConvertsALegacyFile()
    {
        const QString legacy = write(QStringLiteral("Conv.QZA"),
                                     crlf({QStringLiteral("[Round1]"), QStringLiteral("Description=d"),
                                           QStringLiteral("Category0=C"), QString(), QStringLiteral("[Round1Category0]"),
                                           QStringLiteral("Answer0=response"), QStringLiteral("Question0=clue"), QString(),
                                           QStringLiteral("[Final]"), QStringLiteral("Category=F"),
                                           QStringLiteral("Answer=fq"), QStringLiteral("Question=fa")}));
        QByteArray out;
        QCOMPARE(runQz2({QStringLiteral("convert"), legacy}, &out), 0);
        const QString converted = dir_.filePath(QStringLiteral("Conv.QZ2"));
        QCOMPARE(QString::fromUtf8(out), QStringLiteral("wrote ") + converted + QLatin1Char('\n'));
        QVERIFY(read(converted).contains("Answer0=clue\r\nQuestion0=response\r\n"));
        QVERIFY(read(converted).endsWith("Answer=fa\r\nQuestion=fq\r\n"));
        QCOMPARE(read(legacy).count("Answer"), 2); // the old file as it was
        QCOMPARE(runQz2({QStringLiteral("convert"), legacy, dir_.filePath(QStringLiteral("Other"))}), 0);
        QVERIFY(QFile::exists(dir_.filePath(QStringLiteral("Other.QZ2"))));
        QCOMPARE(runQz2({QStringLiteral("convert"), legacy, dir_.filePath(QStringLiteral("none/x"))}), 1);
    }

    // The tool's commands: each row writes its input to in.QZ2, runs qz2
    // with "{in}" and "{dir}" filled in, and checks the exit status, the
    // whole output when one is given (a null one is not checked), and
    // pieces of the output and the errors: "^" starts the text, "!" must
    // not be in it, and an empty piece means no text at all.
    void qz2Commands_data()
    {
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("out");
        QTest::addColumn<QByteArrayList>("outHas");
        QTest::addColumn<QByteArrayList>("errHas");
        const QByteArray cafe = "[Round1]\r\nDescription= \"Caf\xe9 set\" \r\n";
        const QByteArray partial = "[Round1]\r\nDescription=Half done\r\nTimer=2.5\r\nCategory0=A\r\nCategory1=\r\n"
                                   "Category2=C\r\n\r\n[Round1Category0]\r\nAnswer0=a\r\nQuestion0=q\r\n";
        const QByteArray show = "[Round1]\r\nDescription=Say \"hi\"\r\nTimer=7.5\r\nCategory0=Only\r\n\r\n[Round1Category0]\r\n"
                                "Answer0=a0\r\nQuestion0=q0\r\n\r\n[Final]\r\nCategory=F\r\nAnswer=fa\r\nQuestion=fq\r\n";
        const QByteArrayList none;
        QTest::newRow("get") << cafe << words("get {in} round1 DESCRIPTION -NONE-") << 0
                             << QByteArray("Café set\n") << none << QByteArrayList{""};
        QTest::newRow("get a missing key") << cafe << words("get {in} Round2 Category0 -NONE-") << 0
                                           << QByteArray("-NONE-\n") << none << none;
        QTest::newRow("get from an absent file: the default, cut")
            << QByteArray() << (words("get {dir}/absent.QZ2 A k") << QString(2500, QLatin1Char('d'))) << 0
            << QByteArray(1999, 'd') + '\n' << none << QByteArrayList{"absent.QZ2"};
        QTest::newRow("show") << show << words("show {in}") << 0
                              << QByteArray("{\"description\": \"Say \\\"hi\\\"\", \"timer\": 8, \"roundCount\": 1, "
                                            "\"categoryCount\": [1], \"rounds\": [[{\"title\": \"Only\", "
                                            "\"answers\": [\"a0\", \"Nothing\", \"Nothing\", \"Nothing\", \"Nothing\"], "
                                            "\"questions\": [\"q0\", \"Nothing\", \"Nothing\", \"Nothing\", \"Nothing\"]}]], "
                                            "\"final\": {\"title\": \"F\", \"answer\": \"fa\", \"question\": \"fq\"}}\n")
                              << none << none;
        QTest::newRow("check a half-made set") << partial << words("check {in}") << 0 << QByteArray()
            << QByteArrayList{"in.QZ2: playable", "answer time: 2.5 s", "round 1: played, empty columns 2, 4, 5, 6",
                              "round 2: skipped: no Category0 in [Round2]", "final: skipped",
                              "missing: [Round1Category0] Answer1 (the screen shows \"Answer1\")",
                              "missing: [Round1Category2] Question4", "![Round1Category1]"}
            << none;
        QTest::newRow("check a file the list leaves out") << QByteArray("[Round1]\r\nCategory0=A\r\n")
                                                          << words("check {in}") << 1 << QByteArray()
                                                          << QByteArrayList{"not listed"} << none;
        QTest::newRow("check a set with nothing to play") << QByteArray("[Round1]\r\nDescription=\r\n")
                                                          << words("check {in}") << 1 << QByteArray()
                                                          << QByteArrayList{"nothing to play"} << none;
        QTest::newRow("check one good, one gone") << partial << words("check {in} {dir}/absent.QZ2") << 1 << QByteArray()
                                                  << none << none;
        QTest::newRow("no command") << QByteArray() << QStringList() << 2 << QByteArray("") << none
                                    << QByteArrayList{"^usage: qz2 "};
        for (const char *args : {"--version x", "--help get", "get a", "frobnicate a"})
            QTest::newRow(args) << QByteArray() << words(args) << 2 << QByteArray() << none << none;
        QTest::newRow("show an absent file") << QByteArray() << words("show {dir}/absent.QZ2") << 1 << QByteArray()
                                             << none << QByteArrayList{"cannot read"};
        QTest::newRow("--help") << QByteArray() << words("--help") << 0 << QByteArray()
            << QByteArrayList{"^usage: qz2 ", "\n  get ", "\n  show ", "\n  convert ", "\n  check ", "\n  sheet ",
                              "\n  import ", "\n  export ", "--version"}
            << QByteArrayList{""};
        QTest::newRow("--version") << QByteArray() << words("--version") << 0 << QByteArray("qz2 " QUIZZARR_VERSION "\n")
                                   << none << QByteArrayList{""};
    }
    void qz2Commands()
    {
        QFETCH(QByteArray, input);
        QFETCH(QStringList, args);
        QFETCH(int, status);
        QFETCH(QByteArray, out);
        QFETCH(QByteArrayList, outHas);
        QFETCH(QByteArrayList, errHas);
        const QString in = write(QStringLiteral("in.QZ2"), input);
        for (QString &a : args)
            a.replace(QStringLiteral("{in}"), in).replace(QStringLiteral("{dir}"), dir_.path());
        QByteArray gotOut, gotErr;
        QCOMPARE(runQz2(args, &gotOut, &gotErr), status);
        if (!out.isNull())
            QCOMPARE(gotOut, out);
        for (const auto &[got, pieces] : {std::pair{gotOut, outHas}, std::pair{gotErr, errHas}}) {
            for (const QByteArray &piece : pieces) {
                if (piece.isEmpty())
                    QVERIFY2(got.isEmpty(), got.constData());
                else if (piece.startsWith('^'))
                    QVERIFY2(got.startsWith(piece.mid(1)), got.constData());
                else
                    QVERIFY2(got.contains(piece.mid(piece.startsWith('!') ? 1 : 0)) != piece.startsWith('!'), piece.constData());
            }
        }
    }

    void sampleSetsAreAllPlayable()
    {
        const QStringList sets = QDir(QStringLiteral(QUIZZARR_PROGRAM_DIR)).entryList({QStringLiteral("*.QZ2")});
        QVERIFY(sets.size() >= 5);
        bool twoFullRounds = false, oneRound = false, fewerThanSix = false;
        for (const QString &name : sets) {
            const QString path = programFile(name);
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
