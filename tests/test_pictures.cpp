// Pictures in clues: the keys a set carries only when it has pictures,
// where the game looks for them, what qz2 says of them, and how they travel
// with a set when the home screen exports or imports it.

#include "ScriptedFileDialog.h"
#include "ScriptedMsgBox.h"
#include "TestFolder.h"
#include "TestSets.h"

#include "game/GameState.h"
#include "platform/PictureFile.h"
#include "platform/SpecialFolders.h"
#include "questions/GameReads.h"
#include "questions/QuestionSet.h"
#include "shell/Libraries.h"
#include "ui/select/frmSelect.h"

#include <QAction>
#include <QDir>
#include <QBuffer>
#include <QElapsedTimer>
#include <QImage>
#include <QImageWriter>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QListWidget>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

// A drawing with text in it (which takes fonts) and, when given, a linked
// picture file beside it.
QByteArray drawing(const QByteArray &linked = QByteArray())
{
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' width='80' height='60'>"
           "<rect width='80' height='60' fill='navy'/><text x='8' y='36' fill='white'>Oslo</text>" +
           (linked.isEmpty() ? QByteArray() : "<image width='20' height='20' xlink:href='" + linked + "'/>") + "</svg>";
}

} // namespace

class TestPictures : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;

    QString write(const QString &name, const QByteArray &bytes) { return writeFile(dir_.filePath(name), bytes); }

private slots:
    void picturesTravelWithTheirCluesAndOnlyWhenThere()
    {
        QTemporaryDir dir;
        QuestionSet set = distinctSet();
        set.Categories[0][3].Picture[2] = QStringLiteral("maps/alps.png");
        set.Categories[2][0].Picture[0] = QStringLiteral("/srv/pictures/globe.svg");
        const QString file = dir.filePath(QStringLiteral("pics.QZ2"));
        QVERIFY(!WriteQuestionSet(set, file));
        const QByteArray bytes = QuestionSetFileBytes(set);
        QVERIFY(bytes.contains("Question2=What is 0.3.2?\r\nPicture2=maps/alps.png\r\nAnswer3="));
        QVERIFY(bytes.endsWith("Picture=/srv/pictures/globe.svg\r\n"));
        QCOMPARE(bytes.count("Picture"), 2); // clues without pictures write no key
        const QuestionSet back = LoadQuestionSet(file);
        QCOMPARE(back.Categories[0][3].Picture[2], QStringLiteral("maps/alps.png"));
        QCOMPARE(back.Categories[0][3].Picture[1], QString());
        QCOMPARE(back.Categories[2][0].Picture[0], QStringLiteral("/srv/pictures/globe.svg"));
        // The game finds a picture beside the set, or where an absolute name says.
        QCOMPARE(GameReads::CluePicture(file, 1, 2 * 6 + 3), QDir(dir.path()).filePath(QStringLiteral("maps/alps.png")));
        QCOMPARE(GameReads::CluePicture(file, 3, -1), QStringLiteral("/srv/pictures/globe.svg"));
        QCOMPARE(GameReads::CluePicture(file, 1, 0), QString());
        // A set without pictures keeps its exact bytes (the sample sets below).
        QVERIFY(!QuestionSetFileBytes(distinctSet()).contains("Picture"));
    }


    // Every kind of picture Qt reads, and files that are none: each shows
    // or counts as missing, in the game as in every qz2 command, and none
    // makes anything crash or wait (a pipe never gets a writer here).
    void everyKindOfPictureShowsOrIsMissing()
    {
        QTemporaryDir dir;
        QMap<QString, bool> shows; // file name: whether the game shows it
        QImage dot(6, 4, QImage::Format_ARGB32);
        dot.fill(Qt::darkGreen);
        for (const QByteArray &format : QImageWriter::supportedImageFormats()) {
            const QString name = QStringLiteral("written.") + QString::fromLatin1(format);
            QVERIFY2(dot.save(dir.filePath(name), format.constData()), format.constData());
            shows[name] = true;
        }
        const QByteArray gif("GIF89a\x01\x00\x01\x00\x80\x00\x00\xff\x00\x00\x00\x00\x00,\x00\x00\x00\x00\x01\x00\x01\x00\x00\x02\x02"
                             "D\x01\x00;", 35);
        const QList<std::pair<QString, QByteArray>> made{
            {QStringLiteral("tiny.gif"), gif},
            {QStringLiteral("text.svg"), drawing()},
            {QStringLiteral("packed.svgz"), readFile(QStringLiteral(QUIZZARR_TEST_DATA "/packed.svgz"))},
            {QStringLiteral("links-a-pipe.svg"), drawing(QFile::encodeName(dir.filePath(QStringLiteral("pipe.png"))))},
            {QStringLiteral("links-a-device.svg"), drawing("/dev/zero")},
        };
        for (const auto &[name, bytes] : made) {
            writeFile(dir.filePath(name), bytes);
            shows[name] = true;
        }
        QByteArray png;
        QBuffer buffer(&png);
        QVERIFY(buffer.open(QIODevice::WriteOnly) && dot.save(&buffer, "PNG"));
        const QList<std::pair<QString, QByteArray>> broken{
            {QStringLiteral("cut-short.png"), png.left(png.size() / 2)},
            {QStringLiteral("words.png"), "not a picture"},
            {QStringLiteral("empty.jpg"), QByteArray()},
            {QStringLiteral("cut-short.svg"), drawing().left(60)},
        };
        for (const auto &[name, bytes] : broken) {
            writeFile(dir.filePath(name), bytes);
            shows[name] = false;
        }
        QVERIFY(::mkfifo(QFile::encodeName(dir.filePath(QStringLiteral("pipe.png"))).constData(), 0600) == 0);
        QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("folder.png")));
        QVERIFY(QFile::link(QStringLiteral("/dev/zero"), dir.filePath(QStringLiteral("device.png"))));
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        const QByteArray socketPath = QFile::encodeName(dir.filePath(QStringLiteral("socket.png")));
        QVERIFY(size_t(socketPath.size()) < sizeof address.sun_path);
        std::memcpy(address.sun_path, socketPath.constData(), size_t(socketPath.size()));
        const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
        QVERIFY(::bind(fd, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0);
        for (const char *special : {"pipe.png", "folder.png", "device.png", "socket.png", "gone.png"})
            shows[QLatin1String(special)] = false;
        // One clue a picture, and two names that would not travel.
        QuestionSet set = distinctSet();
        int slot = 0;
        for (const QString &name : shows.keys()) {
            QVERIFY(slot < 60);
            set.Categories[size_t(slot / 30)][size_t(slot % 6)].Picture[size_t(slot % 30 / 6)] = name;
            ++slot;
        }
        set.Categories[2][0].Picture[0] = QStringLiteral("../outside.png");
        set.Categories[1][5].Picture[4] = QStringLiteral("/srv/elsewhere.png");
        const QString file = dir.filePath(QStringLiteral("kinds.QZ2"));
        QVERIFY(!WriteQuestionSet(set, file));
        QByteArray out;
        QCOMPARE(runQz2({QStringLiteral("check"), file}, &out), 0);
        for (auto it = shows.cbegin(); it != shows.cend(); ++it) {
            QCOMPARE(!ReadPictureFile(dir.filePath(it.key()), QSize(1920, 1080)).image.isNull(), it.value());
            QVERIFY2(out.contains("/" + QFile::encodeName(it.key()) + " ") != it.value(), qPrintable(it.key()));
        }
        QVERIFY(out.contains(QFile::encodeName(dir.filePath(QStringLiteral("words.png"))) + " cannot be read as a picture"));
        QVERIFY(out.contains(QFile::encodeName(dir.filePath(QStringLiteral("gone.png"))) + " is missing (the clue shows without it)"));
        QVERIFY(out.contains("  warning: [Final] Picture: ../outside.png lies outside the set's folder, so it stays "
                             "behind when the set is exported, imported or saved elsewhere"));
        QVERIFY(out.contains("  warning: [Round2Category5] Picture4: /srv/elsewhere.png is named by an absolute path"));
        // The other commands pass over what the game cannot show.
        QTemporaryDir elsewhere;
        const QString table = elsewhere.filePath(QStringLiteral("sub/kinds.csv"));
        QVERIFY(QDir(elsewhere.path()).mkdir(QStringLiteral("sub")));
        QCOMPARE(runQz2({QStringLiteral("show"), file}, &out), 0);
        QVERIFY(out.contains("\"picture\": \"../outside.png\""));
        QCOMPARE(runQz2({QStringLiteral("sheet"), file, elsewhere.filePath(QStringLiteral("sheet.pdf"))}, &out), 0);
        QCOMPARE(runQz2({QStringLiteral("export"), file, table}, &out), 0);
        QVERIFY(QFile::exists(elsewhere.filePath(QStringLiteral("sub/text.svg"))));
        QVERIFY(!QFile::exists(elsewhere.filePath(QStringLiteral("sub/pipe.png"))));
        QVERIFY(!QFile::exists(elsewhere.filePath(QStringLiteral("outside.png"))));
        QCOMPARE(runQz2({QStringLiteral("import"), table, elsewhere.filePath(QStringLiteral("back.QZ2"))}, &out), 0);
        QVERIFY(QFile::exists(elsewhere.filePath(QStringLiteral("text.svg"))));
        QVERIFY(!QFile::exists(QFileInfo(elsewhere.path()).absolutePath() + QStringLiteral("/outside.png")));
        ::close(fd);
    }

    void exportAndImportTakeThePicturesAlong()
    {
        TestFolder program;
        QTemporaryDir documents, media;
        SpecialFolders::overridePath(SpecialFolders::kDocuments, documents.path());
        SpecialFolders::overrideRemovableMedia(media.path());
        QuestionSet set = distinctSet();
        set.Categories[0][0].Picture[0] = QStringLiteral("pics/a.png");
        set.Categories[0][1].Picture[3] = QStringLiteral("../outside.png");   // leaves the folder: passed over
        set.Categories[2][0].Picture[0] = QStringLiteral("/srv/elsewhere.png"); // absolute: stays where it is
        QVERIFY(!WriteQuestionSet(set, program.file(QStringLiteral("Art.QZ2"))));
        program.write(QStringLiteral("pics/a.png"), "picture bytes");
        ScriptedMsgBox boxes;
        ScriptedFileDialog dialogs;
        GameState state;
        Libraries libraries;
        auto home = std::make_unique<frmSelect>(state, libraries);
        home->lstQuestions->setCurrentRow(0);
        dialogs.choose(media.filePath(QStringLiteral("Art.QZ2")));
        home->mnuExportFloppy->trigger();
        QFile exported(media.filePath(QStringLiteral("pics/a.png")));
        QVERIFY(exported.open(QIODevice::ReadOnly));
        QCOMPARE(exported.readAll(), QByteArray("picture bytes"));
        QVERIFY(!QFile::exists(QDir(media.path()).filePath(QStringLiteral("../outside.png"))));
        // And back in, into the documents folder, keeping its place.
        dialogs.choose(media.filePath(QStringLiteral("Art.QZ2")));
        home->mnuImportAnother->trigger();
        QVERIFY(QFile::exists(QDir(documents.path()).filePath(QStringLiteral("pics/a.png"))));
        QVERIFY(boxes.shown.isEmpty());
        home.reset();
        SpecialFolders::overridePath(SpecialFolders::kDocuments, QString());
        SpecialFolders::overrideRemovableMedia(QString());
    }
};

QTEST_MAIN(TestPictures)
#include "test_pictures.moc"
