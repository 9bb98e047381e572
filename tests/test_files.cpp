// Question-set files on disk and the way to them: the open/save dialog
// wrapper and Qt's real dialog behind it, saving that never loses the old
// file, and reading that survives any input.

#include "ScriptedFileDialog.h"
#include "TestSets.h"

#include "platform/GetPrivateProfileString.h"
#include "platform/Windows1252.h"
#include "platform/WriteFileReplacing.h"
#include "questions/GameReads.h"
#include "questions/QuestionSet.h"
#include "questions/clsOpenSaveDlg.h"
#include "ui/controls/QtFileDialog.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

// How much more memory the process has held at its peak since start():
// its peak resident size.
class PeakMemory {
public:
    // False when the measure cannot be taken.
    bool start()
    {
        QFile clear(QStringLiteral("/proc/self/clear_refs"));
        if (clear.open(QIODevice::WriteOnly))
            clear.write("5");
        before_ = residentPeak();
        return before_ > 0;
    }
    qint64 grownKiB() const { return residentPeak() - before_; }

private:
    // The process's peak resident memory since the last reset (Linux), in KiB.
    static qint64 residentPeak()
    {
        QFile status(QStringLiteral("/proc/self/status"));
        if (!status.open(QIODevice::ReadOnly))
            return 0;
        for (const QByteArray &line : status.readAll().split('\n')) {
            if (line.startsWith("VmHWM:"))
                return line.mid(6).trimmed().split(' ').value(0).toLongLong();
        }
        return 0;
    }

    qint64 before_ = 0;
};

// Works the real file dialogs as a host would: each dialog that opens gets
// the next name typed and accepted (or is cancelled when the names have run
// out); each message box is read and closed. It acts from the dialogs' own
// event loops, so nothing waits.
class DialogHost final : public QObject {
public:
    explicit DialogHost(QStringList names) : names_(std::move(names)) { qApp->installEventFilter(this); }
    ~DialogHost() override { qApp->removeEventFilter(this); }

    QStringList messages;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Show)
            return false;
        if (auto *dialog = qobject_cast<QFileDialog *>(watched)) {
            const QString name = names_.isEmpty() ? QString() : names_.takeFirst();
            QMetaObject::invokeMethod(dialog, [dialog, name] {
                if (name.isEmpty()) {
                    dialog->reject();
                    return;
                }
                dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(name);
                static_cast<QDialog *>(dialog)->accept(); // as the Save button does
            }, Qt::QueuedConnection);
        } else if (auto *box = qobject_cast<QMessageBox *>(watched)) {
            messages << box->text();
            QMetaObject::invokeMethod(box, [box] { box->accept(); }, Qt::QueuedConnection);
        }
        return false;
    }

private:
    QStringList names_;
};

} // namespace

class TestFiles : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;

    QString path(const QString &name) const { return dir_.filePath(name); }

    QString write(const QString &name, const QByteArray &bytes) { return writeFile(path(name), bytes); }
    QByteArray read(const QString &file) { return readFile(file); }

private slots:
    // ------------------------------------------------------------ the dialogs

    void wrapperKeepsNamesAndFiltersAsItsBuffersHoldThem()
    {
        clsOpenSaveDlg d;
        for (const char *name : {"/home/host/Sets/Quiz.QZ2", "A:Quiz.QZ2", "Quiz.QZ2"}) {
            d.setFileName(QString::fromLatin1(name));
            QCOMPARE(d.FileNameExtOnly(), QStringLiteral("Quiz.QZ2"));
        }
        d.setFileName(QString(259, QLatin1Char('n')));
        QCOMPARE(d.FileName().size(), 259);
        d.setFileName(QString(260, QLatin1Char('n')));
        QCOMPARE(d.FileName(), QString()); // no room for the terminator
        d.setFilter(QStringLiteral("A|*.a|B|*.b|"));
        QCOMPARE(d.Filter(), QStringLiteral("A|*.a|B|*.b"));
        d.setFilter(QStringLiteral("no bars here"));
        QCOMPARE(d.Filter(), QString());
    }

    void dialogsReceiveTheSettingsAndHandBackThePath()
    {
        ScriptedFileDialog dialogs;
        clsOpenSaveDlg d;
        d.setFilter(QStringLiteral("PLOV(tm) Quizzarr! QA Files (*.QZ2;*.QZA)|*.QZ2;*.QZA"));
        d.setInitialDir(QStringLiteral("/sets/"));
        d.setWindowTitle(QStringLiteral("Open"));
        d.setFileName(QStringLiteral("Quiz"));
        d.Flags().setFileMustExist(true);
        dialogs.choose(QStringLiteral("/sets/Chosen.QZA"));
        QVERIFY(d.ShowOpen());
        const FileDialogRequest &r = dialogs.requests.last();
        QVERIFY(!r.save);
        QCOMPARE(r.title, QStringLiteral("Open"));
        QCOMPARE(r.initialDir, QStringLiteral("/sets/"));
        QCOMPARE(r.fileName, QStringLiteral("Quiz"));
        QCOMPARE(r.filters.size(), 1);
        QCOMPARE(r.filters[0].first, QStringLiteral("PLOV(tm) Quizzarr! QA Files (*.QZ2;*.QZA)"));
        QCOMPARE(r.flags, quint32(0x282A0A | 0x1000));
        QCOMPARE(d.FileName(), QStringLiteral("/sets/Chosen.QZA"));
        QCOMPARE(d.FilterIndex(), 1);
        QCOMPARE(CaseInsensitivePatterns(r.filters[0].second),
                 QStringList({QStringLiteral("*.[Qq][Zz]2"), QStringLiteral("*.[Qq][Zz][Aa]")}));
        // A cancelled dialog keeps the name.
        dialogs.cancel();
        QVERIFY(!d.ShowSaveAs());
        QVERIFY(dialogs.requests.last().save);
        QCOMPARE(d.FileName(), QStringLiteral("/sets/Chosen.QZA"));
    }

    void realSaveDialogRefusesAFolderThatDoesNotExist()
    {
                QDir().mkpath(path(QStringLiteral("Sets")));
        const QString missing = path(QStringLiteral("No such folder/Set.QZ2"));
        const QString existing = path(QStringLiteral("Sets/Set.QZ2"));
        clsOpenSaveDlg d; // the wrapper's own flags hold PathMustExist
        d.setInitialDir(path(QStringLiteral("Sets")));
        QtFileDialog real; // Qt's own dialog, as the game installs it
        installFileDialogHandler(&real);
        {
            DialogHost host({missing, existing});
            QVERIFY(d.ShowSaveAs());
            QCOMPARE(d.FileName(), existing);
            QCOMPARE(host.messages.size(), 1);
            QVERIFY2(host.messages[0].startsWith(missing + QStringLiteral("\n")), qPrintable(host.messages[0]));
        }
        // Without the flag the dialog lets the name through.
        DialogHost careless({missing});
        d.Flags().setPathMustExist(false);
        QVERIFY(d.ShowSaveAs());
        QCOMPARE(d.FileName(), missing);
        QVERIFY(careless.messages.isEmpty());
        installFileDialogHandler(nullptr);
    }

    // -------------------------------------------------------- writing safely

    void failedWriteReportsAndKeepsTheOldFile()
    {
        const QuestionSet s = distinctSet();
        const FileError missing = WriteQuestionSet(s, dir_.filePath(QStringLiteral("no/such/folder/Set")));
        QCOMPARE(missing.number, ENOENT);
        QVERIFY(!missing.description.isEmpty());
        const QString old = write(QStringLiteral("Locked.QZ2"), "old contents\r\n");
        QVERIFY(QFile::setPermissions(old, QFileDevice::ReadOwner | QFileDevice::ReadGroup));
        const FileError locked = WriteQuestionSet(s, old);
        QCOMPARE(locked.number, EACCES);
        QCOMPARE(read(old), QByteArray("old contents\r\n"));
        QDir(dir_.path()).mkdir(QStringLiteral("readonly"));
        const QString folder = dir_.filePath(QStringLiteral("readonly"));
        QVERIFY(QFile::setPermissions(folder, QFileDevice::ReadOwner | QFileDevice::ExeOwner));
        QCOMPARE(WriteQuestionSet(s, folder + QStringLiteral("/Set")).number, EACCES);
        QVERIFY(QFile::setPermissions(folder, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner));
        // No temporary file is left behind by the failures.
        QCOMPARE(QDir(dir_.path()).entryList({QStringLiteral(".quizzarr-save-*")}, QDir::Hidden | QDir::Files),
                 QStringList());
    }

    // The system's own reason for refusing, not one made up: an unchangeable
    // file gives "Operation not permitted" as a read-only file system gives
    // its own words. Setting the flag takes the administrator's right.
    void saveOverAnUnchangeableFileNamesTheRealCause()
    {
        const QString old = write(QStringLiteral("Fixed.QZ2"), "old contents\r\n");
        const QString source = write(QStringLiteral("Source.QZ2"), "new contents\r\n");
        const int fd = ::open(QFile::encodeName(old).constData(), O_RDONLY);
        QVERIFY(fd >= 0);
        int flags = 0;
        const bool fixed = ::ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0 &&
                           (flags |= FS_IMMUTABLE_FL, ::ioctl(fd, FS_IOC_SETFLAGS, &flags) == 0);
        auto release = qScopeGuard([&] {
            flags &= ~FS_IMMUTABLE_FL;
            ::ioctl(fd, FS_IOC_SETFLAGS, &flags);
            ::close(fd);
        });
        if (!fixed)
            QSKIP("this user or file system cannot make a file unchangeable");
        const FileError written = WriteQuestionSet(distinctSet(), old);
        QCOMPARE(written.number, EPERM);
        QCOMPARE(written.description, QString::fromLocal8Bit(std::strerror(EPERM)));
        QCOMPARE(CopyFileReplacing(source, old).number, EPERM);
        QCOMPARE(read(old), QByteArray("old contents\r\n"));
    }

    // The disk fills up in the middle of a save: the old file stays whole,
    // as the new one is written beside it and only then takes its place. A
    // limit on the size of files makes the write fail partway, for any user.
    void saveThatFailsPartwayKeepsTheOldFile_data()
    {
        QTest::addColumn<bool>("copy");
        QTest::newRow("writing a set") << false;
        QTest::newRow("copying a file") << true;
    }
    void saveThatFailsPartwayKeepsTheOldFile()
    {
        QFETCH(bool, copy);
        const QByteArray before = "[Round1]\r\nDescription=The old set\r\n";
        const QString old = write(QStringLiteral("Full.QZ2"), before);
        const QString source = write(QStringLiteral("Big.QZ2"), QuestionSetFileBytes(distinctSet()));
        QVERIFY(QFileInfo(source).size() > 1024);
        rlimit saved{};
        QVERIFY(::getrlimit(RLIMIT_FSIZE, &saved) == 0);
        rlimit small = saved;
        small.rlim_cur = 1024;
        const auto handler = std::signal(SIGXFSZ, SIG_IGN); // the write fails instead of the program
        QVERIFY(::setrlimit(RLIMIT_FSIZE, &small) == 0);
        const FileError error = copy ? CopyFileReplacing(source, old) : WriteQuestionSet(distinctSet(), old);
        ::setrlimit(RLIMIT_FSIZE, &saved);
        std::signal(SIGXFSZ, handler);
        QCOMPARE(error.number, EFBIG);
        QCOMPARE(read(old), before);
        QCOMPARE(QDir(dir_.path()).entryList({QStringLiteral(".quizzarr-save-*")}, QDir::Hidden | QDir::Files),
                 QStringList());
    }

    // A save killed midway leaves its temporary file; the next save into
    // the folder takes away those older than a minute, and no other file.
    void aSaveRemovesWhatKilledSavesLeft()
    {
        const QString old = write(QStringLiteral(".quizzarr-save-killed"), "half a set");
        const QString recent = write(QStringLiteral(".quizzarr-save-running"), "a save under way");
        const QString other = write(QStringLiteral(".quizzarr-other"), "not ours");
        const timespec times[2] = {{0, UTIME_OMIT}, {::time(nullptr) - 120, 0}};
        for (const QString &path : {old, other})
            QVERIFY(::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0) == 0);
        QVERIFY(!WriteQuestionSet(distinctSet(), dir_.filePath(QStringLiteral("Set"))));
        QVERIFY(!QFile::exists(old));
        QVERIFY(QFile::exists(recent));
        QVERIFY(QFile::exists(other));
    }

    void copyOntoItselfFailsHoweverThePathIsSpelled_data()
    {
        QTest::addColumn<QString>("spelling");
        QTest::newRow("the same path") << "Sets/a.QZ2";
        QTest::newRow("through a dot") << "Sets/./a.QZ2";
        QTest::newRow("up and down again") << "Sets/../Sets/a.QZ2";
        QTest::newRow("doubled separator") << "Sets//a.QZ2";
        QTest::newRow("through a linked folder") << "Linked/a.QZ2";
        QTest::newRow("through a link to the file") << "link.QZ2";
    }
    void copyOntoItselfFailsHoweverThePathIsSpelled()
    {
        QFETCH(QString, spelling);
        QTemporaryDir dir;
        const QString file = dir.filePath(QStringLiteral("Sets/a.QZ2"));
        QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("Sets")));
        QFile f(file);
        QVERIFY(f.open(QIODevice::WriteOnly) && f.write("[Round1]\r\nDescription=Mine\r\n") > 0);
        f.close();
        QVERIFY(QFile::link(dir.filePath(QStringLiteral("Sets")), dir.filePath(QStringLiteral("Linked"))));
        QVERIFY(QFile::link(file, dir.filePath(QStringLiteral("link.QZ2"))));
        const FileError error = CopyFileReplacing(file, dir.path() + QLatin1Char('/') + spelling);
        QCOMPARE(error.number, EEXIST);
        QCOMPARE(read(file), QByteArray("[Round1]\r\nDescription=Mine\r\n"));
        QVERIFY(QFileInfo(dir.filePath(QStringLiteral("link.QZ2"))).isSymLink());
    }

    void rewriteKeepsPermissions()
    {
        const QString path = write(QStringLiteral("Perm.QZ2"), "x");
        QVERIFY(QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadOther));
        QVERIFY(!WriteQuestionSet(distinctSet(), path));
        QCOMPARE(QFile::permissions(path) & (QFileDevice::ReadOther | QFileDevice::WriteOther),
                 QFileDevice::Permissions(QFileDevice::ReadOther));
    }

    // ---------------------------------------------------------- reading safely

    void textsStartingWithAByteOrderMarkReadBackAsWritten()
    {
        const QString feff(QChar(0xFEFF));
        QuestionSet s = distinctSet();
        s.Description = feff + QStringLiteral("marked description");
        s.Categories[0][1].Title = feff; // alone, in the middle of the round
        s.Categories[0][2].Answer[3] = feff + feff + QStringLiteral("twice");
        const QString file = path(QStringLiteral("Marked.QZ2"));
        QVERIFY(!WriteQuestionSet(s, file));
        const QuestionSet back = LoadQuestionSet(file);
        QCOMPARE(back.Description, s.Description);
        QCOMPARE(back.CategoryCount[0], qint16(6));
        QCOMPARE(back.Categories[0][1].Title, feff);
        QCOMPARE(back.Categories[0][2].Title, s.Categories[0][2].Title);
        QCOMPARE(back.Categories[0][2].Answer[3], s.Categories[0][2].Answer[3]);
        QCOMPARE(GameReads::Description(file), s.Description);
    }

    void bigBinaryFileAnswersWithoutBeingHeldInMemory()
    {
        // 64 MB of random bytes without a line end after the key: one
        // "line" that must never be held whole.
        QByteArray block(1 << 20, '\0');
        QRandomGenerator rng(7);
        for (char &c : block)
            c = char(rng.bounded(256));
        block.replace('\n', 'z');
        const QString path = dir_.filePath(QStringLiteral("binary.QZ2"));
        QFile f(path);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write("[Round1]\r\nDescription=");
        for (int i = 0; i < 64; ++i)
            f.write(block);
        f.close();
#if defined(__SANITIZE_ADDRESS__)
        QSKIP("the sanitizer keeps freed memory resident on purpose");
#endif
        PeakMemory memory;
        QVERIFY(memory.start());
        const QString value = GameReads::Description(path);
        QCOMPARE(value.size(), 1999);
        QCOMPARE(GameReads::ColumnTitle(path, 1, 0), QString());
        QVERIFY2(memory.grownKiB() < 16 * 1024, "the reader held the file in memory");
    }

};

QTEST_MAIN(TestFiles)
#include "test_files.moc"
