// The home list's sets and what speeds their listing: the cache of
// descriptions, the widest name it remembers, and the listing made on
// another core at start.

#include "HomeFixture.h"
#include "ListTexts.h"

#include "select/QuestionSetList.h"
#include "shell/StartupPrefetch.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace {

QStringList lines(std::initializer_list<const char *> texts)
{
    QStringList l;
    for (const char *t : texts)
        l << QString::fromUtf8(t);
    return l;
}

} // namespace

class TestSetList : public QObject, HomeFixture {
    Q_OBJECT

private slots:
    void initTestCase() { QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans")); }
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    // Listing with a cache of descriptions: what it answers must be what
    // reading the files would, whatever changed between listings. The
    // listings are an hour from now, so that every file counts as settled.
    void cachedDescriptionsAreThoseOfTheFilesNow()
    {
        QTemporaryDir cacheDir;
        const QString cacheFile = cacheDir.filePath(QStringLiteral("cache"));
        const qint64 later = StampClockNowNs() + 3600LL * 1'000'000'000;
        int hits = -1;
        const auto list = [&] {
            DescriptionCache cache(cacheFile, later);
            const QList<QuestionSetEntry> entries = ListQuestionSets(program_->path(), docs(), &cache);
            cache.save();
            hits = cache.hits();
            QStringList shown, read;
            for (const QuestionSetEntry &e : entries)
                shown << e.text;
            for (const QuestionSetEntry &e : ListQuestionSets(program_->path(), docs()))
                read << e.text;
            return shown == read ? shown : QStringList{QStringLiteral("not as the files say")};
        };
        for (int i = 0; i < 300; ++i) // enough to be read on every core
            program_->write(QStringLiteral("set%1.QZ2").arg(i, 3, 10, QLatin1Char('0')), playableSet("Set " + QByteArray::number(i)));
        program_->write(QStringLiteral("none.QZ2"), "no sections");
        writeDoc(QStringLiteral("mine.QZ2"), playableSet("Mine"));
        QVERIFY(::mkfifo(QFile::encodeName(program_->file(QStringLiteral("pipe.QZ2"))).constData(), 0600) == 0);

        QStringList shown = list();
        QCOMPARE(hits, 0);
        QCOMPARE(shown.size(), 301); // the pipe is no set, and never waited on
        QCOMPARE(shown.first(), QStringLiteral("mine.QZ2\tMine"));
        QCOMPARE(list().size(), 301);
        QCOMPARE(hits, 302); // every file known, the one that is no set too

        // Same size, the very same time of change, other words: only the
        // status time, which no program can set back, tells.
        const QByteArray changed = QFile::encodeName(program_->file(QStringLiteral("set007.QZ2")));
        struct stat before;
        QVERIFY(::stat(changed.constData(), &before) == 0);
        program_->write(QStringLiteral("set007.QZ2"), playableSet("Set X"));
        const struct timespec times[2] = {before.st_atim, before.st_mtim};
        QVERIFY(::utimensat(AT_FDCWD, changed.constData(), times, 0) == 0);
        QVERIFY(list().contains(QStringLiteral("set007.QZ2\tSet X")));
        QCOMPARE(hits, 301);

        // A gone file, a renamed one and a new one.
        QVERIFY(QFile::remove(program_->file(QStringLiteral("set001.QZ2"))));
        QVERIFY(QFile::rename(program_->file(QStringLiteral("set002.QZ2")), program_->file(QStringLiteral("two.QZ2"))));
        program_->write(QStringLiteral("new.QZ2"), playableSet("New"));
        shown = list();
        QCOMPARE(hits, 300); // all but the renamed and the new
        QVERIFY(shown.contains(QStringLiteral("two.QZ2\tSet 2")));
        QVERIFY(shown.contains(QStringLiteral("new.QZ2\tNew")));
        QVERIFY(!shown.contains(QStringLiteral("set001.QZ2\tSet 1")));

        // A damaged cache is no cache, and is written afresh.
        for (const qint64 keep : {qint64(0), qint64(9), QFileInfo(cacheFile).size() / 2, QFileInfo(cacheFile).size() - 1}) {
            QVERIFY(QFile::resize(cacheFile, keep));
            QCOMPARE(list().size(), 301);
            QCOMPARE(hits, 0);
            list();
            QCOMPARE(hits, 302);
        }
        QFile longer(cacheFile);
        QVERIFY(longer.open(QIODevice::Append));
        longer.write("x");
        longer.close();
        list();
        QCOMPARE(hits, 0);
        // A changed letter of a description: no answer, not another one.
        const QStringList listed = list();
        QFile damaged(cacheFile);
        QVERIFY(damaged.open(QIODevice::ReadWrite));
        QByteArray bytes = damaged.readAll();
        const qsizetype at = bytes.indexOf(QByteArray("S\0e\0t\0 \0""5\0", 10));
        QVERIFY(at > 0);
        bytes[at + 8] = '6';
        QVERIFY(damaged.seek(0) && damaged.write(bytes) == bytes.size());
        damaged.close();
        QCOMPARE(list(), listed);
        QCOMPARE(hits, 0);

        // Files changed just now are read afresh until they have settled.
        DescriptionCache now(cacheFile);
        ListQuestionSets(program_->path(), docs(), &now);
        now.save();
        DescriptionCache again(cacheFile, later);
        ListQuestionSets(program_->path(), docs(), &again);
        QCOMPARE(again.hits(), 0);
    }

    // A folder whose own stamp is unchanged has the same files: they come
    // from the cache, sorted as before, without a look at each. A file
    // written in place is not seen then, but by the check that follows.
    void unchangedFoldersAreTakenOnTrustThenChecked()
    {
        QTemporaryDir cacheDir;
        const QString cacheFile = cacheDir.filePath(QStringLiteral("cache"));
        const qint64 later = StampClockNowNs() + 3600LL * 1'000'000'000;
        for (const char *name : {"b.QZ2", "A.QZ2", "c.QZ2"})
            program_->write(QLatin1String(name), playableSet(QByteArray("Set ") + name));
        program_->write(QStringLiteral("none.QZ2"), "no sections");
        writeDoc(QStringLiteral("B.QZ2"), playableSet("Mine"));
        QList<UncheckedFolder> unchecked;
        const auto trusted = [&]() -> std::optional<QStringList> {
            DescriptionCache cache(cacheFile, later);
            unchecked.clear();
            const auto entries = RelistUnchangedQuestionSets(program_->path(), docs(), cache, unchecked);
            if (!entries)
                return std::nullopt;
            QStringList shown;
            for (const QuestionSetEntry &e : *entries)
                shown << e.text;
            return shown;
        };
        const auto listAfresh = [&] {
            DescriptionCache cache(cacheFile, later);
            QStringList shown;
            for (const QuestionSetEntry &e : ListQuestionSets(program_->path(), docs(), &cache))
                shown << e.text;
            cache.save();
            return shown;
        };

        QVERIFY(!trusted()); // nothing known yet
        const QStringList read = listAfresh();
        QCOMPARE(read, lines({"A.QZ2\tSet A.QZ2", "B.QZ2\tMine", "b.QZ2\tSet b.QZ2", "c.QZ2\tSet c.QZ2"}));
        QCOMPARE(trusted(), read);
        QCOMPARE(unchecked.size(), 2);
        QVERIFY(StillAsListed(unchecked));

        program_->write(QStringLiteral("c.QZ2"), playableSet("Written in place"));
        QCOMPARE(trusted(), read); // the folder is as it was
        QVERIFY(!StillAsListed(unchecked));
        QVERIFY(listAfresh().contains(QStringLiteral("c.QZ2\tWritten in place")));
        QVERIFY(trusted() && trusted()->contains(QStringLiteral("c.QZ2\tWritten in place")));

        // A file added, removed or renamed changes its folder.
        writeDoc(QStringLiteral("new.QZ2"), playableSet("New"));
        QVERIFY(!trusted());
        listAfresh();
        QVERIFY(trusted());
        QVERIFY(QFile::rename(program_->file(QStringLiteral("b.QZ2")), program_->file(QStringLiteral("d.QZ2"))));
        QVERIFY(!trusted());

        // A folder listed just after it changed is not trusted, nor one
        // short of a file that had not settled.
        {
            DescriptionCache now(cacheFile);
            ListQuestionSets(program_->path(), docs(), &now);
            now.save();
        }
        QVERIFY(!trusted());
        const qint64 at = 1'000'000'000'000'000'000;
        const FileStamp settledFile{10, at - 9'000'000'000, at - 9'000'000'000, 7};
        for (const qint64 ago : {qint64(1'000'000'000), qint64(3'000'000'000)}) {
            const FileStamp folder{4096, at - ago, at - ago, 5};
            DescriptionCache then(cacheFile, at);
            then.listFolder(QStringLiteral("/sets/"), folder);
            then.remember(QStringLiteral("/sets/"), QStringLiteral("a.QZ2"), settledFile, QStringLiteral("A"));
            then.save();
            const DescriptionCache later(cacheFile, at + 3'600'000'000'000);
            QCOMPARE(later.unchanged(QStringLiteral("/sets/"), folder), ago > 2'000'000'000);
            QVERIFY(!later.unchanged(QStringLiteral("/sets/"), {4096, at, at, 5}));
        }

        // No documents folder is a folder that stays as it is, until made.
        QVERIFY(QDir(docs()).removeRecursively());
        listAfresh();
        QVERIFY(trusted());
        QVERIFY(QDir().mkpath(docs()));
        QVERIFY(!trusted());
    }

    // The home screen made with a listing taken on trust looks at the sets
    // once it has painted, and fills the list afresh if one was written,
    // keeping the entry selected.
    void homeScreenRefillsWhenASetTakenOnTrustWasWritten()
    {
        for (const char *name : {"a.QZ2", "b.QZ2"})
            program_->write(QLatin1String(name), playableSet(QByteArray("Old ") + name));
        QList<UncheckedFolder> unchecked;
        const auto listing = [&] {
            DescriptionCache cache{QString()};
            SetListing made{program_->path(), docs(), ListQuestionSets(program_->path(), docs(), &cache),
                            std::make_unique<DescriptionCache>(QString()), {}};
            made.unchecked = {{program_->path(), {}}};
            for (const StampedFile &f : OrdinaryFilesIn(program_->path(), [](const QString &) { return true; }))
                made.unchecked.first().files.append({f.name, f.stamp, QString()});
            return made;
        };
        home_ = new frmSelect(state_, libraries_, nullptr, listing);
        home_->show();
        QCoreApplication::processEvents();
        QVERIFY(home_->windowHandle()->isExposed());
        home_->lstQuestions->setCurrentRow(1);
        home_->repaint();
        QCoreApplication::processEvents(); // the check begins after the paint
        home_->waitForSetsChecked();
        QCOMPARE(texts(home_->lstQuestions), lines({"a.QZ2\tOld a.QZ2", "b.QZ2\tOld b.QZ2"}));

        SetListing before = listing();
        program_->write(QStringLiteral("b.QZ2"), playableSet("New b"));
        delete home_.data();
        home_ = new frmSelect(state_, libraries_, nullptr, [&before] { return std::move(before); });
        home_->show();
        QCoreApplication::processEvents();
        QVERIFY(home_->windowHandle()->isExposed());
        home_->lstQuestions->setCurrentRow(1);
        QCOMPARE(texts(home_->lstQuestions), lines({"a.QZ2\tOld a.QZ2", "b.QZ2\tOld b.QZ2"}));
        home_->repaint();
        QCoreApplication::processEvents();
        home_->waitForSetsChecked();
        QCOMPARE(texts(home_->lstQuestions), lines({"a.QZ2\tOld a.QZ2", "b.QZ2\tNew b"}));
        QCOMPARE(home_->lstQuestions->currentRow(), 1);
    }

    // The list's column needs the widest file name; the cache may answer
    // only while its answer is still the truth.
    void widestFileNameStaysTrue()
    {
        QTemporaryDir cacheDir, otherProgram;
        const QString cacheFile = cacheDir.filePath(QStringLiteral("cache"));
        const qint64 later = StampClockNowNs() + 3600LL * 1'000'000'000;
        const auto widest = [&](const QFont &font, const QString &program) {
            DescriptionCache cache(cacheFile, later);
            const QList<QuestionSetEntry> entries = ListQuestionSets(program, docs(), &cache);
            const int width = WidestFileName(entries, QFontMetrics(font), &cache);
            cache.save();
            int truth = 0;
            for (const QuestionSetEntry &e : entries)
                truth = qMax(truth, QFontMetrics(font).horizontalAdvance(EntryFileName(e.text)));
            return width == truth ? width : -1;
        };
        const QFont font(QStringLiteral("Arial"), 10), bigger(QStringLiteral("Arial"), 20);
        const auto width = [&font](const char *name) { return QFontMetrics(font).horizontalAdvance(QLatin1String(name)); };
        program_->write(QStringLiteral("a.QZ2"), playableSet("A"));
        program_->write(QStringLiteral("Much longer name.QZ2"), playableSet("B"));
        QCOMPARE(widest(font, program_->path()), width("Much longer name.QZ2"));
        QCOMPARE(widest(font, program_->path()), width("Much longer name.QZ2"));
        writeDoc(QStringLiteral("The longest name of them all.QZ2"), playableSet("C"));
        QCOMPARE(widest(font, program_->path()), width("The longest name of them all.QZ2"));
        QVERIFY(QFile::remove(docs() + QStringLiteral("The longest name of them all.QZ2")));
        QCOMPARE(widest(font, program_->path()), width("Much longer name.QZ2"));
        QCOMPARE(widest(bigger, program_->path()),
                 QFontMetrics(bigger).horizontalAdvance(QStringLiteral("Much longer name.QZ2")));
        // Another program folder in between, whose names were never
        // measured against these, one of them the same as here.
        QFile a(otherProgram.filePath(QStringLiteral("a.QZ2")));
        QVERIFY(a.open(QIODevice::WriteOnly));
        a.write(playableSet("A"));
        a.close();
        QCOMPARE(widest(font, otherProgram.path() + QLatin1Char('/')), width("a.QZ2"));
        QCOMPARE(widest(font, program_->path()), width("Much longer name.QZ2"));
    }

    // The sets listed on another core at start fill the home screen only
    // when they are of the very folders it shows; a refill reads afresh.
    void listingMadeAheadServesOnlyItsFolders()
    {
        program_->write(QStringLiteral("real.QZ2"), playableSet("Real"));
        const auto ahead = [](const QString &program, const QString &documents) {
            return SetListing{program, documents, {{QStringLiteral("ahead.QZ2\tMade ahead"), 0, false}},
                              std::make_unique<DescriptionCache>(QString()), {}};
        };
        home_ = new frmSelect(state_, libraries_, nullptr, [&] { return ahead(program_->path(), docs()); });
        QCOMPARE(texts(home_->lstQuestions), QStringList{QStringLiteral("ahead.QZ2\tMade ahead")});
        home_->PopulateQZ2();
        QCOMPARE(texts(home_->lstQuestions), QStringList{QStringLiteral("real.QZ2\tReal")});
        delete home_.data();
        home_ = new frmSelect(state_, libraries_, nullptr, [&] { return ahead(QStringLiteral("/elsewhere/"), docs()); });
        QCOMPARE(texts(home_->lstQuestions), QStringList{QStringLiteral("real.QZ2\tReal")});

        StartupPrefetch start;
        const SetListing listed = start.takeSetListing();
        QCOMPARE(listed.programFolder, program_->path());
        QCOMPARE(listed.documentsFolder, docs());
        QCOMPARE(listed.entries.size(), 1);
        QCOMPARE(listed.entries.first().text, QStringLiteral("real.QZ2\tReal"));
        QVERIFY(!start.takeSetListing().cache); // once only
    }

};

QTEST_MAIN(TestSetList)
#include "test_set_list.moc"
