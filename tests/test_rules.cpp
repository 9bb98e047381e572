// The rules of play on BoardGame alone, with a recording board, the fake
// clock, scripted message boxes and the fake sound library: no widgets.
// Round set-up, tile presses, the answer screen's steps, daily doubles, the
// final, scoring keys and the end.

#include "GameFixture.h"

#include "game/GameRules.h"

#include <QSignalSpy>
#include <QtTest>

namespace {
constexpr int kAllThree = 7; // SHIFT, CTRL and ALT
} // namespace

class TestRules : public QObject, GameFixture {
    Q_OBJECT

    BoardGame &start(const QByteArray &set, int teams) { return startRules(set, teams); }

    // Presses as the host makes them: after the 3-second lock.
    void pressTile(int i, int modifiers = 0)
    {
        clock_->advance(3000);
        game_->TilePress(i, true, modifiers == kAllThree);
    }
    void pressScreen()
    {
        clock_->advance(3000);
        game_->AnswerScreenPress();
    }
    bool key(char letter, int modifiers) { return game_->KeyDown(QLatin1Char(letter), -1, modifiers); }
    bool digit(int d, int modifiers = 0) { return game_->KeyDown(QChar(), d, modifiers); }

    // Plays a tile through: answer, question, close.
    void playTile(int i)
    {
        const bool daily = isDailyDouble(i);
        pressTile(i);
        if (daily)
            pressScreen();
        pressScreen();
        pressScreen();
    }

    const BoardState &state() const { return game_->state(); }
    QStringList played() const { return sound_->played(); }

private slots:
    void init() { setUp(7); }
    void cleanup() { tearDown(); }

    void wholeGameWithoutScoring()
    {
        sound_->setClipLength(102, 3000);
        sound_->setClipLength(105, 30000);
        sound_->setClipLength(107, 4000);
        start(setText({"Rivers", "", "", "", "", ""}, {"", "", "Lakes", "", "", ""}, "Seas"), 0);
        QVERIFY(clock_->elapsedMs() >= 4000); // round 1 only after the start sound
        QCOMPARE(settings_.Round, qint16(1));
        QCOMPARE(settings_.TilesDone, qint16(25));
        QCOMPARE(state().headerCaption[0], QStringLiteral("Rivers"));
        QCOMPARE(state().tileCaption[24], QStringLiteral("$500"));
        QCOMPARE(state().tileCaption[1], QString());
        QCOMPARE(view_->count(QStringLiteral("showTileRow")), 5);
        for (int row = 0; row < 5; ++row)
            playTile(row * 6);
        // No scoring: round 2 follows the last close at once.
        QCOMPARE(settings_.Round, qint16(2));
        QCOMPARE(state().headerCaption[2], QStringLiteral("Lakes"));
        QCOMPARE(state().tileCaption[2], QStringLiteral("$200"));
        QCOMPARE(state().tileCaption[26], QStringLiteral("$1000"));
        QCOMPARE(state().headerTag[0], QString()); // round 1's exhausted title is not kept into round 2
        for (int row = 0; row < 5; ++row)
            playTile(row * 6 + 2);
        QCOMPARE(settings_.Round, qint16(3));
        QCOMPARE(settings_.TilesDone, qint16(29));
        QCOMPARE(state().stepCode, QStringLiteral("FC|-1"));
        QCOMPARE(view_->requests.last(), QStringLiteral("ZoomTV tile 14 %1").arg(settings_.PicIdFinal));
        for (int step = 0; step < 4; ++step)
            pressScreen(); // the final's steps: openClueFollowsTheScreen
        QVERIFY(view_->unloaded);
        QVERIFY(boxes_->shown.isEmpty()); // no standings without scoring
        const QStringList sounds = played();
        QCOMPARE(sounds.mid(0, 2), QStringList({QStringLiteral("107"), QStringLiteral("103")}));
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
            QVERIFY(digit(2));
        }
        QCOMPARE(settings_.TilesDone, qint16(30));
        QCOMPARE(settings_.Round, qint16(1)); // waiting for the host
        QVERIFY(played().contains(QStringLiteral("102")));
        // The daily double scores 100, the others their values.
        const int expected = 100 + 200 + 300 + 400 + 500 + 100 - Tiles::value(settings_.DailyDouble1, 1);
        QCOMPARE(settings_.Scores[1], expected);
        pressTile(13); // any blank tile: no round 2 here, so the final
        QCOMPARE(settings_.Round, qint16(3));
        for (int i = 0; i < 4; ++i)
            pressScreen();
        QVERIFY(digit(1));
        QCOMPARE(settings_.Scores[0], 100);
        pressTile(0);
        QCOMPARE(boxes_->shown.size(), 1);
        QCOMPARE(boxes_->shown[0].caption, QStringLiteral("Scores"));
        QCOMPARE(boxes_->shown[0].style, 0);
        QVERIFY(boxes_->shown[0].text.startsWith(QStringLiteral("Team 2: $ ")));
        QVERIFY(view_->unloaded);
        QCOMPARE(played().last(), QStringLiteral("106"));
    }

    void answerScreenLocksForThreeSeconds()
    {
        start(setText({"Rivers", "Lakes", "", "", "", ""}, {}, nullptr), 0);
        const int tile = plainTile(1);
        pressTile(tile);
        QCOMPARE(view_->screenText, QStringLiteral("r1c1a%1").arg(tile / 6));
        QVERIFY(view_->timerActive);
        clock_->advance(2000);
        game_->AnswerScreenPress();
        QCOMPARE(state().stepCode, MakeStepCode(ClueStep::Clue, tile)); // too soon: ignored
        clock_->advance(1000);
        game_->AnswerScreenPress();
        QCOMPARE(view_->screenText, QStringLiteral("r1c1q%1").arg(tile / 6));
        QCOMPARE(view_->screenPicture, QString()); // a response never shows the clue's picture
        QVERIFY(!view_->timerActive);
        // Outside the game's own executable there is no lock.
        ForceGameMode(false);
        game_->AnswerScreenPress();
        QVERIFY(!view_->screenShown);
    }

    void dailyDoubleShowsPictureThenAnswerAtValue100()
    {
        start(setText({"Rivers", "Lakes", "Seas", "", "", ""}, {}, nullptr), 2);
        const int dd = settings_.DailyDouble1;
        const QString value = Tiles::caption(dd, 1);
        pressTile(dd);
        QCOMPARE(view_->requests.last(), QStringLiteral("ZoomTV tile %1 %2").arg(dd).arg(settings_.PicIdDailyDouble));
        QCOMPARE(view_->screenText, QString()); // the picture alone, no value
        QCOMPARE(state().stepCode, MakeStepCode(ClueStep::DailyDouble, dd));
        QCOMPARE(state().CurrentValue, qint16(100));
        QCOMPARE(played().last(), QStringLiteral("101"));
        QVERIFY(!view_->overlayShown);
        pressScreen();
        QCOMPARE(view_->requests.at(view_->requests.size() - 2),
                 QStringLiteral("RotateTV %1 %2").arg(settings_.PicIdDailyDouble).arg(settings_.PicIdScreen));
        QCOMPARE(state().stepCode, MakeStepCode(ClueStep::Clue, dd));
        QCOMPARE(view_->screenText, QStringLiteral("r1c%1a%2").arg(Tiles::column(dd)).arg(Tiles::row(dd)));
        QVERIFY(view_->overlayShown);
        QCOMPARE(view_->overlayValue, value);
        QCOMPARE(view_->overlayCategory, QStringList({QStringLiteral("Rivers"), QStringLiteral("Lakes"),
                                                      QStringLiteral("Seas")})[Tiles::column(dd)]);
        QCOMPARE(state().CurrentValue, qint16(100));
    }

    // Every view reads the clue on the screen from the rules, step by step.
    void openClueFollowsTheScreen_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QList<int>>("steps");
        using S = ClueStep;
        QTest::newRow("plain") << QStringLiteral("plain") << QList<int>{int(S::Clue), int(S::Response)};
        QTest::newRow("daily double") << QStringLiteral("daily")
                                      << QList<int>{int(S::DailyDouble), int(S::Clue), int(S::Response)};
        QTest::newRow("final") << QStringLiteral("final")
                               << QList<int>{int(S::FinalCategory), int(S::FinalClue), int(S::Clue), int(S::Response)};
    }
    void openClueFollowsTheScreen()
    {
        QFETCH(QString, kind);
        QFETCH(QList<int>, steps);
        start(setText({"Rivers", "Lakes", "", "", "", ""}, {}, "Seas"), 2);
        QSignalSpy changed(game_.get(), &BoardGame::openClueChanged);
        QVERIFY(!game_->openClue().open);
        const int tile = kind == QStringLiteral("final") ? -1 : kind == QStringLiteral("daily") ? settings_.DailyDouble1 : plainTile(1);
        if (tile < 0)
            QVERIFY(key('N', kAllThree));
        else
            pressTile(tile);
        OpenClue c = game_->openClue();
        QVERIFY(c.open);
        QCOMPARE(c.tile, tile);
        QCOMPARE(c.final, tile < 0);
        QCOMPARE(c.dailyDouble, kind == QStringLiteral("daily"));
        const int column = Tiles::column(qMax(0, tile)), row = Tiles::row(qMax(0, tile));
        QCOMPARE(c.category, tile < 0 ? QStringLiteral("Seas") : column == 0 ? QStringLiteral("Rivers") : QStringLiteral("Lakes"));
        QCOMPARE(c.value, tile < 0 ? 0 : Tiles::value(tile, 1));
        QCOMPARE(c.clue, tile < 0 ? QStringLiteral("final clue") : QStringLiteral("r1c%1a%2").arg(column).arg(row));
        QCOMPARE(c.response, tile < 0 ? QStringLiteral("final response") : QStringLiteral("r1c%1q%2").arg(column).arg(row));
        if (tile >= 0) {
            QCOMPARE(c.lockSecondsLeft, 3);
            clock_->advance(1000);
            QCOMPARE(game_->openClue().lockSecondsLeft, 2);
        }
        for (int step : steps) {
            QCOMPARE(int(game_->openClue().step), step);
            pressScreen();
        }
        QVERIFY(!game_->openClue().open);
        QVERIFY(changed.size() >= steps.size() + 1);
    }

    void finalIgnoresPressesDuringThinkMusic()
    {
        sound_->setClipLength(105, 30000);
        start(setText({}, {}, "Seas"), 1);
        QCOMPARE(settings_.Round, qint16(3));
        QCOMPARE(view_->screenText, QString());
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
                game_->AnswerScreenPress();
            }
        };
        const qint64 before = clock_->elapsedMs();
        pressScreen();
        clock_->onAdvance = [this](int ms) { sound_->advance(ms); };
        QVERIFY(pressesDuringMusic >= 4);
        QVERIFY(clock_->elapsedMs() - before >= 30000);
        QCOMPARE(state().stepCode, QStringLiteral("SA|-1"));
        QCOMPARE(view_->screenLine(), QStringLiteral("final clue"));
        QVERIFY(!view_->timerActive); // no answer timer in the final
        pressScreen();
        QCOMPARE(view_->screenLine(), QStringLiteral("final response"));
    }

    void specialPressesPutTilesBackAndTakeThemOut()
    {
        start(setText({"Rivers", "", "Lakes", "", "", ""}, {}, nullptr), 0);
        QCOMPARE(settings_.TilesDone, qint16(20));
        // Take column 0 out tile by tile: its title goes with the last one.
        for (int row = 0; row < 5; ++row)
            pressTile(row * 6, kAllThree);
        QCOMPARE(settings_.TilesDone, qint16(25));
        QVERIFY(!view_->screenShown);
        QCOMPARE(state().headerCaption[0], QString());
        QCOMPARE(state().headerTag[0], QStringLiteral("Rivers"));
        // Putting any tile back brings the title back.
        pressTile(12, kAllThree);
        QCOMPARE(state().tileCaption[12], QStringLiteral("$300"));
        QCOMPARE(state().headerCaption[0], QStringLiteral("Rivers"));
        QCOMPARE(state().headerTag[0], QString());
        QCOMPARE(settings_.TilesDone, qint16(24));
        // An empty column's tiles cannot be put back.
        pressTile(7, kAllThree);
        QCOMPARE(state().tileCaption[7], QString());
        QCOMPARE(settings_.TilesDone, qint16(24));
        // Taking the round's last tiles out never ends the round.
        pressTile(12, kAllThree);
        for (int row = 0; row < 5; ++row)
            pressTile(row * 6 + 2, kAllThree);
        QCOMPARE(settings_.TilesDone, qint16(30));
        QCOMPARE(settings_.Round, qint16(1));
        QCOMPARE(state().CurrentValue, qint16(0));
        // An opened tile put back can be played again.
        start(setText({"Rivers", "Lakes", "", "", "", ""}, {}, nullptr), 0);
        const int tile = plainTile(0);
        game_->TilePress(tile, false, true); // another button with all three opens it
        QCOMPARE(state().stepCode, MakeStepCode(ClueStep::Clue, tile));
        pressScreen();
        pressScreen();
        QCOMPARE(state().tileCaption[size_t(tile)], QString());
        pressTile(tile, kAllThree);
        QCOMPARE(state().tileCaption[size_t(tile)], Tiles::caption(tile, 1));
    }

    void lastTileOfAColumnStillShowsItsCategory()
    {
        start(setText({"Rivers", "Lakes", "Seas", "", "", ""}, {}, nullptr), 0);
        for (int row = 0; row < 4; ++row)
            pressTile(row * 6 + 2, kAllThree);
        pressTile(26);
        if (isDailyDouble(26))
            pressScreen(); // from the picture to the answer
        QCOMPARE(state().headerCaption[2], QString());
        QCOMPARE(view_->overlayCategory, QStringLiteral("Seas"));
    }

    void roundsAreSkippedWhenAbsentOrEmpty_data()
    {
        QTest::addColumn<QByteArray>("set");
        QTest::addColumn<int>("firstRound");
        QTest::newRow("no [Round2]: round 1 then the final") << setText({"A", "B", "C", "D", "E", "F"}, {}, "Z") << 1;
        QTest::newRow("an empty Category0 keeps the round") << setText({"", "B", "", "", "", ""}, {}, "Z") << 1;
        QTest::newRow("[Round1] without Category0 is skipped")
            << setText({nullptr, "B", "C", "D", "E", "F"}, {"A", "B", "", "", "", ""}, "Z") << 2;
        QTest::newRow("an all-empty round is skipped")
            << setText({"", "", "", "", "", ""}, {"A", "", "", "", "", ""}, "Z") << 2;
        QTest::newRow("-NONE- titles count as empty") << setText({"-NONE-", "-NONE-", "", "", "", ""}, {}, "Z") << 3;
        QTest::newRow("only a final") << setText({}, {}, "Z") << 3;
    }
    void roundsAreSkippedWhenAbsentOrEmpty()
    {
        QFETCH(QByteArray, set);
        QFETCH(int, firstRound);
        start(set, 0);
        QCOMPARE(int(settings_.Round), firstRound);
        QVERIFY(!view_->unloaded);
        // SHIFT+CTRL+ALT+N walks on through what is left.
        const qint16 next = settings_.Round;
        if (next < 3) {
            QVERIFY(key('N', kAllThree));
            QCOMPARE(int(settings_.Round), set.contains("[Round2]") && next == 1 ? 2 : 3);
        }
    }

    void setWithoutRoundsOrFinalEndsAtOnce()
    {
        start("[Round1]\r\nDescription=nothing to play\r\n", 2);
        QVERIFY(view_->unloaded);
        QCOMPARE(boxes_->shown.size(), 1);
        QCOMPARE(boxes_->shown[0].text, QStringLiteral("Team 2: $ 0  TIED\r\nTeam 1: $ 0"));
        QCOMPARE(played(), QStringList({QStringLiteral("107"), QStringLiteral("106")}));
    }

    void endRoundKeyFromTheFinalShowsStandingsAndQuitKeyDoesNot()
    {
        start(setText({"A", "", "", "", "", ""}, {}, "Z"), 2);
        QVERIFY(key('N', kAllThree));
        QCOMPARE(settings_.Round, qint16(3));
        QVERIFY(!key('N', kAllThree)); // keys count only while the board shows
        view_->hideScreen();
        settings_.Scores[1] = 300;
        QVERIFY(key('N', kAllThree));
        QCOMPARE(boxes_->shown.size(), 1);
        QCOMPARE(boxes_->shown[0].text, QStringLiteral("Team 2: $ 300  WINNER\r\nTeam 1: $ 0"));
        start(setText({"A", "", "", "", "", ""}, {}, "Z"), 2);
        sound_->reset();
        QVERIFY(!key('Q', 3)); // two of three: nothing
        QVERIFY(!view_->unloaded);
        QVERIFY(key('Q', kAllThree));
        QVERIFY(view_->unloaded);
        QCOMPARE(boxes_->shown.size(), 1); // no second standings
        QVERIFY(!played().contains(QStringLiteral("106")));
    }

    void scoringKeysFollowTheirRules()
    {
        start(setText({"A", "B", "C", "", "", ""}, {}, nullptr), 3);
        digit(1);
        QCOMPARE(settings_.Scores[0], 0); // no tile opened yet
        playTile(plainTile(2) + 6 * 0);
        const int value = state().CurrentValue;
        QVERIFY(digit(2));
        QVERIFY(digit(2));
        QCOMPARE(settings_.Scores[1], 2 * value);
        QVERIFY(digit(5));           // no fifth team: swallowed
        QVERIFY(!digit(1, 2));       // CTRL
        QVERIFY(!digit(1, 4));       // ALT
        QVERIFY(digit(1, 1));        // SHIFT adds too
        QCOMPARE(settings_.Scores[0], value);
        QCOMPARE(settings_.Scores[4], 0);
        // Keys on the answer screen are not handled.
        pressTile(plainTile(1));
        QVERIFY(!digit(3));
        QVERIFY(!key('Q', kAllThree));
        QCOMPARE(settings_.Scores[2], 0);
        QVERIFY(!view_->unloaded);
    }

    void keyRules_data()
    {
        QTest::addColumn<QChar>("letter");
        QTest::addColumn<int>("digit");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("teams");
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("team");
        const QChar none;
        QTest::newRow("0 is team 10") << none << 0 << 0 << 200 << 10 << int(KeyAction::Score) << 10;
        QTest::newRow("0 with nine teams") << none << 0 << 0 << 200 << 9 << int(KeyAction::Swallow) << 0;
        QTest::newRow("no scoring") << none << 1 << 0 << 200 << 0 << int(KeyAction::Nothing) << 0;
        QTest::newRow("N with two of three") << QChar(u'N') << -1 << 3 << 200 << 3 << int(KeyAction::Nothing) << 0;
        QTest::newRow("N with all three") << QChar(u'N') << -1 << 7 << 0 << 0 << int(KeyAction::EndRound) << 0;
        QTest::newRow("Q without SHIFT") << QChar(u'Q') << -1 << 6 << 0 << 0 << int(KeyAction::Nothing) << 0;
    }
    void keyRules()
    {
        QFETCH(QChar, letter);
        QFETCH(int, digit);
        QFETCH(int, modifiers);
        QFETCH(int, value);
        QFETCH(int, teams);
        QFETCH(int, kind);
        QFETCH(int, team);
        const KeyAction a = DecideKey(letter, digit, modifiers, value, teams);
        QCOMPARE(int(a.kind), kind);
        if (kind == KeyAction::Score)
            QCOMPARE(a.team, team);
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
        QVERIFY(key('N', kAllThree));
        QCOMPARE(clock_->reseeds, 2);
        QVERIFY(settings_.DailyDouble1 != settings_.DailyDouble2);
    }

    void titleParadeShowsEveryTitleInTurn()
    {
        start(setText({"A", "", "C", "", "E", ""}, {}, nullptr), 0);
        QStringList shown;
        clock_->onPause = [&](int ms) {
            if (ms == 2500) {
                shown << view_->screenText + QLatin1Char(' ') + state().stepCode;
                game_->HeaderPress(); // a second parade meanwhile is ignored
            }
        };
        game_->HeaderPress();
        QCOMPARE(shown, QStringList({QStringLiteral("A NO"), QStringLiteral("C NO"), QStringLiteral("E NO")}));
        QVERIFY(!view_->screenShown);
        QVERIFY(!state().paradeRunning);
    }

    void missingKeysShowTheirNames()
    {
        QByteArray set = setText({"A", "B", "C", "D", "E", "F"}, {}, nullptr);
        set.replace("Answer2=r1c4a2\r\n", "");
        set += "[Final]\r\nCategory=\r\n";
        start(set, 0);
        pressTile(16);
        if (isDailyDouble(16))
            pressScreen();
        QCOMPARE(view_->screenText, QStringLiteral("Answer2"));
        pressScreen();
        pressScreen();
        QVERIFY(key('N', kAllThree));
        QCOMPARE(settings_.Round, qint16(3)); // an empty final title still makes a final
        pressScreen();
        QCOMPARE(view_->screenText, QString());
        pressScreen();
        QCOMPARE(view_->screenText, QStringLiteral("Answer"));
    }

    // The end-round keys pressed while the end-of-round jingle plays move
    // the game on once, not twice.
    void endRoundKeyDuringTheJingleMovesOnOnce()
    {
        sound_->setClipLength(102, 3000);
        start(setText({"Rivers", "", "", "", "", ""}, {"Lakes", "", "", "", "", ""}, "Seas"), 0);
        for (int row = 0; row < 4; ++row)
            playTile(row * 6);
        bool pressed = false;
        clock_->onAdvance = [&](int ms) {
            sound_->advance(ms);
            if (!pressed && played().contains(QStringLiteral("102"))) {
                pressed = true;
                QVERIFY(key('N', kAllThree));
            }
        };
        playTile(24);
        clock_->onAdvance = [this](int ms) { sound_->advance(ms); };
        QVERIFY(pressed);
        QCOMPARE(settings_.Round, qint16(2));
        QCOMPARE(state().headerCaption[0], QStringLiteral("Lakes"));
    }

    void standingsTexts_data()
    {
        QTest::addColumn<int>("teams");
        QTest::addColumn<QList<int>>("scores");
        QTest::addColumn<QString>("text");
        QTest::newRow("the worked example") << 3 << QList<int>{500, 900, -300}
                                            << "Team 2: $ 900  WINNER\r\nTeam 1: $ 500\r\nTeam 3: $ -300";
        QTest::newRow("one team, no mark") << 1 << QList<int>{400} << "Team 1: $ 400";
        QTest::newRow("a tie on top") << 2 << QList<int>{700, 700} << "Team 2: $ 700  TIED\r\nTeam 1: $ 700";
        QTest::newRow("negatives rank low, millions grouped")
            << 3 << QList<int>{-100, 0, 1250000} << "Team 3: $ 1,250,000  WINNER\r\nTeam 2: $ 0\r\nTeam 1: $ -100";
        QTest::newRow("ten teams, 0 is team 10")
            << 10 << QList<int>{0, 100, 200, 300, 400, 500, 600, 700, 800, 900}
            << "Team 10: $ 900  WINNER\r\nTeam 9: $ 800\r\nTeam 8: $ 700\r\nTeam 7: $ 600\r\nTeam 6: $ 500\r\n"
               "Team 5: $ 400\r\nTeam 4: $ 300\r\nTeam 3: $ 200\r\nTeam 2: $ 100\r\nTeam 1: $ 0";
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
};

QTEST_GUILESS_MAIN(TestRules)
#include "test_rules.moc"
