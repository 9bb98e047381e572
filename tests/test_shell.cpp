// Start-up, shutdown, run mode, the game settings' tile rules, and playing
// clips through the sound library binding.

#include "FakeClock.h"
#include "FakeSoundControl.h"
#include "RunMode.h"
#include "ScriptedMsgBox.h"
#include "TestFolder.h"

#include "game/GameJournal.h"
#include "game/GameState.h"
#include "platform/ModuleFileName.h"
#include "platform/PictureBox.h"
#include "platform/TerminationSignals.h"
#include "shell/PictureLibrary.h"
#include "shell/SoundLibrary.h"
#include "shell/basDetectDevEnv.h"
#include "shell/Libraries.h"
#include "ui/shell/WindowIcon.h"
#include "ui/shell/basPLOVQuzr.h"

#include <QApplication>
#include <QTimer>
#include <QtTest>

#include <csignal>
#include <optional>

namespace {

constexpr const char *kSoundOperations[] = {"PLOV_InitSound",      "PLOV_LoadSound",   "PLOV_PlaySound",
                                            "PLOV_GetSoundStatus", "PLOV_UnloadSound", "PLOV_Shutdown"};


QWidget *visibleWindowTitled(const QString &title)
{
    for (QWidget *w : QApplication::topLevelWidgets()) {
        if (w->isVisible() && w->windowTitle() == title)
            return w;
    }
    return nullptr;
}

} // namespace

class TestShell : public QObject {
    Q_OBJECT

    GameState state_;
    Libraries libraries_;

    // The game's own sound, started as the board starts it, on the fake
    // clock that plays its clips.
    void startSound(FakeSoundControl &fake, FakeClock &clock)
    {
        clock.onAdvance = [&](int ms) { fake.advance(ms); };
        ForceGameMode(true);
        libraries_.hSoundLib->InitSound(0);
    }

private slots:
    void cleanup()
    {
        QFile::remove(GameJournal::defaultPath()); // no game left for the next test
        ModuleFileName::declareGameExecutable(false);
        ModuleFileName::overridePath(QString());
        ModuleFileName::overrideProgramFolder(QString());
        basDetectDevEnv::ForgetRunMode();
        libraries_.ShutdownLibraries();
    }

    void picksPictureSetByScreenWidth_data()
    {
        QTest::addColumn<double>("width");
        QTest::addColumn<int>("screenId");
        QTest::newRow("small screen") << 320.0 << 200;
        QTest::newRow("640 is still small") << 640.0 << 200;
        QTest::newRow("641 is medium") << 641.0 << 300;
        QTest::newRow("949 is still medium") << 949.0 << 300;
        QTest::newRow("950 is large") << 950.0 << 400;
        QTest::newRow("4K") << 3840.0 << 400;
    }
    void picksPictureSetByScreenWidth()
    {
        QFETCH(double, width);
        QFETCH(int, screenId);
        const PictureIdSet ids = pictureIdsForScreenWidth(width);
        QCOMPARE(ids.screen, screenId);
        QCOMPARE(ids.dailyDouble, screenId + 1);
        QCOMPARE(ids.final, screenId + 2);
        QCOMPARE(ids.backdrop, screenId + 3);
    }

    // Start-up on a prepared program folder: each library that cannot be
    // bound is named in a box of its own (OK only, no icon) before the home
    // screen shows, the game starts all the same, and closing the home
    // screen deletes it and releases what was bound.
    void startUpNamesWhatItCannotLoad_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QStringList>("messages"); // %1: the program folder
        const QString graphics = QStringLiteral("Unable to load %1PLOVQBmp.so. The game will still work, but with no graphics.");
        const QString sounds = QStringLiteral("Unable to load %1PLOVQSnd.so. The game will still work, but with no sounds.");
        QTest::newRow("nothing there") << "empty" << QStringList{graphics, sounds};
        QTest::newRow("both there") << "program" << QStringList{};
        QTest::newRow("a sound file that is no library") << "junk" << QStringList{sounds};
        for (const char *operation : kSoundOperations)
            QTest::newRow(operation) << QString::fromLatin1(operation) << QStringList{sounds};
        QTest::newRow("the file system's root") << "/" << QStringList{graphics, sounds};
    }
    void startUpNamesWhatItCannotLoad()
    {
        QFETCH(QString, folder);
        QFETCH(QStringList, messages);
        const QString homeTitle = QStringLiteral("Select the question set to use");
        std::optional<TestFolder> prepared;
        QString path = folder == QStringLiteral("program") ? QStringLiteral(QUIZZARR_PROGRAM_DIR "/") : folder;
        if (path.startsWith(QLatin1Char('/'))) {
            ModuleFileName::overrideProgramFolder(path);
        } else {
            prepared.emplace();
            path = prepared->path();
            const QString variant = QStringLiteral(FAKE_SOUND_VARIANTS "/") + folder + QStringLiteral("/PLOVQSnd.so");
            if (folder.startsWith(QStringLiteral("PLOV_"))) {
                QLibrary lacking(variant);
                QVERIFY2(lacking.load(), qPrintable(lacking.errorString()));
                for (const char *operation : kSoundOperations)
                    QCOMPARE(lacking.resolve(operation) != nullptr, folder != QLatin1String(operation));
                QVERIFY(QFile::copy(variant, prepared->file(QStringLiteral("PLOVQSnd.so"))));
            } else if (folder == QStringLiteral("junk")) {
                prepared->write(QStringLiteral("PLOVQSnd.so"), "not a library at all");
            }
            if (folder != QStringLiteral("empty"))
                QVERIFY(QFile::copy(QStringLiteral(QUIZZARR_PROGRAM_DIR "/PLOVQBmp.so"), prepared->file(QStringLiteral("PLOVQBmp.so"))));
        }
        ScriptedMsgBox boxes;
        state_.Round = 3;
        boxes.whileShown = [&](const ShownBox &box) {
            QVERIFY(!visibleWindowTitled(homeTitle));
            QCOMPARE(box.style, 0);
            QCOMPARE(box.caption, QStringLiteral("PLOV(tm) Quizzarr!"));
        };

        basPLOVQuzr::Main(state_, libraries_);
        QStringList shown, expected;
        for (const ShownBox &box : boxes.shown)
            shown << box.text;
        for (const QString &m : messages)
            expected << m.arg(path);
        QCOMPARE(shown, expected);
        QCOMPARE(bool(libraries_.hPictureLib), !expected.join(QString()).contains(QStringLiteral("graphics")));
        QCOMPARE(bool(libraries_.hSoundLib), !expected.join(QString()).contains(QStringLiteral("sounds")));
        QCOMPARE(state_.Round, qint16(1));
        QPointer<QWidget> home = visibleWindowTitled(homeTitle);
        QVERIFY(home);
        home->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(home.isNull());
        QVERIFY(!libraries_.hPictureLib && !libraries_.hSoundLib);
    }

    void runModeComparesExecutableWithItsOwnName_data()
    {
        QTest::addColumn<bool>("declared");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("module");
        QTest::addColumn<bool>("compiled");
        // The game's executable, under the name the host gave it.
        QTest::newRow("the game itself") << true << "/opt/quiz/" << "/opt/quiz/quizzarr" << true;
        QTest::newRow("renamed game") << true << "/opt/quiz/" << "/opt/quiz/Classroom Quiz" << true;
        QTest::newRow("renamed, with an extension") << true << "/opt/quiz/" << "/opt/quiz/quiz.bin" << true;
        QTest::newRow("dot in a folder name is kept") << true << "/opt/my.games/" << "/opt/my.games/quiz" << true;
        QTest::newRow("game at the root") << true << "/" << "/quiz" << true;
        QTest::newRow("module outside the program folder") << true << "/opt/quiz/" << "/usr/bin/driver" << false;
        // Any other program: only a module named like the game counts, which
        // is how tests force the game's mode.
        QTest::newRow("forced by a test") << false << "/opt/quiz/" << "/opt/quiz/quizzarr" << true;
        QTest::newRow("letter case ignored") << false << "/opt/quiz/" << "/OPT/Quiz/Quizzarr" << true;
        QTest::newRow("extension cut") << false << "/opt/quiz/" << "/opt/quiz/quizzarr.bin" << true;
        QTest::newRow("test program beside the game") << false << "/opt/quiz/" << "/opt/quiz/test_shell" << false;
        QTest::newRow("dot in a folder, other program") << false << "/opt/my.games/" << "/opt/my.games/ide" << false;
        QTest::newRow("another program") << false << "/opt/quiz/" << "/usr/bin/ide" << false;
    }
    void runModeComparesExecutableWithItsOwnName()
    {
        QFETCH(bool, declared);
        QFETCH(QString, folder);
        QFETCH(QString, module);
        QFETCH(bool, compiled);
        ModuleFileName::declareGameExecutable(declared);
        ModuleFileName::overrideProgramFolder(folder);
        ModuleFileName::overridePath(module);
        basDetectDevEnv::ForgetRunMode();
        QCOMPARE(basDetectDevEnv::IsRunningCompiled(), compiled);
        QCOMPARE(basDetectDevEnv::IsInDevEnv(), !compiled);
    }

    void testProgramsAreNotTheGame()
    {
        basDetectDevEnv::ForgetRunMode();
        QVERIFY(basDetectDevEnv::IsInDevEnv());
        // Declared the game, this very program is one, under its own name.
        ModuleFileName::declareGameExecutable();
        basDetectDevEnv::ForgetRunMode();
        QVERIFY(basDetectDevEnv::IsRunningCompiled());
    }

    void newClipCutsOffTheLast()
    {
        FakeSoundControl fake(libraries_);
        FakeClock clock;
        startSound(fake, clock);
        libraries_.PlayGameSound(101, false);
        QVERIFY(libraries_.hCurrentSound != 0);
        libraries_.PlayGameSound(104, false);
        QCOMPARE(fake.calls(), QStringList({QStringLiteral("InitSound"), QStringLiteral("LoadSound 101"),
                                            QStringLiteral("PlaySound 101"), QStringLiteral("UnloadSound 101"),
                                            QStringLiteral("LoadSound 104"), QStringLiteral("PlaySound 104")}));
        QVERIFY(clock.waits.isEmpty()); // not waiting means not waiting
    }

    void waitingForTheEndDispatchesEventsAndSleeps()
    {
        FakeSoundControl fake(libraries_);
        FakeClock clock;
        startSound(fake, clock);
        fake.setClipLength(102, 3000);
        bool timerRan = false;
        QTimer::singleShot(0, [&] { timerRan = true; });
        libraries_.PlayGameSound(102, true);
        QVERIFY(timerRan);
        QCOMPARE(libraries_.hCurrentSound, 0);
        QVERIFY(fake.calls().endsWith(QStringLiteral("UnloadSound 102")));
        // The clip's 3 s passed in sleeps of a few milliseconds each, not
        // in thousands of empty polls.
        QVERIFY(clock.elapsedMs() >= 3000);
        QVERIFY(clock.elapsedMs() < 3100);
        QVERIFY(!clock.waits.isEmpty());
        for (int ms : clock.waits)
            QVERIFY(ms >= 5 && ms <= 50);
        QCOMPARE(fake.statusPolls(), clock.waits.size() + 1);
    }

    void clipStartedWhileWaitingIsLeftPlaying()
    {
        FakeSoundControl fake(libraries_);
        FakeClock clock;
        startSound(fake, clock);
        fake.setClipLength(105, 30000);
        fake.setClipLength(101, 5000);
        QTimer::singleShot(0, [this] { libraries_.PlayGameSound(101, false); });
        libraries_.PlayGameSound(105, true);
        QVERIFY(libraries_.hCurrentSound != 0);
        QVERIFY(clock.elapsedMs() < 1000);
        QCOMPARE(fake.calls().last(), QStringLiteral("PlaySound 101"));
    }

    void silentInDevelopmentEnvironmentAndWithoutLibrary()
    {
        {
            FakeSoundControl fake(libraries_);
            ForceGameMode(false);
            libraries_.hSoundLib->InitSound(0);
            fake.reset();
            libraries_.PlayGameSound(101, true);
            QVERIFY(fake.calls().isEmpty());
        }
        ForceGameMode(true);
        QVERIFY(!libraries_.hSoundLib);
        libraries_.PlayGameSound(101, true); // nothing to call, nothing to crash
        QCOMPARE(libraries_.hCurrentSound, 0);
    }

    void failedLoadLeavesNoClip()
    {
        FakeSoundControl fake(libraries_);
        FakeClock clock;
        startSound(fake, clock);
        libraries_.PlayGameSound(103, false);
        fake.setLoadFails(108, true);
        libraries_.PlayGameSound(108, true);
        QCOMPARE(libraries_.hCurrentSound, 0);
        QVERIFY(!fake.calls().contains(QStringLiteral("PlaySound 108")));
        QVERIFY(clock.waits.isEmpty());
    }

    void shutdownForgetsTheCurrentClip()
    {
        FakeSoundControl fake(libraries_);
        FakeClock clock;
        startSound(fake, clock);
        libraries_.PlayGameSound(106, false);
        QVERIFY(libraries_.hCurrentSound != 0);
        libraries_.ShutdownSound();
        QCOMPARE(libraries_.hCurrentSound, 0);
        // Without a new initialisation, loads fail and nothing is heard.
        libraries_.PlayGameSound(101, false);
        QCOMPARE(libraries_.hCurrentSound, 0);
        QCOMPARE(fake.calls().last(), QStringLiteral("LoadSound 101 failed"));
    }

    void terminationSignalsArriveOnTheEventLoop()
    {
        TerminationSignals ending;
        QSignalSpy received(&ending, &TerminationSignals::received);
        for (int s : {SIGTERM, SIGINT, SIGHUP})
            ::raise(s); // would end the test program but for the handlers
        for (int turn = 0; turn < 10 && received.size() < 3; ++turn)
            QCoreApplication::processEvents(); // the bytes wait in the pipe already
        QCOMPARE(received.size(), 3);
        QCOMPARE(received[0][0].toInt(), SIGTERM);
        QCOMPARE(received[2][0].toInt(), SIGHUP);
    }

    void drawingWithoutPictureLibraryLeavesTargetUntouched()
    {
        QVERIFY(!libraries_.hPictureLib);
        PictureBox box(QSize(30, 20));
        QImage before = box.image();
        before.fill(Qt::red);
        box.setImage(before);
        libraries_.DrawLibraryBitmap(box, 400);
        QCOMPARE(box.size(), QSize(30, 20));
        QCOMPARE(box.image().pixelColor(5, 5), QColor(Qt::red));
    }
};

QTEST_MAIN(TestShell)
#include "test_shell.moc"
