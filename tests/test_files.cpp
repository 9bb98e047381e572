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

#if defined(__SANITIZE_ADDRESS__)
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*)(const volatile void *, size_t),
                                                         void (*)(const volatile void *));
extern "C" size_t __sanitizer_get_allocated_size(const volatile void *);

std::atomic<qint64> heapInUse{0};
std::atomic<qint64> heapPeak{0};

void countMalloc(const volatile void *, size_t size)
{
    const qint64 now = heapInUse += qint64(size);
    qint64 peak = heapPeak.load();
    while (now > peak && !heapPeak.compare_exchange_weak(peak, now)) {
    }
}

void countFree(const volatile void *p)
{
    heapInUse -= qint64(__sanitizer_get_allocated_size(p));
}
#endif

// How much more memory the process has held at its peak since start():
// its peak resident size. Under AddressSanitizer freed memory waits in a
// quarantine and stays resident, so there the allocator's own hooks count
// the bytes in use instead.
class PeakMemory {
public:
    // False when the measure cannot be taken.
    bool start()
    {
#if defined(__SANITIZE_ADDRESS__)
        static const bool hooked = __sanitizer_install_malloc_and_free_hooks(countMalloc, countFree) != 0;
        heapPeak = heapInUse.load();
        before_ = heapPeak;
        return hooked;
#else
        QFile clear(QStringLiteral("/proc/self/clear_refs"));
        if (clear.open(QIODevice::WriteOnly))
            clear.write("5");
        before_ = residentPeak();
        return before_ > 0;
#endif
    }

    qint64 grownKiB() const
    {
#if defined(__SANITIZE_ADDRESS__)
        return (heapPeak - before_) / 1024;
#else
        return residentPeak() - before_;
#endif
    }

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

    QString write(const QString &name, const QByteArray &bytes)
    {
        const QString file = dir_.filePath(name);
        QFile f(file);
        if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(file));
        return file;
    }

    QByteArray read(const QString &file)
    {
        QFile f(file);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }

private slots:
    // ------------------------------------------------------------ the dialogs

    void freshWrapperHasItsDefaults()
    {
        clsOpenSaveDlg d;
        QCOMPARE(d.Filter(), QStringLiteral("All Files|*.*"));
        QCOMPARE(d.FileName(), QString());
        QCOMPARE(d.FilterIndex(), 0);
        QCOMPARE(d.Flags().Value(), quint32(0x282A0A));
        d.setFilterIndex(-3);
        QCOMPARE(d.FilterIndex(), 0);
    }

    void splitsThePathIntoParts_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("nameExt");
        QTest::addColumn<QString>("nameOnly");
        QTest::addColumn<QString>("ext");
        QTest::newRow("full path") << "/home/host/Sets/Quiz.QZ2" << "/home/host/Sets/" << "Quiz.QZ2" << "Quiz" << "QZ2";
        QTest::newRow("drive letter") << "A:Quiz.QZ2" << "A:/" << "Quiz.QZ2" << "Quiz" << "QZ2";
        QTest::newRow("name alone") << "Quiz" << "" << "Quiz" << "Quiz" << "";
        QTest::newRow("dotted folder") << "/a.b/Quiz" << "/a.b/" << "Quiz" << "Quiz" << "";
    }
    void splitsThePathIntoParts()
    {
        QFETCH(QString, name);
        QFETCH(QString, path);
        QFETCH(QString, nameExt);
        QFETCH(QString, nameOnly);
        QFETCH(QString, ext);
        clsOpenSaveDlg d;
        d.setFileName(name);
        QCOMPARE(d.PathOnly(), path);
        QCOMPARE(d.FileNameExtOnly(), nameExt);
        QCOMPARE(d.FileNameOnly(), nameOnly);
        QCOMPARE(d.ExtOnly(), ext);
    }

    void keepsFilterAndNameByTheBufferRules()
    {
        clsOpenSaveDlg d;
        d.setFilter(QStringLiteral("QZ2 Files (*.QZ2)|*.QZ2"));
        QCOMPARE(d.Filter(), QStringLiteral("QZ2 Files (*.QZ2)|*.QZ2"));
        d.setFilter(QStringLiteral("A|*.a|B|*.b|"));
        QCOMPARE(d.Filter(), QStringLiteral("A|*.a|B|*.b"));
        d.setFilter(QStringLiteral("no bars here"));
        QCOMPARE(d.Filter(), QString());
        d.setFileName(QString(259, QLatin1Char('n')));
        QCOMPARE(d.FileName().size(), 259);
        d.setFileName(QString(260, QLatin1Char('n')));
        QCOMPARE(d.FileName(), QString()); // no room for the terminator
    }

    void flagPropertiesSetTheirBits()
    {
        clsOpenSaveDlgFlags f;
        QCOMPARE(f.Value(), quint32(0));
        const QList<std::pair<void (clsOpenSaveDlgFlags::*)(bool), quint32>> bits{
            {&clsOpenSaveDlgFlags::setAllowMultiSelect, 0x200}, {&clsOpenSaveDlgFlags::setCreatePrompt, 0x2000},
            {&clsOpenSaveDlgFlags::setExplorer, 0x80000},      {&clsOpenSaveDlgFlags::setHideReadOnly, 0x4},
            {&clsOpenSaveDlgFlags::setLongNames, 0x200000},    {&clsOpenSaveDlgFlags::setNoChangeDir, 0x8},
            {&clsOpenSaveDlgFlags::setNoDereferenceLinks, 0x100000}, {&clsOpenSaveDlgFlags::setNoLongNames, 0x40000},
            {&clsOpenSaveDlgFlags::setNoNetworkButton, 0x20000}, {&clsOpenSaveDlgFlags::setNoReadOnlyReturn, 0x8000},
            {&clsOpenSaveDlgFlags::setNoTestFileCreate, 0x10000}, {&clsOpenSaveDlgFlags::setNoValidate, 0x100},
            {&clsOpenSaveDlgFlags::setOverwritePrompt, 0x2},   {&clsOpenSaveDlgFlags::setPathMustExist, 0x800},
            {&clsOpenSaveDlgFlags::setReadOnly, 0x1},          {&clsOpenSaveDlgFlags::setShareAware, 0x4000}};
        for (const auto &[setter, bit] : bits) {
            (f.*setter)(true);
            QCOMPARE(f.Value(), bit);
            (f.*setter)(false);
            QCOMPARE(f.Value(), quint32(0));
        }
        f.setFileMustExist(true);
        QCOMPARE(f.Value(), quint32(0x1800));
        f.setFileMustExist(false);
        QCOMPARE(f.Value(), quint32(0x800)); // the path must still exist
        QVERIFY(!f.ExtensionDifferent());
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

    void readsByteOrderMarksAsTextPastTheFileStart_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("section");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("expected");
        const QByteArray mark(Utf8::kByteOrderMark);
        const QString feff(QChar(0xFEFF));
        QTest::newRow("mark at the file start")
            << mark + "[A]\r\nk=v\r\n" << "A" << "k" << "v";
        QTest::newRow("value starting with a mark")
            << mark + "[A]\r\nk=" + mark + "v\r\n" << "A" << "k" << feff + QStringLiteral("v");
        QTest::newRow("value that is a mark alone")
            << mark + "[A]\r\nk=" + mark + "\r\n" << "A" << "k" << feff;
        QTest::newRow("mark before a key is part of the key")
            << mark + "[A]\r\n" + mark + "k=marked\r\nk=plain\r\n" << "A" << "k" << "plain";
        QTest::newRow("key asked with its mark")
            << mark + "[A]\r\n" + mark + "k=marked\r\nk=plain\r\n" << "A" << feff + QStringLiteral("k")
            << "marked";
        QTest::newRow("mark inside a section name")
            << mark + "[A]\r\nk=a\r\n[" + mark + "B]\r\nk=b\r\n" << "B" << "k" << "DEFAULT";
        // Each byte that is no UTF-8 shows as a replacement character, at
        // the value's end as anywhere else.
        QTest::newRow("bytes that are no UTF-8 in a marked file")
            << mark + "[A]\r\nk=\xe2\x82 \xe2\x82\r\n" << "A" << "k" << QStringLiteral("\ufffd\ufffd \ufffd\ufffd");
        QTest::newRow("mark in a file without one at its start")
            << "[A]\r\nk=" + mark + "v \xc3\xa9\r\n" << "A" << "k" << feff + QStringLiteral("v \u00e9");
    }
    void readsByteOrderMarksAsTextPastTheFileStart()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, section);
        QFETCH(QString, key);
        QFETCH(QString, expected);
        const QString file = write(QStringLiteral("marks.QZ2"), content);
        QCOMPARE(GetPrivateProfileString(section, key, QStringLiteral("DEFAULT"), file), expected);
    }

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

    void readsLinesOfAnyLength_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("section");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("expected");
        const QByteArray blanks(70000, ' ');
        const QByteArray tabs(70000, '\t');
        const QByteArray letters(70000, 'x');
        QTest::newRow("long section line ends the section")
            << "[A]\r\n[" + letters + "]\r\nk=v\r\n" << "A" << "k" << "DEFAULT";
        QTest::newRow("section name between long blanks")
            << "[A]\r\nk=a\r\n[" + blanks + "B" + tabs + "]\r\nk=b\r\n" << "B" << "k" << "b";
        QTest::newRow("long line without ] is no section")
            << "[A]\r\n[" + letters + "\r\nk=v\r\n" << "A" << "k" << "v";
        QTest::newRow("key after long blanks") << "[A]\r\n" + blanks + "k=v\r\n" << "A" << "k" << "v";
        QTest::newRow("long key is another key")
            << "[A]\r\n" + letters + "k=w\r\nk=v\r\n" << "A" << "k" << "v";
        QTest::newRow("value after long blanks") << "[A]\r\nk=" + blanks + "v" + tabs + "\r\n" << "A" << "k" << "v";
        QTest::newRow("quoted value between long blanks")
            << "[A]\r\nk=" + blanks + "\"v\"" + blanks << "A" << "k" << "v";
        QTest::newRow("long blanks inside a value are kept")
            << "[A]\r\nk=a" + blanks + "b\r\n" << "A" << "k" << QStringLiteral("a") + QString(1998, QLatin1Char(' '));
        QTest::newRow("long quoted value loses its opening mark")
            << "[A]\r\nk='" + letters + "'\r\n" << "A" << "k" << QString(1999, QLatin1Char('x'));
    }
    void readsLinesOfAnyLength()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, section);
        QFETCH(QString, key);
        QFETCH(QString, expected);
        const QString file = write(QStringLiteral("long.QZ2"), content);
        QCOMPARE(GetPrivateProfileString(section, key, QStringLiteral("DEFAULT"), file), expected);
    }

    void survivesRandomAndTruncatedInput()
    {
        QRandomGenerator rng(2024);
        const QByteArray good = QuestionSetFileBytes(distinctSet());
        for (int n = 0; n < 300; ++n) {
            QByteArray bytes;
            if (n % 3 == 0) {
                bytes = good.left(int(rng.bounded(good.size())));
            } else {
                bytes.resize(int(rng.bounded(5000)));
                for (char &c : bytes)
                    c = char(n % 3 == 1 ? rng.bounded(256) : "[]=\r\n\"' aR1\xc3\xa9"[rng.bounded(14)]);
            }
            const QString path = write(QStringLiteral("fuzz.QZ2"), bytes);
            const QuestionSet s = LoadQuestionSet(path);
            QVERIFY(s.RoundCount == 1 || s.RoundCount == 2);
            QVERIFY(s.Timer >= 5 && s.Timer <= 60);
            QVERIFY(GameReads::Description(path).size() <= 1999);
        }
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
