// Buzz-in: the rules on the fake clock with a recording board (when the
// buzzers open, early buzzes, the order by the time a buzz was made, Right,
// Wrong, everyone out, clues that take no buzzes, undo), then the buzzers
// themselves: keys through real key events, joysticks through SDL's virtual
// joystick, and what is learned kept in the user's settings.

#include "FakeClock.h"
#include "FakeSoundControl.h"
#include "RecordingBoardView.h"
#include "RunMode.h"
#include "ScriptedMsgBox.h"
#include "TestSets.h"

#include "game/BoardGame.h"
#include "game/BuzzIn.h"
#include "game/GameState.h"
#include "shell/Libraries.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

class TestBuzzers : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    GameState settings_;
    Libraries libraries_;
    std::unique_ptr<FakeClock> clock_;
    std::unique_ptr<ScriptedMsgBox> boxes_;
    std::unique_ptr<FakeSoundControl> sound_;
    std::unique_ptr<RecordingBoardView> view_;
    std::unique_ptr<BoardGame> game_;
    std::unique_ptr<BuzzIn> buzzIn_;

    // A game of three teams on six columns, buzz-in on, with a plain clue
    // open (its lock running) unless told which tile.
    void openClue(int tile = -1)
    {
        libraries_.hSoundLib->InitSound(0);
        settings_.QuestionFile = writeFile(dir_.filePath(QStringLiteral("game.QZ2")),
                                           setText({"A", "B", "C", "D", "E", "F"}, {}, "Final"));
        view_ = std::make_unique<RecordingBoardView>();
        game_ = std::make_unique<BoardGame>(*view_, settings_, libraries_);
        view_->game = game_.get();
        buzzIn_ = std::make_unique<BuzzIn>(*game_);
        buzzIn_->setEnabled(true);
        game_->setTeams(3);
        game_->start();
        if (tile < 0)
            for (tile = 0; tile == settings_.DailyDouble1 || tile == settings_.DailyDouble2;)
                ++tile;
        clock_->advance(3000);
        game_->TilePress(tile, true, false);
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
    void init()
    {
        settings_ = GameState{};
        clock_ = std::make_unique<FakeClock>(11);
        boxes_ = std::make_unique<ScriptedMsgBox>();
        sound_ = std::make_unique<FakeSoundControl>(libraries_);
        clock_->onAdvance = [this](int ms) { sound_->advance(ms); };
        ForceGameMode(true);
    }

    void cleanup()
    {
        buzzIn_.reset();
        game_.reset();
        view_.reset();
        sound_.reset();
        boxes_.reset();
        clock_.reset();
        ForceGameMode(false);
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
};

QTEST_MAIN(TestBuzzers)
#include "test_buzzers.moc"
