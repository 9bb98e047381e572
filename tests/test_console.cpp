// The host's console on a second screen: where the board and the console
// go, a whole game run from the console alone, score corrections, typed
// wagers and team names. Runs with two simulated screens, a laptop and a
// projector.

#include "HomeFixture.h"

#include "game/GameRules.h"
#include "ui/controls/ShadowLabel.h"

#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QSpinBox>

class TestConsole : public QObject, HomeFixture {
    Q_OBJECT

    QPushButton *button(const char *array, int i) const
    {
        return on(console(), QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(i));
    }
    QString boardLabel(const char *array, int i) const
    {
        return on<ShadowLabel>(board(), QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(i))->caption();
    }
    void next() { on(console(), QStringLiteral("cmdNext"))->click(); }

private slots:
    void initTestCase()
    {
        QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans"));
        QCOMPARE(QGuiApplication::screens().size(), 2);
    }

    void init()
    {
        setUp(3, true);
        program_->write(QStringLiteral("game.QZ2"),
                        setText({"Rivers", "Lakes", "", "", "", ""}, {"", "", "Seas", "", "", ""}, "Oceans"));
        openHome();
    }
    void cleanup() { tearDown(); }

    // With four columns or more a round has two daily doubles: the host
    // sees both starred, and no other tile.
    void bothDailyDoublesAreStarred()
    {
        program_->write(QStringLiteral("game.QZ2"), setText({"A", "B", "C", "D", "", ""}, {}, "F"));
        startGame(2);
        QVERIFY(state_.DailyDouble1 != state_.DailyDouble2);
        for (int i = 0; i < 30; ++i)
            QCOMPARE(button("cmdTile", i)->text().startsWith(QStringLiteral("\u2605")),
                     i == state_.DailyDouble1 || i == state_.DailyDouble2);
    }

    void boardTakesTheProjectorAndTheConsoleTheHostsScreen()
    {
        QScreen *laptop = QGuiApplication::screens().at(0), *projector = QGuiApplication::screens().at(1);
        QCOMPARE(home_->screen(), laptop);
        startGame(2);
        QCOMPARE(board()->screen(), projector);
        QCOMPARE(board()->QWidget::geometry(), projector->geometry());
        QVERIFY(console() && console()->isVisible());
        QCOMPARE(console()->screen(), laptop);
        QVERIFY(console()->isMaximized());
        QVERIFY(laptop->geometry().intersects(console()->geometry()));
        QVERIFY(!projector->geometry().intersects(console()->geometry()));
        on(console(), QStringLiteral("cmdSwitch"))->click();
        QCOMPARE(board()->screen(), laptop);
        QCOMPARE(board()->QWidget::geometry(), laptop->geometry());
        QCOMPARE(console()->screen(), projector);
        boxes_->answers = {MsgBoxResult::No};
        on(console(), QStringLiteral("cmdEndGame"))->click();
        QVERIFY(board());
        QCOMPARE(boxes_->shown.last().text, QStringLiteral("End the game now, without the standings? This cannot be undone."));
        on(console(), QStringLiteral("cmdEndGame"))->click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!board());
        QVERIFY(!console()->isVisible()); // it came with the game, it goes with it
        QVERIFY(home_->isVisible());
    }

    void wholeGameFromTheConsoleAlone()
    {
        startGame(2);
        QVERIFY(console()->isVisible());
        const BoardGame &game = board()->game();
        const int dd = state_.DailyDouble1;
        QVERIFY(button("cmdTile", dd)->text().startsWith(QStringLiteral("\u2605"))); // marked for the host
        int plain = 0;
        while (plain == state_.DailyDouble1 || plain == state_.DailyDouble2)
            plain += 6;
        // An ordinary tile: the console shows the response before the class sees it.
        button("cmdTile", plain)->click();
        QCOMPARE(game.state().stepCode, MakeStepCode(ClueStep::Clue, plain));
        QCOMPARE(on<QLabel>(console(), QStringLiteral("lblClue"))->text(), QStringLiteral("r1c0a%1").arg(plain / 6));
        QVERIFY(on<QLabel>(console(), QStringLiteral("lblResponse"))->text().endsWith(QStringLiteral("r1c0q%1").arg(plain / 6)));
        QCOMPARE(on(console(), QStringLiteral("cmdNext"))->text(), QStringLiteral("Reveal the response"));
        QCOMPARE(on<QSpinBox>(console(), QStringLiteral("spnAmount"))->value(), Tiles::value(plain, 1));
        next();
        next();
        QVERIFY(!board()->screenVisible());
        QCOMPARE(button("cmdTile", plain)->property("tile").toByteArray(), QByteArray("out"));
        button("cmdPlus", 1)->click(); // the tile's value to team 2
        QCOMPARE(state_.Scores[1], Tiles::value(plain, 1));
        QCOMPARE(boardLabel("lblScore", 1), QStringLiteral("$ ") + FormatScore(Tiles::value(plain, 1)));
        // The daily double: a typed wager, lost.
        button("cmdTile", dd)->click();
        QCOMPARE(game.state().stepCode, MakeStepCode(ClueStep::DailyDouble, dd));
        QCOMPARE(on(console(), QStringLiteral("cmdNext"))->text(), QStringLiteral("Show the clue"));
        next();
        next();
        next();
        on<QSpinBox>(console(), QStringLiteral("spnAmount"))->setValue(1234);
        button("cmdMinus", 0)->click();
        QCOMPARE(state_.Scores[0], -1234);
        QCOMPARE(on<QLabel>(console(), QStringLiteral("lblScore(0)"))->text(), QStringLiteral("$ -1,234"));
        // A header parades the titles; the round ends, then the game.
        button("cmdHeader", 1)->click();
        QVERIFY(!board()->screenVisible());
        // Nothing undoes an end: the console asks on the host's screen first.
        boxes_->answers = {MsgBoxResult::No};
        on(console(), QStringLiteral("cmdEndRound"))->click();
        QCOMPARE(state_.Round, qint16(1));
        QCOMPARE(boxes_->shown.last().text, QStringLiteral("End this round now? The tiles left in it will not be "
                                                           "played. This cannot be undone."));
        QCOMPARE(boxes_->shown.last().style, MsgBoxStyle::YesNo | MsgBoxStyle::Question);
        QCOMPARE(boxes_->shown.last().owner, console());
        on(console(), QStringLiteral("cmdEndRound"))->click();
        QCOMPARE(state_.Round, qint16(2));
        QCOMPARE(button("cmdTile", 2)->text(), QStringLiteral("$200").prepend(
                     2 == state_.DailyDouble1 || 2 == state_.DailyDouble2 ? QStringLiteral("\u2605 ") : QString()));
        on(console(), QStringLiteral("cmdEndRound"))->click();
        QCOMPARE(state_.Round, qint16(3));
        QCOMPARE(on(console(), QStringLiteral("cmdNext"))->text(), QStringLiteral("Show the final category"));
        next();
        next();
        QCOMPARE(on<QLabel>(console(), QStringLiteral("lblClue"))->text(), QStringLiteral("final clue"));
        next();
        next();
        on<QSpinBox>(console(), QStringLiteral("spnAmount"))->setValue(2000);
        button("cmdPlus", 0)->click();
        QCOMPARE(state_.Scores[0], 2000 - 1234);
        button("cmdTile", 0)->click(); // past the final: the standings
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!board());
        QCOMPARE(boxes_->shown.last().caption, QStringLiteral("Scores"));
        QVERIFY(boxes_->shown.last().text.startsWith(QStringLiteral("Team 1: $ 766  WINNER\r\nTeam 2: $ ")));
    }

    void correctionsGoBackToTheStartOfTheGame()
    {
        startGame(3);
        frmMain *b = board();
        const BoardGame &game = b->game();
        button("cmdTile", game.settings().DailyDouble1 == 0 ? 6 : 0)->click();
        next();
        next();
        const int value = game.state().CurrentValue;
        for (int team : {1, 2, 1})
            sendKey(b, Qt::Key_0 + team, Qt::NoModifier, 9 + quint32(team));
        button("cmdMinus", 2)->click();
        QCOMPARE(state_.Scores[0], 2 * value);
        QCOMPARE(state_.Scores[2], -value);
        // BackSpace on the board takes back one change at a time, both labels.
        sendKey(b, Qt::Key_Backspace);
        QCOMPARE(state_.Scores[2], 0);
        QCOMPARE(boardLabel("lblScore2", 2), QStringLiteral("$ 0"));
        sendKey(b, Qt::Key_Backspace);
        QCOMPARE(state_.Scores[0], value);
        on(console(), QStringLiteral("cmdUndo"))->click();
        on(console(), QStringLiteral("cmdUndo"))->click();
        QCOMPARE(state_.Scores[0], 0);
        QCOMPARE(state_.Scores[1], 0);
        QCOMPARE(boardLabel("lblScore", 0), QStringLiteral("$ 0"));
        sendKey(b, Qt::Key_Backspace); // nothing left to take back
        QCOMPARE(state_.Scores, (std::array<qint32, 10>{}));
    }

    void teamNamesShowOnTheBoardAndInTheStandings()
    {
        openConsoleByHand();
        on<QLineEdit>(console(), QStringLiteral("txtName(1)"))->setText(QString());
        QTest::keyClicks(on<QLineEdit>(console(), QStringLiteral("txtName(1)")), QStringLiteral("Owls"));
        QCOMPARE(state_.TeamNames[1], QStringLiteral("Owls"));
        startGame(2);
        QCOMPARE(boardLabel("lblTeam", 0), QStringLiteral("Team 1:"));
        QCOMPARE(boardLabel("lblTeam", 1), QStringLiteral("Owls:"));
        QTest::keyClicks(on<QLineEdit>(console(), QStringLiteral("txtName(0)")), QStringLiteral("Foxes"));
        QCOMPARE(boardLabel("lblTeam", 0), QStringLiteral("Foxes:"));
        QCOMPARE(boardLabel("lblTeam2", 0), QStringLiteral("Foxes:"));
        // Past the final with scoring: the standings carry the names.
        on(console(), QStringLiteral("cmdEndRound"))->click();
        on(console(), QStringLiteral("cmdEndRound"))->click();
        for (int step = 0; step < 4; ++step)
            next();
        button("cmdPlus", 1)->click();
        button("cmdTile", 0)->click();
        QCOMPARE(boxes_->shown.last().text, QStringLiteral("Owls: $ 100  WINNER\r\nFoxes: $ 0"));
        QVERIFY(console()->isVisible()); // opened by hand: it stays
        QCOMPARE(state_.TeamNames[0], QStringLiteral("Foxes"));
    }

    void consoleCountsDownTheLockAndTheThinkMusic()
    {
        ForceGameMode(true);
        sound_->setClipLength(105, 30000);
        boxes_->answers = {MsgBoxResult::OK};
        startGame(0);
        on(console(), QStringLiteral("cmdEndRound"))->click();
        on(console(), QStringLiteral("cmdEndRound"))->click();
        QCOMPARE(state_.Round, qint16(3));
        clock_->advance(3000);
        next();
        console()->refresh();
        QCOMPARE(on<QLabel>(console(), QStringLiteral("lblWait"))->text(), QStringLiteral("Locked: 3 s"));
        clock_->advance(2000);
        console()->refresh();
        QCOMPARE(on<QLabel>(console(), QStringLiteral("lblWait"))->text(), QStringLiteral("Locked: 1 s"));
        QStringList during;
        clock_->onAdvance = [&](int ms) {
            sound_->advance(ms);
            if (clock_->elapsedMs() % 10000 < 15) {
                console()->refresh();
                during << on<QLabel>(console(), QStringLiteral("lblWait"))->text();
            }
        };
        clock_->advance(1000);
        next(); // the think music plays to its end
        clock_->onAdvance = [this](int ms) { sound_->advance(ms); };
        // Seen every 10 s of the 30 s music: the seconds left go down with it.
        QCOMPARE(during.size(), 3);
        for (int k = 0; k < 3; ++k) {
            static const QRegularExpression left(QStringLiteral("^Think music: (\\d+) s left$"));
            const QRegularExpressionMatch m = left.match(during[k]);
            QVERIFY2(m.hasMatch(), qPrintable(during[k]));
            QVERIFY(qAbs(m.captured(1).toInt() - (30 - 10 * k)) <= 1);
        }
        QCOMPARE(on(console(), QStringLiteral("cmdNext"))->text(), QStringLiteral("Reveal the response"));
    }

private:
    void openConsoleByHand()
    {
        sendKey(home_, Qt::Key_F2);
        QVERIFY(console() && console()->isVisible());
    }
};

QTEST_MAIN(TestConsole)
#include "test_console.moc"
