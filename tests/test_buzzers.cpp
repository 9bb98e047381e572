// Buzz-in: the rules on the fake clock with a recording board (when the
// buzzers open, early buzzes, the order by the time a buzz was made, Right,
// Wrong, everyone out, clues that take no buzzes, undo), then the buzzers
// themselves: a button's presses told from its bounces, keys through real
// key events, and what is learned kept in the user's settings.

#include "GameFixture.h"
#include "TestFolder.h"

#include "game/BuzzIn.h"
#include "game/BuzzerInputs.h"
#include "game/GameJournal.h"
#include "platform/SpecialFolders.h"
#include "platform/JoystickReader.h"
#include "ui/board/frmMain.h"
#include "ui/controls/CommandButton.h"
#include "ui/controls/ShadowLabel.h"
#include "ui/select/frmSelect.h"

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QtTest>


namespace {

// A key as a buzzer box or the host types it, made at ms on the window
// system's clock.
void press(QObject *to, int key, ulong ms, quint32 scanCode = 0)
{
    QKeyEvent e(QEvent::KeyPress, key, Qt::NoModifier, scanCode, 0, 0);
    e.setTimestamp(ms);
    QCoreApplication::sendEvent(to, &e);
}

QString settingsFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + QStringLiteral("/settings.ini");
}

} // namespace

class TestBuzzers : public QObject, GameFixture {
    Q_OBJECT

    std::unique_ptr<BuzzIn> buzzIn_;

    // A game of three teams on six columns, buzz-in on, with a plain clue
    // open (its lock running) unless told which tile.
    void openClue(int tile = -1)
    {
        startRules(setText({"A", "B", "C", "D", "E", "F"}, {}, "Final"), 3, false);
        buzzIn_ = std::make_unique<BuzzIn>(*game_);
        buzzIn_->setEnabled(true);
        game_->start();
        clock_->advance(3000);
        game_->TilePress(tile < 0 ? plainTile() : tile, true, false);
    }
    // Time passes until the lock has ended; the buzzers open.
    void waitForTheLock()
    {
        clock_->advance(3000);
        buzzIn_->tick();
    }
    void buzz(int team, qint64 ms) { buzzIn_->buzz({team, QStringLiteral("key"), ms}); }
    qint64 now() const { return clock_->steadyMs(); }
    QList<int> order() const
    {
        QList<int> teams;
        for (const BuzzIn::Entry &e : buzzIn_->order())
            teams << e.team;
        return teams;
    }

private slots:
    void init() { setUp(11); }
    void cleanup()
    {
        buzzIn_.reset();
        QFile::remove(settingsFile());
        tearDown();
    }

    void buzzersOpenWhenTheLockEndsAndEarlyBuzzesWait()
    {
        openClue();
        QVERIFY(buzzIn_->takesBuzzes());
        QVERIFY(!buzzIn_->isOpen());
        QSignalSpy early(buzzIn_.get(), &BuzzIn::earlyBuzz);
        buzz(0, now()); // during the lock: team 1 waits a quarter of a second
        QCOMPARE(early.size(), 1);
        clock_->advance(1000);
        buzzIn_->tick();
        QVERIFY(!buzzIn_->isOpen()); // the lock has a second or two to go
        waitForTheLock();
        QVERIFY(buzzIn_->isOpen());
        buzz(0, now() - 1); // made just before they opened: early again
        QCOMPARE(buzzIn_->earlyUntil(0), now() - 1 + BuzzIn::kEarlyLockoutMs);
        buzz(0, now() + 100); // still waiting: nothing gained
        buzz(1, now() + 120);
        QCOMPARE(order(), QList<int>{1});
        buzz(0, now() + 300);
        QCOMPARE(order(), (QList<int>{1, 0}));
        buzz(1, now() + 400); // one buzz a team a clue
        buzz(7, now() + 500); // no such team in this game
        QCOMPARE(order(), (QList<int>{1, 0}));
    }

    // The order is the order the buzzes were made, not the order they came
    // in: two made a millisecond apart, handed over the other way round.
    void theFirstMadeWinsWhateverCameFirst()
    {
        openClue();
        waitForTheLock();
        QSignalSpy turn(buzzIn_.get(), &BuzzIn::turn);
        const qint64 t = now() + 40;
        buzz(2, t + 1);
        buzz(1, t);
        QCOMPARE(order(), (QList<int>{1, 2}));
        QCOMPARE(buzzIn_->order()[1].ms - buzzIn_->order()[0].ms, 1);
        QCOMPARE(buzzIn_->answering(), std::optional<int>(1));
        QCOMPARE(turn.last().at(0).toInt(), 1);
    }

    void rightScoresAndShowsTheResponse()
    {
        openClue();
        waitForTheLock();
        const int value = game_->state().CurrentValue;
        buzz(2, now());
        QVERIFY(buzzIn_->judgeRight());
        QCOMPARE(settings_.Scores[2], value);
        QCOMPARE(game_->openClue().step, ClueStep::Response);
        QVERIFY(view_->screenText.contains(QLatin1Char('q'))); // the response shows
        QVERIFY(!buzzIn_->isOpen());
        buzz(0, now() + 10); // closed for good on this clue
        QVERIFY(buzzIn_->order().size() == 1 && !buzzIn_->judgeRight());
        // The judged score is a score change like any: undone as one.
        QVERIFY(game_->undoScore());
        QCOMPARE(settings_.Scores[2], 0);
        QCOMPARE(game_->state().scoreHistory.size(), size_t(0));
    }

    void wrongTakesTheValueAndPassesTheTurn()
    {
        openClue();
        waitForTheLock();
        const int value = game_->state().CurrentValue;
        buzz(0, now());
        buzz(2, now() + 5);
        QSignalSpy turn(buzzIn_.get(), &BuzzIn::turn);
        QVERIFY(buzzIn_->judgeWrong());
        QCOMPARE(settings_.Scores[0], -value);
        QVERIFY(buzzIn_->out(0));
        QCOMPARE(buzzIn_->answering(), std::optional<int>(2)); // next in order, at once
        QCOMPARE(turn.size(), 1);
        QVERIFY(buzzIn_->judgeWrong());
        QVERIFY(buzzIn_->isOpen()); // team 2 may still buzz
        QVERIFY(!buzzIn_->answering());
        buzz(0, now() + 50); // out on this clue
        buzz(1, now() + 60);
        QVERIFY(buzzIn_->judgeWrong());
        QVERIFY(!buzzIn_->isOpen()); // everyone out: closed
        QCOMPARE(game_->openClue().step, ClueStep::Clue); // the host reveals the response
        QCOMPARE(settings_.Scores, (std::array<qint32, 10>{-value, -value, -value}));
    }

    void spaceOpensEarlyAndTheResponseCloses()
    {
        openClue();
        buzzIn_->toggleOpen(); // before the lock ends
        QVERIFY(buzzIn_->isOpen());
        buzz(1, now());
        QCOMPARE(order(), QList<int>{1});
        buzzIn_->toggleOpen();
        QVERIFY(!buzzIn_->isOpen());
        waitForTheLock();
        QVERIFY(!buzzIn_->isOpen()); // the host decides on this clue now
        buzzIn_->toggleOpen();
        clock_->advance(3000);
        game_->AnswerScreenPress(); // the response, by the host
        QVERIFY(!buzzIn_->isOpen());
        clock_->advance(3000);
        game_->AnswerScreenPress();
        QVERIFY(!game_->openClue().open);
    }

    void dailyDoublesFinalsAndBuzzInOffTakeNoBuzzes_data()
    {
        QTest::addColumn<QString>("what");
        QTest::newRow("daily double") << QStringLiteral("daily");
        QTest::newRow("final") << QStringLiteral("final");
        QTest::newRow("buzz-in off") << QStringLiteral("off");
    }
    void dailyDoublesFinalsAndBuzzInOffTakeNoBuzzes()
    {
        QFETCH(QString, what);
        openClue();
        if (what == QStringLiteral("daily")) {
            for (int i = 0; i < 3; ++i) {
                clock_->advance(3000);
                game_->AnswerScreenPress();
            }
            game_->TilePress(settings_.DailyDouble1, true, false);
        } else if (what == QStringLiteral("final")) {
            for (int i = 0; i < 2; ++i) {
                clock_->advance(3000);
                game_->AnswerScreenPress();
            }
            QVERIFY(game_->KeyDown(QLatin1Char('N'), -1, 7));
        } else {
            buzzIn_->setEnabled(false);
        }
        QVERIFY(game_->openClue().open);
        waitForTheLock();
        buzzIn_->toggleOpen();
        buzz(0, now());
        QVERIFY(!buzzIn_->takesBuzzes() && !buzzIn_->isOpen() && buzzIn_->order().isEmpty());
        QVERIFY(!buzzIn_->judgeRight() && !buzzIn_->judgeWrong());
        QCOMPARE(settings_.Scores[0], 0);
    }

    // ---------------------------------------------------------- the buzzers

    void oneClickSkipsBouncesAndChatter_data()
    {
        QTest::addColumn<QList<int>>("changes"); // ms, a press (positive) or release (negative) at that time
        QTest::addColumn<int>("counted");
        QTest::newRow("a press and its bounces") << QList<int>{100, -103, 105, -300} << 1;
        QTest::newRow("two presses far apart") << QList<int>{100, -200, 400, -500} << 2;
        QTest::newRow("a button that chatters") << QList<int>{100, -120, 140, -160, 180, -200, 220} << 1;
        QTest::newRow("held down") << QList<int>{100, 150, 200} << 1;
    }
    void oneClickSkipsBouncesAndChatter()
    {
        QFETCH(QList<int>, changes);
        QFETCH(int, counted);
        ButtonDebounce debounce;
        int presses = 0;
        for (int c : changes)
            presses += debounce.change(QStringLiteral("pad#1"), 3, c > 0, qAbs(c)) ? 1 : 0;
        QCOMPARE(presses, counted);
    }

    // A whole clue with buzzer-box keys, through the home screen, the board
    // and its answer screen: learned, turned on, buzzed the wrong way
    // round, judged with the keys.
    void keysLearnedOnTheHomeScreenBuzzOnTheBoard()
    {
        TestFolder program;
        ForceGameMode(true); // in this program folder: sounds are heard
        program.write(QStringLiteral("game.QZ2"), setText({"A", "B", "C", "D", "", ""}, {}, "F"));
        QTemporaryDir documents;
        SpecialFolders::overridePath(SpecialFolders::kDocuments, documents.path());
        QFile::remove(GameJournal::defaultPath());
        auto home = std::make_unique<frmSelect>(settings_, libraries_);
        QVERIFY(!QFile::exists(settingsFile())); // nothing kept for a host who uses none of it
        BuzzerInputs &inputs = home->buzzers();
        QSignalSpy refused(&inputs, &BuzzerInputs::refused);
        inputs.learn(0);
        press(home.get(), Qt::Key_5, 1); // a scoring key: not a buzzer
        QCOMPARE(refused.size(), 1);
        QCOMPARE(inputs.learning(), 0);
        // Ten buzzers, one a team: F3 to F12 on their physical keys.
        for (int team = 0; team < 10; ++team) {
            if (team > 0)
                inputs.learn(team);
            press(home.get(), Qt::Key_F3 + team, 2, quint32(69 + team));
            QCOMPARE(inputs.learning(), -1);
        }
        home->chkBuzzIn->setChecked(true);
        const BuzzerSettings kept = BuzzerSettings::load();
        QVERIFY(kept.buzzIn);
        QCOMPARE(kept.teams[2].describe(), QStringLiteral("key F5"));
        for (int team = 0; team < 10; ++team)
            QVERIFY(kept.teams[size_t(team)].sameAs(inputs.settings().teams[size_t(team)]));
        home->cmbScore->setCurrentIndex(3);
        home->lstQuestions->setCurrentRow(0);
        home->cmdStart->click();
        frmMain *board = home->board();
        QVERIFY(board);
        board->run([tile = plainTile()](BoardGame &g) { g.TilePress(tile, true, false); });
        clock_->advance(3000);
        board->buzzIn().tick();
        QVERIFY(board->buzzIn().isOpen());
        clock_->advance(500);
        QSignalSpy turn(&board->buzzIn(), &BuzzIn::turn);
        press(board, Qt::Key_F4, 1001, 70); // team 2, a millisecond after
        press(board, Qt::Key_F3, 1000, 69); // team 1, handed over second
        QCOMPARE(board->buzzIn().answering(), std::optional<int>(0));
        const ShadowLabel *name = board->findChild<ShadowLabel *>(QStringLiteral("lblBuzz"));
        QVERIFY(name->isVisible());
        QCOMPARE(name->caption(), QStringLiteral("Team 1"));
        QCOMPARE(name->color(), TeamColor(0));
        QVERIFY(sound_->played().contains(QStringLiteral("109")));
        const int value = board->game().state().CurrentValue;
        press(board, Qt::Key_Minus, 1100);
        QCOMPARE(settings_.Scores[0], -value);
        QCOMPARE(name->caption(), QStringLiteral("Team 2"));
        QCOMPARE(board->findChild<ShadowLabel *>(QStringLiteral("lblTeam2(0)"))->color(), QColor(112, 128, 160));
        press(board, Qt::Key_Plus, 1200);
        QCOMPARE(settings_.Scores[1], value);
        QCOMPARE(board->game().openClue().step, ClueStep::Response);
        QVERIFY(!name->isVisible());
        // Off, the same keys are nothing to the game.
        home->chkBuzzIn->setChecked(false);
        QVERIFY(!board->buzzIn().enabled());
        delete board;
        home.reset();
        SpecialFolders::overridePath(SpecialFolders::kDocuments, QString());
    }

};

QTEST_MAIN(TestBuzzers)
#include "test_buzzers.moc"
