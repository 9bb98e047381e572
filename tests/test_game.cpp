// Whole games on the real board: started the one way the home screen starts
// them, played through real presses and keys, with the fake clock, scripted
// message boxes and the fake sound library. The rules themselves are
// tested on BoardGame alone (test_rules).

#include "BoardUnderTest.h"
#include "GameFixture.h"

#include "game/GameRules.h"
#include "ui/controls/CaptionControl.h"
#include "ui/controls/ShadowLabel.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>
#include <QtTest>

namespace {

const Qt::KeyboardModifiers kAllThree = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;

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

class TestGame : public QObject, GameFixture {
    Q_OBJECT

    QPointer<BoardUnderTest> board_;

    BoardUnderTest *start(const QByteArray &set, int teams)
    {
        writeSet(set);
        board_ = frmMain::StartGame<BoardUnderTest>(settings_, libraries_, teams);
        return board_;
    }

    // A press as the host makes it, with the mouse: after the 3-second lock.
    void press(QWidget *control, Qt::KeyboardModifiers m = Qt::NoModifier)
    {
        clock_->advance(3000);
        QTest::mousePress(control, Qt::LeftButton, m);
    }
    void pressTile(int i, Qt::KeyboardModifiers m = Qt::NoModifier) { press(board_->vseQuestion[size_t(i)], m); }
    void pressScreen() { press(board_->vseTV); }
    void score(int team) { sendKey(board_, Qt::Key_0 + team % 10, Qt::NoModifier, digitCode(team % 10)); }

    void playTile(int i)
    {
        const bool daily = isDailyDouble(i);
        pressTile(i);
        if (daily)
            pressScreen();
        pressScreen();
        pressScreen();
    }
    QString screenText() const { return board_->vseTV->caption().replace(QLatin1Char('\n'), QLatin1Char(' ')); }

private slots:
    void initTestCase() { QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans")); }

    void init() { setUp(7); }
    void cleanup()
    {
        delete board_.data();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        tearDown();
    }

    void wholeGameThroughPressesAndKeys()
    {
        sound_->setClipLength(105, 30000);
        start(setText({"Rivers", "Lakes", "", "", "", ""}, {"", "", "Ponds", "", "", ""}, "Seas"), 2);
        QVERIFY(board_);
        QVERIFY(board_->isVisible());
        QCOMPARE(board_->lblTeam.size(), 2);
        QCOMPARE(board_->vseCategory[1]->caption(), QStringLiteral("Lakes"));
        QCOMPARE(board_->vseQuestion[19]->caption(), QStringLiteral("$400"));
        // Team 1 takes column 0; a few layouts' SHIFT+digit score for team 2.
        for (int row = 0; row < 5; ++row) {
            playTile(row * 6);
            QCOMPARE(board_->vseQuestion[size_t(row * 6)]->caption(), QString());
            score(1);
        }
        QCOMPARE(board_->vseCategory[0]->caption(), QString());
        const int column0 = 100 + 200 + 300 + 400 + 500 + 100 - Tiles::value(settings_.DailyDouble1, 1) -
                            (settings_.DailyDouble1 != settings_.DailyDouble2 && Tiles::column(settings_.DailyDouble2) == 0
                                 ? Tiles::value(settings_.DailyDouble2, 1) - 100
                                 : 0);
        QCOMPARE(board_->lblScore[0]->caption(), QStringLiteral("$ ") + FormatScore(column0));
        sendKey(board_, Qt::Key_At, Qt::ShiftModifier, digitCode(2));       // US: SHIFT+2 is "@"
        sendKey(board_, Qt::Key_QuoteDbl, Qt::ShiftModifier, digitCode(2)); // UK and German: '"'
        sendKey(board_, Qt::Key_Eacute, Qt::NoModifier, digitCode(2));     // French, unshifted: "é"
        sendKey(board_, Qt::Key_1, Qt::KeypadModifier, 87);                // the keypad never scores
        const int last = board_->game().state().CurrentValue;
        QCOMPARE(settings_.Scores[1], 3 * last);
        QCOMPARE(board_->lblScore2[1]->caption(), QStringLiteral("$ ") + FormatScore(3 * last));
        QCOMPARE(settings_.Scores[0], column0);
        sendKey(board_, Qt::Key_N, kAllThree);
        QCOMPARE(settings_.Round, qint16(2));
        QCOMPARE(board_->vseQuestion[20]->caption(), QStringLiteral("$800"));
        sendKey(board_, Qt::Key_N, kAllThree);
        QCOMPARE(settings_.Round, qint16(3));
        for (const char *shown : {"", "Seas", "final clue", "final response"}) {
            QCOMPARE(screenText(), QString::fromLatin1(shown));
            pressScreen();
        }
        // A round's layout writes scores in plain digits, a scoring key with
        // groups of three.
        QCOMPARE(board_->lblScore[1]->caption(), QStringLiteral("$ ") + QString::number(3 * last));
        sendKey(board_, Qt::Key_2, Qt::NoModifier, digitCode(2));
        QCOMPARE(board_->lblScore[1]->caption(), QStringLiteral("$ ") + FormatScore(3 * last + 100));
        pressTile(0); // past the final: the standings
        QCOMPARE(boxes_->shown.last().caption, QStringLiteral("Scores"));
        QVERIFY(!board_->isVisible());
        QCOMPARE(sound_->played().last(), QStringLiteral("106"));
    }

    void pressesDuringAnAnimationAreDropped()
    {
        start(setText({"Rivers", "Lakes", "", "", "", ""}, {}, nullptr), 0);
        const int tile = isDailyDouble(7) ? 13 : 7;
        QWidget *target = board_->vseQuestion[size_t(tile)];
        const QPointF onTile = target->mapTo(board_, QPointF(target->rect().center()));
        const QPointF onHeader = board_->vseCategory[0]->mapTo(board_, QPointF(5, 5));
        // The host clicks where the tile lies, and double-clicks the header,
        // while the titles parade: window-system events, queued as they come.
        auto queue = [&](QEvent::Type type, QPointF at) {
            QCoreApplication::postEvent(board_->windowHandle(),
                                        new QMouseEvent(type, at, at, board_->mapToGlobal(at), Qt::LeftButton,
                                                        Qt::LeftButton, Qt::NoModifier));
        };
        int holds = 0;
        clock_->onPause = [&](int ms) {
            if (ms == 2500 && ++holds == 1) {
                queue(QEvent::MouseButtonPress, onTile);
                queue(QEvent::MouseButtonDblClick, onHeader);
            }
        };
        press(board_->vseCategory[1]);
        QCoreApplication::processEvents();
        clock_->onPause = nullptr;
        QCOMPARE(holds, 2); // one parade of two titles, not a second one
        QVERIFY(!board_->vseTV->isVisible());
        QCOMPARE(board_->vseQuestion[size_t(tile)]->caption(), Tiles::caption(tile, 1));
        QCOMPARE(board_->game().state().stepCode, QStringLiteral("NO"));
    }

    void dailyDoubleZoomsWithoutItsValue()
    {
        start(setText({"Rivers", "Lakes", "Seas", "", "", ""}, {}, nullptr), 2);
        const int dd = settings_.DailyDouble1;
        QStringList captionsWhileZooming;
        clock_->onPause = [&](int) { captionsWhileZooming << board_->vseTV->caption(); };
        pressTile(dd);
        clock_->onPause = nullptr;
        QCOMPARE(captionsWhileZooming.size(), 5);
        QCOMPARE(captionsWhileZooming.join(QString()), QString());
        QVERIFY(!board_->lblValue->isVisible());
        pressScreen();
        QVERIFY(board_->lblValue->isVisible());
        QCOMPARE(board_->lblValue->caption(), Tiles::caption(dd, 1));
        QCOMPARE(screenText(), QStringLiteral("r1c%1a%2").arg(Tiles::column(dd)).arg(Tiles::row(dd)));
    }

    void answerTimerRunsOnTheBoard()
    {
        start(setText({"A", "B", "C", "", "", ""}, {}, nullptr), 0);
        int tile = 0;
        while (isDailyDouble(tile))
            tile += 6;
        pressTile(tile);
        QVERIFY(board_->tmrQuestion->isActive());
        QCOMPARE(board_->tmrQuestion->interval(), 10000);
        QMetaObject::invokeMethod(board_->tmrQuestion, "timeout");
        QCOMPARE(sound_->played().last(), QStringLiteral("108"));
        QVERIFY(!board_->tmrQuestion->isActive());
        pressScreen(); // the response: no second time-out
        QVERIFY(!board_->tmrQuestion->isActive());
        QCOMPARE(sound_->played().count(QStringLiteral("108")), 1);
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
        QCOMPARE(board_->game().state().stepCode, QStringLiteral("NO")); // nothing after the wait
        QVERIFY(!board_->isVisible());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(board_.isNull());
    }

    void endingTheGameDuringTheStartSoundStartsNothing()
    {
        sound_->setClipLength(107, 5000);
        settings_.QuestionFile = writeFile(dir_.filePath(QStringLiteral("game.QZ2")), setText({"A"}, {}, "Z"));
        bool quit = false;
        clock_->onAdvance = [&](int ms) {
            sound_->advance(ms);
            const auto boards = QApplication::topLevelWidgets();
            for (QWidget *w : boards) {
                if (!quit && qobject_cast<frmMain *>(w) && w->isVisible()) {
                    quit = true;
                    sendKey(w, Qt::Key_Q, kAllThree);
                }
            }
        };
        QVERIFY(!frmMain::StartGame<BoardUnderTest>(settings_, libraries_, 1));
        QVERIFY(quit);
        QCOMPARE(sound_->played(), QStringList({QStringLiteral("107")}));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

QTEST_MAIN(TestGame)
#include "test_game.moc"
