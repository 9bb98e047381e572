// Pictures in clues: the keys a set carries only when it has pictures,
// where the game looks for them, what qz2 says of them, and how they travel
// with a set when the home screen exports or imports it.

#include "ScriptedFileDialog.h"
#include "ScriptedMsgBox.h"
#include "TestFolder.h"
#include "TestSets.h"

#include "game/GameState.h"
#include "platform/SpecialFolders.h"
#include "questions/GameReads.h"
#include "questions/QuestionSet.h"
#include "shell/Libraries.h"
#include "ui/select/frmSelect.h"

#include <QAction>
#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QListWidget>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QByteArray crlf(const QStringList &lines)
{
    return lines.join(QStringLiteral("\r\n")).toUtf8() + "\r\n";
}

} // namespace

class TestPictures : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;

    QString write(const QString &name, const QByteArray &bytes) { return writeFile(dir_.filePath(name), bytes); }

    int runQz2(const QStringList &args, QByteArray *out)
    {
        QProcess p;
        p.start(QStringLiteral(QUIZZARR_PROGRAM_DIR "/qz2"), args);
        if (!p.waitForFinished(20000))
            return -1;
        *out = p.readAllStandardOutput();
        return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
    }

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


    void qz2ChecksAndListsPictures()
    {
        QDir(dir_.path()).mkpath(QStringLiteral("pics"));
        QImage dot(4, 4, QImage::Format_RGB32);
        dot.fill(Qt::red);
        QVERIFY(dot.save(dir_.filePath(QStringLiteral("pics/good.png"))));
        write(QStringLiteral("pics/broken.png"), "not a picture");
        const QString path = write(QStringLiteral("pics.QZ2"),
                                   crlf({QStringLiteral("[Round1]"), QStringLiteral("Description=d"), QStringLiteral("Category0=C"),
                                         QString(), QStringLiteral("[Round1Category0]"), QStringLiteral("Answer0=a"),
                                         QStringLiteral("Question0=q"), QStringLiteral("Picture0=pics/good.png"),
                                         QStringLiteral("Answer1=a"), QStringLiteral("Question1=q"),
                                         QStringLiteral("Picture1=pics/broken.png"), QStringLiteral("Answer2=a"),
                                         QStringLiteral("Question2=q"), QStringLiteral("Picture2=pics/gone.png"), QString(),
                                         QStringLiteral("[Final]"), QStringLiteral("Category=F"), QStringLiteral("Answer=fa"),
                                         QStringLiteral("Question=fq"), QStringLiteral("Picture=pics/good.png")}));
        QByteArray out;
        QCOMPARE(runQz2({QStringLiteral("check"), path}, &out), 0); // still playable: the clues show alone
        QVERIFY(!out.contains("good.png"));
        QVERIFY(out.contains("  picture: [Round1Category0] Picture1: " + QFile::encodeName(dir_.filePath(QStringLiteral("pics/broken.png"))) +
                             " cannot be read as a picture"));
        QVERIFY(out.contains("  picture: [Round1Category0] Picture2: " + QFile::encodeName(dir_.filePath(QStringLiteral("pics/gone.png"))) +
                             " is missing (the clue shows without it)"));
        QCOMPARE(runQz2({QStringLiteral("show"), path}, &out), 0);
        const QJsonObject set = QJsonDocument::fromJson(out).object();
        QCOMPARE(set[QStringLiteral("rounds")][0][0][QStringLiteral("pictures")].toArray().at(2).toString(),
                 QStringLiteral("pics/gone.png"));
        QCOMPARE(set[QStringLiteral("final")][QStringLiteral("picture")].toString(), QStringLiteral("pics/good.png"));
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
