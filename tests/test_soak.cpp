// A hundred whole games in a row in one process, as a long afternoon of
// classes would play them: home screen, board, every tile, the final, the
// standings, and back. Widgets, windows and heap must stay flat after the
// first game.

#include "FakeClock.h"
#include "FakeSoundControl.h"
#include "RunMode.h"
#include "ScriptedMsgBox.h"
#include "TestFolder.h"
#include "TestSets.h"

#include "game/GameJournal.h"
#include "game/GameRules.h"
#include "game/GameState.h"
#include "platform/ModuleFileName.h"
#include "platform/SpecialFolders.h"
#include "shell/Libraries.h"
#include "shell/basDetectDevEnv.h"
#include "ui/board/frmMain.h"
#include "ui/controls/CommandButton.h"
#include "ui/select/frmSelect.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QListWidget>
#include <QTemporaryDir>
#include <QtTest>

#include <malloc.h>
#include <stdlib.h>
#include <unistd.h>

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kHeapMeasurable = false; // the sanitizer keeps freed memory on purpose
#else
constexpr bool kHeapMeasurable = true;
#endif

// glibc keeps freed small blocks in caches of each thread, which mallinfo2
// counts as in use; they fill over the first dozens of games and would read
// as growth. The test runs with them off (see main), so what is counted is
// what the program holds.
constexpr const char *kNoThreadCaches = "glibc.malloc.tcache_count=0";

qint64 heapInUse()
{
    return qint64(mallinfo2().uordblks);
}

} // namespace

class TestSoak : public QObject {
    Q_OBJECT

    GameState state_;
    Libraries libraries_;

    void press(QWidget *w, FakeClock &clock)
    {
        clock.advance(3000); // after the answer screen's lock
        QTest::mousePress(w, Qt::LeftButton);
    }

    // One whole game through the home screen and the board's presses and
    // keys; true when it ended with the standings and the home screen back.
    bool playGame(frmSelect &home, FakeClock &clock, ScriptedMsgBox &boxes)
    {
        const int shown = int(boxes.shown.size());
        home.cmdStart->click();
        QPointer<frmMain> board = home.board();
        if (!board)
            return false;
        for (int row = 0; row < 5 && board; ++row) {
            press(board->findChild<QWidget *>(QStringLiteral("vseQuestion(%1)").arg(row * 6)), clock);
            for (int step = 0; step < 3 && board && board->screenVisible(); ++step)
                press(board->findChild<QWidget *>(QStringLiteral("vseTV")), clock);
            QKeyEvent score(QEvent::KeyPress, Qt::Key_1, Qt::NoModifier, 10, 0, 0);
            QCoreApplication::sendEvent(board, &score);
        }
        press(board->findChild<QWidget *>(QStringLiteral("vseQuestion(1)")), clock); // on to the final
        for (int step = 0; step < 4 && board; ++step)
            press(board->findChild<QWidget *>(QStringLiteral("vseTV")), clock);
        press(board->findChild<QWidget *>(QStringLiteral("vseQuestion(1)")), clock); // the standings
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        // Two boxes a game: let the sounds end, and the standings.
        return !board && home.isVisible() && boxes.shown.size() == shown + 2 &&
               boxes.shown.last().caption == QStringLiteral("Scores");
    }

private slots:
    void initTestCase() { QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans")); }

    void hundredGamesLeaveNothingBehind()
    {
        QFile::remove(GameJournal::defaultPath());
        TestFolder program;
        program.write(QStringLiteral("game.QZ2"), setText({"Rivers", "", "", "", "", ""}, {}, "Seas"));
        QTemporaryDir documents;
        SpecialFolders::overridePath(SpecialFolders::kDocuments, documents.path());
        ForceGameMode(true);
        FakeClock clock;
        ScriptedMsgBox boxes;
        FakeSoundControl sound(libraries_);
        clock.onAdvance = [&](int ms) { sound.advance(ms); };
        libraries_.hPictureLib = PictureLibrary::load(QStringLiteral(QUIZZARR_PROGRAM_DIR "/PLOVQBmp.so"));
        QVERIFY(libraries_.hPictureLib);
        auto home = std::make_unique<frmSelect>(state_, libraries_);
        home->show();
        home->cmbScore->setCurrentIndex(1);
        home->lstQuestions->setCurrentRow(0);
        qsizetype widgets = 0, windows = 0;
        qint64 heap = 0;
        for (int game = 1; game <= 100; ++game) {
            QVERIFY2(playGame(*home, clock, boxes), qPrintable(QStringLiteral("game %1").arg(game)));
            // The test's own records grow with every game; the game's must not.
            clock.pauses.clear();
            clock.waits.clear();
            boxes.shown.clear();
            sound.reset();
            if (game == 1) {
                widgets = QApplication::allWidgets().size();
                windows = QApplication::topLevelWidgets().size();
                heap = heapInUse();
            }
        }
        QCOMPARE(QApplication::allWidgets().size(), widgets);
        QCOMPARE(QApplication::topLevelWidgets().size(), windows);
        if (kHeapMeasurable) {
            const qint64 grown = heapInUse() - heap;
            // Room for the glyphs of a few texts first drawn in a later game.
            QVERIFY2(grown < 16 * 1024, qPrintable(QStringLiteral("the heap grew %1 bytes in 99 games").arg(grown)));
        }
        QCOMPARE(state_.Scores[0], 100 + 200 + 300 + 400 + 500 + 100 - Tiles::value(state_.DailyDouble1, 1));
        QVERIFY(!QFile::exists(GameJournal::defaultPath()));
        home.reset();
        SpecialFolders::overridePath(SpecialFolders::kDocuments, QString());
        ForceGameMode(false);
    }
};

int main(int argc, char **argv)
{
    const QByteArray tunables = qgetenv("GLIBC_TUNABLES");
    if (kHeapMeasurable && !tunables.contains(kNoThreadCaches)) {
        const QByteArray with = tunables.isEmpty() ? QByteArray(kNoThreadCaches) : tunables + ':' + kNoThreadCaches;
        ::setenv("GLIBC_TUNABLES", with.constData(), 1);
        ::execv("/proc/self/exe", argv); // glibc reads its tunables only as a program starts
        qFatal("test_soak could not start again without glibc's thread caches");
    }
    QApplication app(argc, argv);
    TestSoak test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}
#include "test_soak.moc"
