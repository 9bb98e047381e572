// The real companion libraries, as built into the program folder: the
// pictures they hold and the clips they play (under SDL's dummy driver).

#include "PLOVQSnd.h"

#include "platform/PictureBox.h"
#include "shell/Libraries.h"

#include <QLibrary>
#include <QtTest>

#include <csignal>
#include <dlfcn.h>

namespace {

const QString programDir = QStringLiteral(QUIZZARR_PROGRAM_DIR "/");

} // namespace

class TestCompanions : public QObject {
    Q_OBJECT

    QLibrary sound_{programDir + QStringLiteral("PLOVQSnd.so")};
    Libraries libraries_;

    template <typename F>
    F api(const char *name)
    {
        auto f = reinterpret_cast<F>(sound_.resolve(name));
        if (!f)
            qFatal("sound library lacks %s", name);
        return f;
    }
    // The library's operations, as the game calls them.
    int32_t init() { return api<int32_t (*)(uintptr_t)>("PLOV_InitSound")(0); }
    int32_t load(int32_t id, int32_t *handle) { return api<int32_t (*)(int32_t, int32_t *)>("PLOV_LoadSound")(id, handle); }
    void play(int32_t handle) { api<void (*)(int32_t)>("PLOV_PlaySound")(handle); }
    int32_t status(int32_t handle) { return api<int32_t (*)(int32_t)>("PLOV_GetSoundStatus")(handle); }
    void unload(int32_t *handle) { api<void (*)(int32_t *)>("PLOV_UnloadSound")(handle); }
    void seek(int32_t handle, int32_t ms) { api<void (*)(int32_t, int32_t)>("PLOV_SeekSound")(handle, ms); }
    void shutdown() { api<void (*)()>("PLOV_Shutdown")(); }

private slots:
    void initTestCase()
    {
        qputenv("SDL_AUDIODRIVER", "dummy");
        QVERIFY2(sound_.load(), qPrintable(sound_.errorString()));
        libraries_.hPictureLib = PictureLibrary::load(programDir + QStringLiteral("PLOVQBmp.so"));
        QVERIFY(libraries_.hPictureLib);
    }

    void soundSystemComesOnlyWithSoundAndLeavesTheSignalsAlone()
    {
        // Binding the library at the game's start must not load SDL2's sound
        // system; the first initialisation does.
        const auto sdlLoaded = [] { return ::dlopen("libSDL2-2.0.so.0", RTLD_NOW | RTLD_NOLOAD) != nullptr; };
        QVERIFY(!sdlLoaded());
        // SDL takes signals that still have their default action; the game's
        // own SIGTERM and SIGINT must stay the game's.
        for (int sig : {SIGTERM, SIGINT})
            std::signal(sig, SIG_DFL);
        QCOMPARE(init(), 0);
        QVERIFY(sdlLoaded());
        for (int sig : {SIGTERM, SIGINT}) {
            struct sigaction now {};
            sigaction(sig, nullptr, &now);
            QVERIFY(now.sa_handler == SIG_DFL);
        }
    }

    void cleanupTestCase()
    {
        shutdown();
        libraries_.ShutdownLibraries();
    }

    void holdsTwelvePicturesInThreeSizeClasses_data()
    {
        QTest::addColumn<int>("id");
        QTest::addColumn<QSize>("size");
        const QList<std::pair<int, QSize>> faces{{200, {320, 240}}, {300, {480, 360}}, {400, {1024, 768}}};
        for (const auto &[id, size] : faces)
            QTest::addRow("face %d", id) << id << size;
        for (int base : {200, 300, 400}) {
            const QSize picture = base == 200 ? QSize(320, 240) : base == 300 ? QSize(640, 480) : QSize(1600, 1200);
            QTest::addRow("daily double %d", base + 1) << base + 1 << picture;
            QTest::addRow("final %d", base + 2) << base + 2 << picture;
        }
        // Banners are wider than the widest screen of their class.
        QTest::addRow("banner 203") << 203 << QSize(1536, 96);
        QTest::addRow("banner 303") << 303 << QSize(2048, 128);
        QTest::addRow("banner 403") << 403 << QSize(5120, 320);
    }
    void holdsTwelvePicturesInThreeSizeClasses()
    {
        QFETCH(int, id);
        QFETCH(QSize, size);
        PictureBox box;
        libraries_.DrawLibraryBitmap(box, id);
        QCOMPARE(box.size(), size);
        // A real picture, not an empty surface: the centre is opaque or
        // (for banners) something is drawn somewhere along the middle row.
        const QImage &img = box.image();
        int drawn = 0;
        for (int x = 0; x < img.width(); x += 4)
            drawn += qAlpha(img.pixel(x, img.height() / 2)) > 0;
        QVERIFY(drawn > img.width() / 16);
    }

    void missingIdLeavesTargetUntouched()
    {
        for (int id : {0, 199, 204, 299, 404, 500, -1}) {
            PictureBox box(QSize(12, 7));
            QImage marked(12, 7, QImage::Format_ARGB32_Premultiplied);
            marked.fill(Qt::green);
            box.setImage(marked);
            libraries_.DrawLibraryBitmap(box, id);
            QCOMPARE(box.size(), QSize(12, 7));
            QCOMPARE(box.image(), marked);
        }
    }

    void sameIdTwiceGivesSamePicture()
    {
        PictureBox first, second;
        libraries_.DrawLibraryBitmap(first, 401);
        libraries_.DrawLibraryBitmap(second, 401);
        QCOMPARE(first.image(), second.image());
        PictureBox other;
        libraries_.DrawLibraryBitmap(other, 402);
        QVERIFY(other.image() != first.image());
    }

    void everyClipLoadsAndHasItsLength()
    {
        QCOMPARE(init(), 0);
        auto length = api<int32_t (*)(int32_t)>("PLOV_GetSoundLength");
        for (int id = 101; id <= 109; ++id) {
            int32_t handle = 0;
            QCOMPARE(load(id, &handle), 0);
            QVERIFY(handle != 0);
            const int ms = length(handle);
            QVERIFY2(ms >= 500, qPrintable(QStringLiteral("clip %1 lasts %2 ms").arg(id).arg(ms)));
            if (id == 105)
                QVERIFY(qAbs(ms - 30000) <= 100); // the think time
            if (id == 102 || id == 107) // the game waits for these
                QVERIFY2(ms >= 2000 && ms <= 5000, qPrintable(QString::number(ms)));
            unload(&handle);
            QCOMPARE(handle, 0);
        }
        int32_t handle = 7;
        QVERIFY(load(110, &handle) < 0);
        QCOMPARE(handle, 0);
    }

    void statusIsOneWhilePlayingAndNotAfterTheEnd()
    {
        QCOMPARE(init(), 0);
        int32_t handle = 0;
        QCOMPARE(load(105, &handle), 0);
        QVERIFY(status(handle) != 1); // loaded, not started
        play(handle);
        QCOMPARE(status(handle), 1);
        // Jump to the end instead of listening for 30 seconds.
        seek(handle, 30000);
        QVERIFY(status(handle) != 1);
        unload(&handle);
        QVERIFY(status(handle) != 1);
        QVERIFY(status(12345) != 1);
    }

    void clipPlayingAtShutdownPlaysOn()
    {
        QCOMPARE(init(), 0);
        int32_t first = 0, second = 0;
        QCOMPARE(load(106, &first), 0);
        unload(&first);
        QCOMPARE(load(106, &second), 0);
        QVERIFY(second != first); // a new clip never takes an old handle
        play(second);
        // The board closes right after the closing theme starts: it plays on,
        // but nothing new loads until the next initialisation.
        shutdown();
        QCOMPARE(status(second), 1);
        int32_t third = 0;
        QVERIFY(load(101, &third) < 0);
        QCOMPARE(init(), 0);
        QCOMPARE(load(101, &third), 0);
        seek(second, 60000);
        QVERIFY(status(second) != 1);
    }

};

QTEST_MAIN(TestCompanions)
#include "test_companions.moc"
