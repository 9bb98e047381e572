// Playing a game on the real board, with the fake clock, scripted message
// boxes and the fake sound library: round set-up, tile presses, the answer
// screen's steps, daily doubles, the final, scoring keys, the end.

#include "FakeClock.h"
#include "FakeSoundControl.h"
#include "ScriptedMsgBox.h"

#include "board/ShadowLabel.h"
#include "game/GameRules.h"
#include "game/GameState.h"
#include "game/frmMain.h"
#include "platform/CaptionControl.h"
#include "platform/ModuleFileName.h"
#include "shell/basDetectDevEnv.h"

#include <QKeyEvent>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

namespace {

const Qt::KeyboardModifiers kAllThree = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;

// A set whose rounds hold the given column titles ("" for an empty column,
// nullptr for a missing key); texts are "r<round>c<col>a<row>" and
// "r<round>c<col>q<row>".
QByteArray setText(const QList<const char *> &round1, const QList<const char *> &round2, const char *final)
{
    QByteArray s = "[Round1]\r\nDescription=test\r\nTimer=10\r\n";
    auto round = [&](int n, const QList<const char *> &titles) {
        if (n == 2)
            s += "[Round2]\r\n";
        for (int c = 0; c < titles.size(); ++c) {
            if (titles[c])
                s += "Category" + QByteArray::number(c) + "=" + titles[c] + "\r\n";
        }
        for (int c = 0; c < 6; ++c) {
            s += "[Round" + QByteArray::number(n) + "Category" + QByteArray::number(c) + "]\r\n";
            for (int j = 0; j < 5; ++j) {
                const QByteArray id = "r" + QByteArray::number(n) + "c" + QByteArray::number(c);
                s += "Answer" + QByteArray::number(j) + "=" + id + "a" + QByteArray::number(j) + "\r\n";
                s += "Question" + QByteArray::number(j) + "=" + id + "q" + QByteArray::number(j) + "\r\n";
            }
        }
    };
    if (!round1.isEmpty())
        round(1, round1);
    if (!round2.isEmpty())
        round(2, round2);
    if (final)
        s += QByteArray("[Final]\r\nCategory=") + final + "\r\nAnswer=final clue\r\nQuestion=final response\r\n";
    return s;
}

void sendKey(QWidget *w, int key, Qt::KeyboardModifiers m = Qt::NoModifier, quint32 scanCode = 0)
{
    QKeyEvent e(QEvent::KeyPress, key, m, scanCode, 0, 0);
    QCoreApplication::sendEvent(w, &e);
}

// X11 scan code of digit d on the main keyboard's row.
quint32 digitCode(int d)
{
    return d == 0 ? 19 : 9 + quint32(d);
}

} // namespace

class TestGame : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    std::unique_ptr<FakeClock> clock_;
    std::unique_ptr<ScriptedMsgBox> boxes_;
    std::unique_ptr<FakeSoundControl> sound_;
    QPointer<frmMain> board_;

    void compiled(bool on)
    {
        ModuleFileName::overridePath(on ? ModuleFileName::programFolder() + ModuleFileName::gameExecutableName()
                                        : QString());
        basDetectDevEnv::ForgetRunMode();
    }

    frmMain *start(const QByteArray &set, int teams)
    {
        const QString path = dir_.filePath(QStringLiteral("game.QZ2"));
        QFile f(path);
        f.open(QIODevice::WriteOnly | QIODevice::Truncate);
        f.write(set);
        f.close();
        basPLOVQuzr::QuestionFile = path;
        board_ = new frmMain;
        board_->Teams = qint16(teams);
        board_->PrepareTeamLabels(teams);
        basPLOVQuzr::Scores.fill(0);
        board_->resize(1024, 768);
        board_->show();
        basPLOVQuzr::Round = 1;
        board_->SetUpRound();
        return board_;
    }

    // A press as the host makes it: after the 3-second lock.
    void press(CaptionControl *control, Qt::KeyboardModifiers m = Qt::NoModifier)
    {
        clock_->advance(3000);
        emit control->pressed(Qt::LeftButton, m);
    }
    void pressTile(int i, Qt::KeyboardModifiers m = Qt::NoModifier) { press(board_->vseQuestion[size_t(i)], m); }
    void pressScreen() { press(board_->vseTV); }

    // Plays a tile through: answer, question, close.
    void playTile(int i)
    {
        pressTile(i);
        const bool daily = i == basPLOVQuzr::DailyDouble1 || i == basPLOVQuzr::DailyDouble2;
        if (daily)
            pressScreen();
        pressScreen();
        pressScreen();
    }

    QStringList played() const
    {
        QStringList sounds;
        for (const QString &call : sound_->calls()) {
            if (call.startsWith(QStringLiteral("PlaySound ")))
                sounds << call.mid(10);
        }
        return sounds;
    }

    const BoardState &state() const { return board_->game.state(); }

    // The answer screen's text, unwrapped.
    QString screenText() const { return board_->vseTV->caption().replace(QLatin1Char('\n'), QLatin1Char(' ')); }

private slots:
    void initTestCase() { QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans")); }

    void init()
    {
        clock_ = std::make_unique<FakeClock>(7);
        boxes_ = std::make_unique<ScriptedMsgBox>();
        sound_ = std::make_unique<FakeSoundControl>();
        clock_->onAdvance = [this](int ms) { sound_->advance(ms); };
        compiled(true);
    }

    void cleanup()
    {
        delete board_.data();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        sound_.reset();
        boxes_.reset();
        clock_.reset();
        compiled(false);
    }

    void wholeGameWithoutScoring()
    {
        sound_->setClipLength(102, 3000);
        sound_->setClipLength(105, 30000);
        start(setText({"Rivers", "", "", "", "", ""}, {"", "", "Lakes", "", "", ""}, "Seas"), 0);
        QSignalSpy ended(board_.data(), &frmMain::unloaded);

        QCOMPARE(basPLOVQuzr::Round, qint16(1));
        QCOMPARE(basPLOVQuzr::TilesDone, qint16(25));
        QCOMPARE(state().headerCaption[0], QStringLiteral("Rivers"));
        QCOMPARE(board_->vseQuestion[24]->caption(), QStringLiteral("$500"));
        QCOMPARE(board_->vseQuestion[1]->caption(), QString());
        QCOMPARE(basPLOVQuzr::DailyDouble1, basPLOVQuzr::DailyDouble2); // one daily double only
        QCOMPARE(Tiles::column(basPLOVQuzr::DailyDouble1), 0);
        for (int row = 0; row < 5; ++row)
            playTile(row * 6);

        // No scoring: round 2 follows the last close at once.
        QCOMPARE(basPLOVQuzr::Round, qint16(2));
        QCOMPARE(board_->vseCategory[2]->caption(), QStringLiteral("Lakes"));
        QCOMPARE(board_->vseQuestion[2]->caption(), QStringLiteral("$200"));
        QCOMPARE(board_->vseQuestion[26]->caption(), QStringLiteral("$1000"));
        QCOMPARE(board_->vseCategory[0]->caption(), QString()); // round 1's title stays gone
        for (int row = 0; row < 5; ++row)
            playTile(row * 6 + 2);

        QCOMPARE(basPLOVQuzr::Round, qint16(3));
        QCOMPARE(basPLOVQuzr::TilesDone, qint16(29));
        QCOMPARE(state().stepCode, QStringLiteral("FC|-1"));
        pressScreen();
        QCOMPARE(board_->vseTV->caption(), QStringLiteral("Seas"));
        pressScreen();
        QCOMPARE(screenText(), QStringLiteral("final clue"));
        QCOMPARE(state().stepCode, QStringLiteral("SA|-1"));
        pressScreen();
        QCOMPARE(screenText(), QStringLiteral("final response"));
        pressScreen();

        QCOMPARE(ended.size(), 1);
        QVERIFY(boxes_->shown.isEmpty()); // no standings without scoring
        const QStringList sounds = played();
        QCOMPARE(sounds.first(), QStringLiteral("103"));
        QCOMPARE(sounds.count(QStringLiteral("101")), 2); // one daily double in each round
        QVERIFY(sounds.indexOf(QStringLiteral("102")) < sounds.lastIndexOf(QStringLiteral("103")));
        QCOMPARE(sounds.mid(sounds.size() - 3), QStringList({QStringLiteral("104"), QStringLiteral("105"),
                                                             QStringLiteral("106")}));
        QCOMPARE(sounds.count(QStringLiteral("102")), 1); // only after round 1
    }

    void wholeGameWithScoringMovesOnOnlyWhenAsked()
    {
        start(setText({"Rivers", "", "", "", "", ""}, {}, "Seas"), 3);
        for (int row = 0; row < 5; ++row) {
            playTile(row * 6);
            sendKey(board_, Qt::Key_2, Qt::NoModifier, digitCode(2));
        }
        QCOMPARE(basPLOVQuzr::TilesDone, qint16(30));
        QCOMPARE(basPLOVQuzr::Round, qint16(1)); // waiting for the host
        QVERIFY(played().contains(QStringLiteral("102")));
        // The daily double scores 100, the others their values.
        const int expected = 100 + 200 + 300 + 400 + 500 + 100 -
                             Tiles::value(basPLOVQuzr::DailyDouble1, 1);
        QCOMPARE(basPLOVQuzr::Scores[1], expected);
        QCOMPARE(board_->lblScore[1]->caption(), QStringLiteral("$ ") + FormatScore(expected));

        pressTile(13); // any blank tile: no round 2 here, so the final
        QCOMPARE(basPLOVQuzr::Round, qint16(3));
        pressScreen();
        pressScreen();
        pressScreen();
        pressScreen();
        sendKey(board_, Qt::Key_1, Qt::NoModifier, digitCode(1));
        QCOMPARE(basPLOVQuzr::Scores[0], 100);
        pressTile(0);
        QCOMPARE(boxes_->shown.size(), 1);
        QCOMPARE(boxes_->shown[0].caption, QStringLiteral("Scores"));
        QCOMPARE(boxes_->shown[0].style, 0);
        QVERIFY(boxes_->shown[0].text.startsWith(QStringLiteral("Team 2: $ ")));
        QVERIFY(board_.isNull() || board_->isUnloaded());
        QCOMPARE(played().last(), QStringLiteral("106"));
    }

    void answerScreenLocksForThreeSeconds()
    {
        start(setText({"Rivers", "Lakes", "", "", "", ""}, {}, nullptr), 0);
        int tile = 1;
        while (tile == basPLOVQuzr::DailyDouble1 || tile == basPLOVQuzr::DailyDouble2)
            tile += 6;
        pressTile(tile);
        QCOMPARE(board_->vseTV->caption(), QStringLiteral("r1c1a%1").arg(tile / 6));
        clock_->advance(2000);
        emit board_->vseTV->pressed(Qt::LeftButton, Qt::NoModifier);
        QCOMPARE(state().stepCode, MakeStepCode("SA", tile)); // too soon: ignored
        clock_->advance(1000);
        emit board_->vseTV->pressed(Qt::LeftButton, Qt::NoModifier);
        QCOMPARE(board_->vseTV->caption(), QStringLiteral("r1c1q%1").arg(tile / 6));
        // Outside the game's own executable there is no lock.
        compiled(false);
        emit board_->vseTV->pressed(Qt::LeftButton, Qt::NoModifier);
        QVERIFY(!board_->screenVisible());
    }

    void dailyDoubleShowsPictureThenAnswerAtValue100()
    {
        start(setText({"Rivers", "Lakes", "Seas", "", "", ""}, {}, nullptr), 2);
        const int dd = basPLOVQuzr::DailyDouble1;
        const QString value = Tiles::caption(dd, 1);
        QList<QString> captionsWhileZooming;
        clock_->onPause = [&](int) { captionsWhileZooming << board_->vseTV->caption(); };
        pressTile(dd);
        clock_->onPause = nullptr;
        QVERIFY(!captionsWhileZooming.isEmpty());
        for (const QString &c : captionsWhileZooming)
            QCOMPARE(c, QString()); // no value text while zooming
        QCOMPARE(state().stepCode, MakeStepCode("SQ", dd));
        QCOMPARE(state().CurrentValue, qint16(100));
        QCOMPARE(played().last(), QStringLiteral("101"));
        QVERIFY(!board_->lblValue->isVisible());
        pressScreen();
        QCOMPARE(state().stepCode, MakeStepCode("SA", dd));
        QCOMPARE(board_->vseTV->caption(), QStringLiteral("r1c%1a%2").arg(Tiles::column(dd)).arg(Tiles::row(dd)));
        QVERIFY(board_->lblValue->isVisible());
        QCOMPARE(board_->lblValue->caption(), value);
        QCOMPARE(board_->lblCategory->caption(), state().headerCaption[size_t(Tiles::column(dd))].isEmpty()
                                                     ? state().headerTag[size_t(Tiles::column(dd))]
                                                     : state().headerCaption[size_t(Tiles::column(dd))]);
        QCOMPARE(state().CurrentValue, qint16(100));
    }

    void finalIgnoresPressesDuringThinkMusic()
    {
        sound_->setClipLength(105, 30000);
        start(setText({}, {}, "Seas"), 1);
        QCOMPARE(basPLOVQuzr::Round, qint16(3));
        QCOMPARE(board_->vseTV->caption(), QString());
        QCOMPARE(state().stepCode, QStringLiteral("FC|-1"));
        pressScreen();
        QCOMPARE(state().stepCode, QStringLiteral("FQ|-1"));
        QCOMPARE(state().CurrentValue, qint16(100));
        QCOMPARE(played().last(), QStringLiteral("104"));

        // During the music: presses find "NO".
        int pressesDuringMusic = 0;
        clock_->onAdvance = [&](int ms) {
            sound_->advance(ms);
            if (clock_->elapsedMs() % 5000 < 15 && state().stepCode == QStringLiteral("NO")) {
                ++pressesDuringMusic;
                emit board_->vseTV->pressed(Qt::LeftButton, Qt::NoModifier);
            }
        };
        const qint64 before = clock_->elapsedMs();
        pressScreen();
        clock_->onAdvance = [this](int ms) { sound_->advance(ms); };
        QVERIFY(pressesDuringMusic >= 4);
        QVERIFY(clock_->elapsedMs() - before >= 30000);
        QCOMPARE(state().stepCode, QStringLiteral("SA|-1"));
        QCOMPARE(screenText(), QStringLiteral("final clue"));
        QVERIFY(!board_->tmrQuestion->isActive()); // no answer timer in the final
        pressScreen();
        QCOMPARE(screenText(), QStringLiteral("final response"));
    }

    void specialPressesPutTilesBackAndTakeThemOut()
    {
        start(setText({"Rivers", "", "Lakes", "", "", ""}, {}, nullptr), 0);
        QCOMPARE(basPLOVQuzr::TilesDone, qint16(20));
        // Take column 0 out tile by tile: its title goes with the last one.
        for (int row = 0; row < 5; ++row)
            pressTile(row * 6, kAllThree);
        QCOMPARE(basPLOVQuzr::TilesDone, qint16(25));
        QVERIFY(!board_->screenVisible());
        QCOMPARE(board_->vseCategory[0]->caption(), QString());
        QCOMPARE(board_->vseCategory[0]->tag(), QStringLiteral("Rivers"));
        // Putting any tile back brings the title back.
        pressTile(12, kAllThree);
        QCOMPARE(board_->vseQuestion[12]->caption(), QStringLiteral("$300"));
        QCOMPARE(board_->vseCategory[0]->caption(), QStringLiteral("Rivers"));
        QCOMPARE(board_->vseCategory[0]->tag(), QString());
        QCOMPARE(basPLOVQuzr::TilesDone, qint16(24));
        // An empty column's tiles cannot be put back.
        pressTile(7, kAllThree);
        QCOMPARE(board_->vseQuestion[7]->caption(), QString());
        QCOMPARE(basPLOVQuzr::TilesDone, qint16(24));
        // Taking the round's last tiles out never ends the round.
        pressTile(12, kAllThree);
        for (int row = 0; row < 5; ++row)
            pressTile(row * 6 + 2, kAllThree);
        QCOMPARE(basPLOVQuzr::TilesDone, qint16(30));
        QCOMPARE(basPLOVQuzr::Round, qint16(1));
        QCOMPARE(state().CurrentValue, qint16(0));
        // An opened tile put back can be played again.
        start(setText({"Rivers", "Lakes", "", "", "", ""}, {}, nullptr), 0);
        int tile = 0;
        while (tile == basPLOVQuzr::DailyDouble1 || tile == basPLOVQuzr::DailyDouble2)
            tile += 6;
        pressTile(tile);
        pressScreen();
        pressScreen();
        QCOMPARE(board_->vseQuestion[size_t(tile)]->caption(), QString());
        pressTile(tile, kAllThree);
        QCOMPARE(board_->vseQuestion[size_t(tile)]->caption(), Tiles::caption(tile, 1));
    }

    void lastTileOfAColumnStillShowsItsCategory()
    {
        start(setText({"Rivers", "Lakes", "Seas", "", "", ""}, {}, nullptr), 0);
        for (int row = 0; row < 4; ++row)
            pressTile(row * 6 + 2, kAllThree);
        pressTile(26);
        if (basPLOVQuzr::DailyDouble1 == 26 || basPLOVQuzr::DailyDouble2 == 26)
            pressScreen(); // from the picture to the answer
        QCOMPARE(board_->vseCategory[2]->caption(), QString());
        QCOMPARE(board_->lblCategory->caption(), QStringLiteral("Seas"));
    }

    void roundsAreSkippedWhenAbsentOrEmpty_data()
    {
        QTest::addColumn<QByteArray>("set");
        QTest::addColumn<int>("firstRound");
        QTest::newRow("no [Round2]: round 1 then the final")
            << setText({"A", "B", "C", "D", "E", "F"}, {}, "Z") << 1;
        QTest::newRow("[Round1] without Category0 is skipped")
            << setText({nullptr, "B", "C", "D", "E", "F"}, {"A", "B", "", "", "", ""}, "Z") << 2;
        QTest::newRow("an all-empty round is skipped")
            << setText({"", "", "", "", "", ""}, {"A", "", "", "", "", ""}, "Z") << 2;
        QTest::newRow("-NONE- titles count as empty")
            << setText({"-NONE-", "-NONE-", "", "", "", ""}, {}, "Z") << 3;
        QTest::newRow("only a final") << setText({}, {}, "Z") << 3;
    }
    void roundsAreSkippedWhenAbsentOrEmpty()
    {
        QFETCH(QByteArray, set);
        QFETCH(int, firstRound);
        start(set, 0);
        QCOMPARE(int(basPLOVQuzr::Round), firstRound);
        QVERIFY(!board_->isUnloaded());
        // SHIFT+CTRL+ALT+N walks on through what is left.
        const qint16 next = basPLOVQuzr::Round;
        if (next < 3) {
            sendKey(board_, Qt::Key_N, kAllThree);
            QCOMPARE(int(basPLOVQuzr::Round), set.contains("[Round2]") && next == 1 ? 2 : 3);
        }
    }

    void emptyCategory0KeepsTheRoundWithItsColumnEmpty()
    {
        start(setText({"", "B", "", "", "", ""}, {}, nullptr), 0);
        QCOMPARE(basPLOVQuzr::Round, qint16(1));
        QCOMPARE(basPLOVQuzr::TilesDone, qint16(25));
        QCOMPARE(board_->vseQuestion[0]->caption(), QString());
    }

    void setWithoutRoundsOrFinalEndsAtOnce()
    {
        start("[Round1]\r\nDescription=nothing to play\r\n", 2);
        QVERIFY(board_.isNull() || board_->isUnloaded());
        QCOMPARE(boxes_->shown.size(), 1);
        QCOMPARE(boxes_->shown[0].text, QStringLiteral("Team 2: $ 0  TIED\r\nTeam 1: $ 0"));
        QCOMPARE(played(), QStringList({QStringLiteral("106")}));
    }

    void endRoundKeyFromTheFinalShowsStandingsAndQuitKeyDoesNot()
    {
        start(setText({"A", "", "", "", "", ""}, {}, "Z"), 2);
        sendKey(board_, Qt::Key_N, kAllThree);
        QCOMPARE(basPLOVQuzr::Round, qint16(3));
        board_->hideScreen(); // keys count only while the board shows
        basPLOVQuzr::Scores[1] = 300;
        sendKey(board_, Qt::Key_N, kAllThree);
        QCOMPARE(boxes_->shown.size(), 1);
        QCOMPARE(boxes_->shown[0].text, QStringLiteral("Team 2: $ 300  WINNER\r\nTeam 1: $ 0"));

        start(setText({"A", "", "", "", "", ""}, {}, "Z"), 2);
        sound_->reset();
        QSignalSpy ended(board_.data(), &frmMain::unloaded);
        sendKey(board_, Qt::Key_Q, Qt::ShiftModifier | Qt::ControlModifier); // two of three: nothing
        QCOMPARE(ended.size(), 0);
        sendKey(board_, Qt::Key_Q, kAllThree);
        QCOMPARE(ended.size(), 1);
        QCOMPARE(boxes_->shown.size(), 1); // no second standings
        QVERIFY(!played().contains(QStringLiteral("106")));
        QVERIFY(sound_->calls().contains(QStringLiteral("Shutdown")));
    }

    void scoringKeysFollowTheirRules()
    {
        start(setText({"A", "B", "C", "", "", ""}, {}, nullptr), 3);
        sendKey(board_, Qt::Key_1, Qt::NoModifier, digitCode(1));
        QCOMPARE(basPLOVQuzr::Scores[0], 0); // no tile opened yet
        board_->game.state().CurrentValue = 400;
        sendKey(board_, Qt::Key_2, Qt::NoModifier, digitCode(2));
        sendKey(board_, Qt::Key_2, Qt::NoModifier, digitCode(2));
        QCOMPARE(basPLOVQuzr::Scores[1], 800);
        QCOMPARE(board_->lblScore[1]->caption(), QStringLiteral("$ 800"));
        QCOMPARE(board_->lblScore2[1]->caption(), QStringLiteral("$ 800"));
        sendKey(board_, Qt::Key_5, Qt::NoModifier, digitCode(5));
        sendKey(board_, Qt::Key_1, Qt::ControlModifier, digitCode(1));
        sendKey(board_, Qt::Key_1, Qt::AltModifier, digitCode(1));
        sendKey(board_, Qt::Key_1, Qt::KeypadModifier, 87);
        QCOMPARE(basPLOVQuzr::Scores[0], 0);
        QCOMPARE(basPLOVQuzr::Scores[4], 0);
        // SHIFT adds too, on any layout: the physical key counts.
        sendKey(board_, Qt::Key_Exclam, Qt::ShiftModifier, digitCode(1));  // US and UK: SHIFT+1 is "!"
        sendKey(board_, Qt::Key_At, Qt::ShiftModifier, digitCode(2));      // US: SHIFT+2 is "@"
        sendKey(board_, Qt::Key_QuoteDbl, Qt::ShiftModifier, digitCode(2)); // UK and German: '"'
        sendKey(board_, Qt::Key_2, Qt::ShiftModifier, digitCode(2));       // French: SHIFT gives the digit
        sendKey(board_, Qt::Key_Eacute, Qt::NoModifier, digitCode(2));     // French, unshifted: "é"
        QCOMPARE(basPLOVQuzr::Scores[0], 400);
        QCOMPARE(basPLOVQuzr::Scores[1], 800 + 4 * 400);
        // Keys on the answer screen are not handled.
        board_->vseTV->show();
        sendKey(board_, Qt::Key_3, Qt::NoModifier, digitCode(3));
        sendKey(board_, Qt::Key_Q, kAllThree);
        QCOMPARE(basPLOVQuzr::Scores[2], 0);
        QVERIFY(!board_->isUnloaded());
    }

    void keyRulesForTenTeams_data()
    {
        QTest::addColumn<int>("digit");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<int>("teams");
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("team");
        QTest::newRow("0 is team 10") << 0 << 0 << 10 << int(KeyAction::Score) << 10;
        QTest::newRow("0 with nine teams") << 0 << 0 << 9 << int(KeyAction::Swallow) << 0;
        QTest::newRow("SHIFT+1 adds") << 1 << 1 << 3 << int(KeyAction::Score) << 1;
        QTest::newRow("CTRL+1") << 1 << 2 << 3 << int(KeyAction::Nothing) << 0;
        QTest::newRow("no scoring") << 1 << 0 << 0 << int(KeyAction::Nothing) << 0;
        QTest::newRow("not a digit") << -1 << 0 << 3 << int(KeyAction::Nothing) << 0;
    }
    void keyRulesForTenTeams()
    {
        QFETCH(int, digit);
        QFETCH(int, modifiers);
        QFETCH(int, teams);
        QFETCH(int, kind);
        QFETCH(int, team);
        const KeyAction a = DecideKey(QChar(), digit, modifiers, 200, teams);
        QCOMPARE(int(a.kind), kind);
        if (kind == KeyAction::Score)
            QCOMPARE(a.team, team);
        QCOMPARE(int(DecideKey(QLatin1Char('N'), -1, 3, 200, 3).kind), int(KeyAction::Nothing));
        QCOMPARE(int(DecideKey(QLatin1Char('N'), -1, 7, 0, 0).kind), int(KeyAction::EndRound));
        QCOMPARE(int(DecideKey(QLatin1Char('Q'), -1, 6, 0, 0).kind), int(KeyAction::Nothing));
    }

    void dailyDoublesFollowTheirRulesOverManyDraws_data()
    {
        QTest::addColumn<QList<int>>("emptyColumns");
        QTest::newRow("all six columns") << QList<int>{};
        QTest::newRow("columns 0 and 3 empty") << QList<int>{0, 3};
        QTest::newRow("three empty columns") << QList<int>{1, 2, 5};
        QTest::newRow("five empty columns") << QList<int>{0, 1, 2, 3, 5};
    }
    void dailyDoublesFollowTheirRulesOverManyDraws()
    {
        QFETCH(QList<int>, emptyColumns);
        std::array<QString, 30> captions;
        for (int i = 0; i < 30; ++i)
            captions[size_t(i)] = emptyColumns.contains(i % 6) ? QString() : Tiles::caption(i, 1);
        const int tilesDone = 5 * int(emptyColumns.size());
        QSet<int> drawn;
        for (quint32 seed = 1; seed <= 2000; ++seed) {
            clock_->seed(seed);
            const auto [first, second] = DrawDailyDoubles(captions, tilesDone, *clock_);
            QVERIFY(!captions[size_t(first)].isEmpty());
            QVERIFY(!captions[size_t(second)].isEmpty());
            if (emptyColumns.size() >= 3)
                QCOMPARE(first, second);
            else
                QVERIFY(first != second);
            drawn << first << second;
        }
        QCOMPARE(int(drawn.size()), 30 - tilesDone); // every tile in play can be drawn, any row
    }

    void roundSetUpReseedsAndDrawsNewDoubles()
    {
        start(setText({"A", "B", "C", "D", "E", "F"}, {"A", "B", "C", "D", "E", "F"}, nullptr), 0);
        QCOMPARE(clock_->reseeds, 1);
        sendKey(board_, Qt::Key_N, kAllThree);
        QCOMPARE(clock_->reseeds, 2);
        QVERIFY(basPLOVQuzr::DailyDouble1 != basPLOVQuzr::DailyDouble2);
    }

    void answerTimeOutSoundsOncePerAnswer()
    {
        start(setText({"A", "B", "C", "", "", ""}, {}, nullptr), 0);
        int tile = 0;
        while (tile == basPLOVQuzr::DailyDouble1 || tile == basPLOVQuzr::DailyDouble2)
            tile += 6;
        pressTile(tile);
        QVERIFY(board_->tmrQuestion->isActive());
        QCOMPARE(board_->tmrQuestion->interval(), 10000);
        QMetaObject::invokeMethod(board_->tmrQuestion, "timeout");
        QCOMPARE(played().last(), QStringLiteral("108"));
        QVERIFY(!board_->tmrQuestion->isActive());
        pressScreen();
        QVERIFY(!board_->tmrQuestion->isActive());
        QCOMPARE(played().count(QStringLiteral("108")), 1);
    }

    void titleParadeShowsEveryTitleInTurn()
    {
        start(setText({"A", "", "C", "", "E", ""}, {}, nullptr), 0);
        QStringList shown;
        clock_->onPause = [&](int ms) {
            if (ms == 2500) {
                shown << board_->vseTV->caption();
                board_->game.HeaderPress(); // a second parade meanwhile is ignored
            }
        };
        emit board_->vseCategory[4]->pressed(Qt::LeftButton, Qt::NoModifier);
        QCOMPARE(shown, QStringList({QStringLiteral("A"), QStringLiteral("C"), QStringLiteral("E")}));
        QVERIFY(!board_->screenVisible());
        QVERIFY(!state().paradeRunning);
    }

    void missingKeysShowTheirNames()
    {
        QByteArray set = setText({"A", "B", "C", "D", "E", "F"}, {}, nullptr);
        set.replace("Answer2=r1c4a2\r\n", "");
        set += "[Final]\r\nCategory=\r\n";
        start(set, 0);
        int tile = 16;
        if (tile == basPLOVQuzr::DailyDouble1 || tile == basPLOVQuzr::DailyDouble2) {
            pressTile(tile);
            pressScreen();
        } else {
            pressTile(tile);
        }
        QCOMPARE(board_->vseTV->caption(), QStringLiteral("Answer2"));
        sendKey(board_, Qt::Key_N, kAllThree); // ignored: the screen is up
        pressScreen();
        pressScreen();
        sendKey(board_, Qt::Key_N, kAllThree);
        QCOMPARE(basPLOVQuzr::Round, qint16(3)); // an empty final title still makes a final
        pressScreen();
        QCOMPARE(board_->vseTV->caption(), QString());
        pressScreen();
        QCOMPARE(board_->vseTV->caption(), QStringLiteral("Answer"));
    }

    void closingTheBoardDuringTheThinkMusicIsSafe()
    {
        sound_->setClipLength(105, 30000);
        start(setText({}, {}, "Seas"), 0);
        pressScreen();
        bool closed = false;
        clock_->onAdvance = [&](int ms) {
            sound_->advance(ms);
            if (!closed && clock_->elapsedMs() > 100000) {
                closed = true;
                board_->close();
            }
        };
        clock_->advance(100000 - clock_->elapsedMs() - 3000);
        pressScreen();
        QVERIFY(closed);
        QVERIFY(board_->isUnloaded());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(board_.isNull());
    }

    void standingsTexts_data()
    {
        QTest::addColumn<int>("teams");
        QTest::addColumn<QList<int>>("scores");
        QTest::addColumn<QString>("text");
        QTest::newRow("the worked example") << 3 << QList<int>{500, 900, -300}
                                            << "Team 2: $ 900  WINNER\r\nTeam 1: $ 500\r\nTeam 3: $ -300";
        QTest::newRow("a tie on top") << 2 << QList<int>{700, 700} << "Team 2: $ 700  TIED\r\nTeam 1: $ 700";
        QTest::newRow("one team") << 1 << QList<int>{1200} << "Team 1: $ 1,200";
        QTest::newRow("negative below zero") << 2 << QList<int>{-100, 0} << "Team 2: $ 0  WINNER\r\nTeam 1: $ -100";
        QTest::newRow("millions") << 2 << QList<int>{1250000, 10} << "Team 1: $ 1,250,000  WINNER\r\nTeam 2: $ 10";
    }
    void standingsTexts()
    {
        QFETCH(int, teams);
        QFETCH(QList<int>, scores);
        QFETCH(QString, text);
        std::array<qint32, 10> s{};
        for (int i = 0; i < scores.size(); ++i)
            s[size_t(i)] = scores[i];
        QCOMPARE(StandingsText(teams, s), text);
    }

    void standingsOfTenTeams()
    {
        std::array<qint32, 10> s{};
        for (int i = 0; i < 10; ++i)
            s[size_t(i)] = i * 100;
        const QStringList lines = StandingsText(10, s).split(QStringLiteral("\r\n"));
        QCOMPARE(lines.size(), 10);
        QCOMPARE(lines[0], QStringLiteral("Team 10: $ 900  WINNER"));
        QCOMPARE(lines[9], QStringLiteral("Team 1: $ 0"));
        QCOMPARE(RankingKey(-300), QStringLiteral("059700"));
        QCOMPARE(RankingKey(939999), QStringLiteral("999999"));
        QCOMPARE(FormatScore(-1234567), QStringLiteral("-1,234,567"));
        QCOMPARE(FormatScore(0), QStringLiteral("0"));
    }

    void stepCodesParse()
    {
        QCOMPARE(ParseStepCode(QStringLiteral("SA|14")).index, qint16(14));
        QCOMPARE(ParseStepCode(QStringLiteral("FC|-1")).index, qint16(-1));
        QCOMPARE(ParseStepCode(QStringLiteral("SQ|")).index, qint16(0));
        QCOMPARE(ParseStepCode(QStringLiteral("SQ|7")).code, QStringLiteral("SQ"));
        QCOMPARE(ParseStepCode(QString()).code, QString());
    }
};

QTEST_MAIN(TestGame)
#include "test_game.moc"
