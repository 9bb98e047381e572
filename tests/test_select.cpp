// The home screen: the question-set list from both folders, starting a game
// with its messages and team labels, coming back, its layout, the special
// folders, and the help screen; then what speeds the listing: the cache of
// descriptions, the widest name it remembers, and the listing made on
// another core at start.

#include "HomeFixture.h"
#include "ListTexts.h"

#include "select/QuestionSetList.h"
#include "shell/StartupPrefetch.h"

#include "help/HelpTexts.h"
#include "platform/clsShellFolders.h"
#include "shell/PictureLibrary.h"
#include "ui/controls/CaptionControl.h"
#include "ui/controls/ShadowLabel.h"
#include "ui/editor/frmEditor.h"
#include "ui/help/frmHowToPlay.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

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

class TestSelect : public QObject, HomeFixture {
    Q_OBJECT

    // A label array of the board, by the names its elements carry.
    QList<ShadowLabel *> labels(const char *array) const
    {
        QList<ShadowLabel *> found;
        while (auto *l = board()->findChild<ShadowLabel *>(QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(found.size())))
            found << l;
        return found;
    }

private slots:
    void initTestCase() { QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans")); }
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void listsSetsOfBothFoldersSortedWithoutCase()
    {
        program_->write(QStringLiteral("b.QZ2"), playableSet("Program b"));
        program_->write(QStringLiteral("c.Qz2"), playableSet("See"));
        program_->write(QStringLiteral("d.qz2.bak"), playableSet("backup"));
        program_->write(QStringLiteral("e.qz"), playableSet("short"));
        program_->write(QStringLiteral(".hidden.QZ2"), playableSet("hidden"));
        program_->write(QStringLiteral("folder.QZ2/inside.QZ2"), playableSet("in a folder"));
        program_->write(QStringLiteral("g.QZ2"), playableSet("-NONE-"));
        program_->write(QStringLiteral("h.QZ2"), playableSet("-none-"));
        program_->write(QStringLiteral("i.QZ2"), "[Round1]\r\nDescription=\r\n");
        program_->write(QStringLiteral("j.QZ2"), playableSet(QByteArray(2500, 'x')));
        program_->write(QStringLiteral("k.QZ2"), "no sections at all");
        writeDoc(QStringLiteral("A.qz2"), playableSet("Documents A"));
        writeDoc(QStringLiteral("b.QZ2"), playableSet("Documents b"));
        openHome();
        const QStringList shown = texts(home_->lstQuestions);
        QCOMPARE(shown, QStringList({QStringLiteral("A.qz2\tDocuments A"), QStringLiteral("b.QZ2\tDocuments b"),
                                     QStringLiteral("b.QZ2\tProgram b"), QStringLiteral("c.Qz2\tSee"),
                                     QStringLiteral("h.QZ2\t-none-"), QStringLiteral("i.QZ2\t"),
                                     QStringLiteral("j.QZ2\t") + QString(1999, QLatin1Char('x'))}));
        // Each entry keeps its folder: the two b.QZ2 play their own files.
        QCOMPARE(home_->GetEntryPath(home_->lstQuestions->item(0)), docs() + QStringLiteral("A.qz2"));
        QCOMPARE(home_->GetEntryPath(home_->lstQuestions->item(1)), docs() + QStringLiteral("b.QZ2"));
        QCOMPARE(home_->GetEntryPath(home_->lstQuestions->item(2)), program_->file(QStringLiteral("b.QZ2")));
        // Loaded: three teams, the first entry selected, Start Game shown.
        QCOMPARE(home_->lstQuestions->currentRow(), 0);
        QCOMPARE(home_->cmbScore->currentText(), QStringLiteral("Three teams"));
        QVERIFY(home_->cmdStart->isVisible());
        // A refill leaves nothing selected.
        home_->PopulateQZ2();
        QVERIFY(home_->lstQuestions->selectedItems().isEmpty());
    }

    void emptyListHidesStartGame()
    {
        SpecialFolders::overridePath(SpecialFolders::kDocuments, QStringLiteral(""));
        QCOMPARE(clsShellFolders().GetSpecialFolderLocation(0, SpecialFolders::kDocuments), QString());
        openHome();
        QCOMPARE(home_->lstQuestions->count(), 0);
        QVERIFY(!home_->cmdStart->isVisible());
        QVERIFY(home_->cmdEditor->isVisible() && home_->cmdHowToPlay->isVisible() && home_->cmdImport->isVisible());
    }

    void vanishedFilesLeaveTheList()
    {
        program_->write(QStringLiteral("a.QZ2"), playableSet("A"));
        program_->write(QStringLiteral("b.QZ2"), playableSet("B"));
        libraries_.hPictureLib = PictureLibrary::load(QStringLiteral(QUIZZARR_PROGRAM_DIR "/PLOVQBmp.so"));
        openHome();
        QFile::remove(program_->file(QStringLiteral("a.QZ2")));
        home_->cmdStart->click();
        QVERIFY(boxes_->shown.isEmpty());
        QCOMPARE(texts(home_->lstQuestions), QStringList({QStringLiteral("b.QZ2\tB")}));
        QVERIFY(home_->lstQuestions->selectedItems().isEmpty());
        QCOMPARE(state_.QuestionFile, program_->file(QStringLiteral("a.QZ2")));
        // The last one: the message, and the libraries go.
        program_->write(QStringLiteral("b.QZ2"), "[Round1]\r\nDescription=-NONE-\r\n");
        home_->lstQuestions->setCurrentRow(0);
        home_->cmdStart->click();
        QCOMPARE(boxes_->shown.size(), 1);
        QCOMPARE(boxes_->shown[0].text, QStringLiteral("I'm sorry, but I am unable to locate any valid .QZ2 files."));
        QCOMPARE(boxes_->shown[0].style, MsgBoxStyle::Critical);
        QVERIFY(!libraries_.hPictureLib);
        QCOMPARE(home_->lstQuestions->count(), 0);
        // Start Game stays until the next refill; pressing it asks again.
        QVERIFY(home_->cmdStart->isVisible());
        home_->cmdStart->click();
        QCOMPARE(boxes_->shown.last().text, QStringLiteral("Please select a question set to use before starting the game."));
        QCOMPARE(boxes_->shown.last().style, MsgBoxStyle::Information);
        QCOMPARE(boxes_->shown.last().caption, QStringLiteral("PLOV(tm) Quizzarr!"));
        QVERIFY(home_->isVisible() && !board());
    }

    void startsTheGameWithTheChosenTeams_data()
    {
        QTest::addColumn<int>("teams");
        QTest::newRow("no scoring") << 0;
        QTest::newRow("one team") << 1;
        QTest::newRow("ten teams") << 10;
    }
    void startsTheGameWithTheChosenTeams()
    {
        QFETCH(int, teams);
        program_->write(QStringLiteral("a.QZ2"), playableSet("A"));
        openHome();
        state_.Scores.fill(77);
        state_.Round = 4;
        home_->cmbScore->setCurrentIndex(teams);
        home_->cmdStart->click();
        QVERIFY(board());
        QVERIFY(!home_->isVisible());
        QVERIFY(board()->isVisible());
        QCOMPARE(int(board()->game().state().Teams), teams);
        QCOMPARE(state_.QuestionFile, program_->file(QStringLiteral("a.QZ2")));
        QCOMPARE(state_.Round, qint16(1));
        QCOMPARE(state_.Scores[9], 0);
        QCOMPARE(board()->game().state().headerCaption[0], QStringLiteral("Rivers"));
        QCOMPARE(labels("lblTeam").size(), qMax(1, teams));
        QVERIFY(boxes_->shown.isEmpty()); // no sound warning outside the game's own executable
    }

    void warnsAboutSoundsAndPlaysTheFanfare()
    {
        program_->write(QStringLiteral("a.QZ2"), playableSet("A"));
        FakeSoundControl sound(libraries_);
        clock_->onAdvance = [&](int ms) { sound.advance(ms); };
        ModuleFileName::overridePath(ModuleFileName::programFolder() + ModuleFileName::gameExecutableName());
        basDetectDevEnv::ForgetRunMode();
        openHome();
        boxes_->whileShown = [this](const ShownBox &) { QVERIFY(!home_->isVisible()); };
        home_->cmdStart->click();
        QCOMPARE(boxes_->shown.size(), 1);
        QCOMPARE(boxes_->shown[0].text,
                 QStringLiteral("Please wait until all sounds playing have stopped, then click OK to start!"));
        QCOMPARE(boxes_->shown[0].style, MsgBoxStyle::Exclamation);
        const QStringList calls = sound.calls();
        QCOMPARE(calls.mid(0, 4), QStringList({QStringLiteral("InitSound"), QStringLiteral("LoadSound 107"),
                                               QStringLiteral("PlaySound 107"), QStringLiteral("UnloadSound 107")}));
        QVERIFY(calls.contains(QStringLiteral("PlaySound 103"))); // then the round comes in
        quitGame();
        QVERIFY(home_->isVisible());
        QVERIFY(sound.calls().contains(QStringLiteral("Shutdown")));
    }

    void oneScreenOpensTheConsoleOnlyByHand()
    {
        program_->write(QStringLiteral("a.QZ2"), playableSet("A"));
        openHome();
        home_->cmdStart->click();
        QVERIFY(board());
        QVERIFY(!home_->console());
        quitGame();
        QKeyEvent f2(QEvent::KeyPress, Qt::Key_F2, Qt::NoModifier);
        QCoreApplication::sendEvent(home_, &f2);
        QVERIFY(home_->console() && home_->console()->isVisible());
        QVERIFY(home_->isVisible()); // the home screen stays as it was
        home_->cmdStart->click();
        QCOMPARE(home_->console()->board(), board()); // a rehearsal follows the game
    }

    void selectionAndTeamCountSurviveAGameAndTheHelp()
    {
        program_->write(QStringLiteral("a.QZ2"), playableSet("A"));
        program_->write(QStringLiteral("b.QZ2"), playableSet("B"));
        openHome();
        home_->lstQuestions->setCurrentRow(1);
        home_->cmbScore->setCurrentIndex(5);
        home_->cmdStart->click();
        QCOMPARE(state_.QuestionFile, program_->file(QStringLiteral("b.QZ2")));
        quitGame();
        QVERIFY(home_->isVisible());
        QCOMPARE(home_->lstQuestions->currentRow(), 1);
        QVERIFY(home_->lstQuestions->item(1)->isSelected());
        QCOMPARE(home_->cmbScore->currentIndex(), 5);
        home_->cmdHowToPlay->click();
        QVERIFY(!home_->isVisible());
        QVERIFY(home_->help()->isVisible());
        home_->help()->close();
        QVERIFY(home_->isVisible());
        QCOMPARE(home_->lstQuestions->currentRow(), 1);
        QCOMPARE(home_->cmbScore->currentIndex(), 5);
    }

    void enterAndDoubleClickStart()
    {
        program_->write(QStringLiteral("a.QZ2"), playableSet("A"));
        program_->write(QStringLiteral("b.QZ2"), playableSet("B"));
        openHome();
        home_->lstQuestions->setFocus();
        QTest::keyClick(home_->lstQuestions, Qt::Key_Return);
        QVERIFY(board());
        QCOMPARE(state_.QuestionFile, program_->file(QStringLiteral("a.QZ2")));
        quitGame();
        QListWidgetItem *second = home_->lstQuestions->item(1);
        const QRect r = home_->lstQuestions->visualItemRect(second);
        QTest::mouseClick(home_->lstQuestions->viewport(), Qt::LeftButton, Qt::NoModifier, r.center());
        QTest::mouseDClick(home_->lstQuestions->viewport(), Qt::LeftButton, Qt::NoModifier, r.center());
        QVERIFY(board());
        QCOMPARE(state_.QuestionFile, program_->file(QStringLiteral("b.QZ2")));
    }

    void editorButtonAsksWhatToEdit()
    {
        program_->write(QStringLiteral("a.QZ2"), playableSet("A"));
        openHome();
        boxes_->answers = {MsgBoxResult::Yes};
        home_->cmdEditor->click();
        QCOMPARE(boxes_->shown.size(), 1);
        QCOMPARE(boxes_->shown[0].text,
                 QStringLiteral("Click YES to edit a.QZ2, else click NO to create a new Question set."));
        QCOMPARE(boxes_->shown[0].style, MsgBoxStyle::YesNo | MsgBoxStyle::Question);
        QCOMPARE(boxes_->shown[0].caption, QStringLiteral("Question Editor/Creator"));
        QVERIFY(!home_->isVisible());
        QCOMPARE(home_->editor()->windowTitle(), QStringLiteral("Question Editor/Creator"));
        QCOMPARE(static_cast<frmEditor *>(home_->editor())->FileToLoad, program_->file(QStringLiteral("a.QZ2")));
        home_->editor()->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(home_->isVisible());
        boxes_->answers = {MsgBoxResult::No};
        home_->lstQuestions->setCurrentRow(0);
        home_->cmdEditor->click();
        QCOMPARE(static_cast<frmEditor *>(home_->editor())->FileToLoad, QString());
        home_->editor()->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        home_->lstQuestions->clearSelection();
        home_->cmdEditor->click();
        QCOMPARE(boxes_->shown.size(), 2); // nothing selected: no question
        QCOMPARE(static_cast<frmEditor *>(home_->editor())->FileToLoad, QString());
        home_->editor()->close();
    }

    void layoutAt640By480()
    {
        libraries_.hPictureLib = PictureLibrary::load(QStringLiteral(QUIZZARR_PROGRAM_DIR "/PLOVQBmp.so"));
        openHome();
        QCOMPARE(home_->size(), QSize(640, 480));
        const int H = 480, C = home_->cmbScore->height();
        const QRect list = home_->lstQuestions->geometry();
        QCOMPARE(list.top(), 96 + 15); // below the banner's band
        QCOMPARE(list.left(), 15);
        QCOMPARE(H - (list.bottom() + 1), 105 + C);
        QCOMPARE(H - (home_->cmbScore->geometry().bottom() + 1), 100);
        QCOMPARE(home_->vseButtons->geometry(), QRect(15, H - 70, 610, 55));
        QCOMPARE(home_->vseImportExport->geometry(), QRect(640 - 90, list.top(), 75, list.height()));
        QVERIFY(!list.intersects(home_->vseImportExport->geometry()));
        QVERIFY(!home_->cmbScore->geometry().intersects(home_->vseButtons->geometry()));
        QCOMPARE(home_->cmbScore->x(), home_->lblScore->geometry().right() + 1 + 4);
        // The buttons keep their design places in their row.
        QCOMPARE(home_->cmdStart->geometry(), QRect(0, 0, qRound(2250 * 610 / 7332.0), 55));
        QVERIFY(home_->cmdHowToPlay->geometry().right() < 610);
        QVERIFY(home_->cmdImport->geometry().top() > home_->cmdExport->geometry().bottom());
    }

    void exportCopiesTheSelectedSetWhole()
    {
        const QByteArray bytes = playableSet("Exported \xe9");
        program_->write(QStringLiteral("a.QZ2"), bytes);
        openHome();
        SpecialFolders::overridePath(SpecialFolders::kDesktop, docs());
        QTemporaryDir target;
        dialogs_->choose(target.filePath(QStringLiteral("copy")));
        home_->mnuExportAnother->trigger();
        const FileDialogRequest &r = dialogs_->requests.last();
        QVERIFY(r.save);
        QCOMPARE(r.title, QStringLiteral("Export Question File To"));
        QCOMPARE(r.fileName, QStringLiteral("a.QZ2"));
        QCOMPARE(r.initialDir, docs()); // the desktop
        QCOMPARE(r.filters[0].first, QStringLiteral("PLOV(tm) Quizzarr! QA Files (*.QZ2)"));
        QCOMPARE(r.flags, quint32((0x282A0A & ~0x200u) | 0x4));
        QFile copy(target.filePath(QStringLiteral("copy"))); // no extension added
        QVERIFY(copy.open(QIODevice::ReadOnly));
        QCOMPARE(copy.readAll(), bytes);
        QVERIFY(boxes_->shown.isEmpty());
        SpecialFolders::overridePath(SpecialFolders::kDesktop, QString());
    }

    void failedExportTellsAndDamagesNothing()
    {
        program_->write(QStringLiteral("a.QZ2"), playableSet("A"));
        openHome();
        const QString own = program_->file(QStringLiteral("a.QZ2"));
        dialogs_->choose(own);
        home_->mnuExportAnother->trigger();
        QCOMPARE(boxes_->shown.size(), 1);
        QVERIFY(boxes_->shown[0].text.startsWith(QStringLiteral("Export File Failure\r\n")));
        QCOMPARE(boxes_->shown[0].style, 0);
        QFile f(own);
        QVERIFY(f.open(QIODevice::ReadOnly));
        QCOMPARE(f.readAll(), playableSet("A"));
        dialogs_->choose(docs() + QStringLiteral("missing/folder/a.QZ2"));
        home_->mnuExportAnother->trigger();
        QCOMPARE(boxes_->shown.last().text, QStringLiteral("Export File Failure\r\nNo such file or directory"));
        // Nothing selected: no dialog at all.
        home_->lstQuestions->clearSelection();
        const int asked = int(dialogs_->requests.size());
        home_->mnuExportFloppy->trigger();
        QCOMPARE(int(dialogs_->requests.size()), asked);
    }

    void importCopiesIntoDocumentsAndListsAfresh()
    {
        program_->write(QStringLiteral("a.QZ2"), playableSet("A"));
        writeDoc(QStringLiteral("b.QZ2"), playableSet("Old b"));
        QTemporaryDir media;
        SpecialFolders::overrideRemovableMedia(media.path());
        QFile source(media.filePath(QStringLiteral("b.QZ2")));
        QVERIFY(source.open(QIODevice::WriteOnly));
        source.write(playableSet("New b"));
        source.close();
        openHome();
        dialogs_->choose(source.fileName());
        home_->mnuImportFloppy->trigger();
        const FileDialogRequest &r = dialogs_->requests.last();
        QVERIFY(!r.save);
        QCOMPARE(r.title, QStringLiteral("Select Question File To Import"));
        QCOMPARE(r.initialDir, media.path());
        QCOMPARE(r.flags & 0x200u, 0u);
        QVERIFY(boxes_->shown.isEmpty()); // replaced without a question
        QCOMPARE(texts(home_->lstQuestions), QStringList({QStringLiteral("a.QZ2\tA"), QStringLiteral("b.QZ2\tNew b")}));
        QVERIFY(home_->lstQuestions->selectedItems().isEmpty());
        // A failed copy tells, and the list is filled again all the same.
        QFile::remove(docs() + QStringLiteral("b.QZ2"));
        dialogs_->choose(media.filePath(QStringLiteral("gone.QZ2")));
        home_->mnuImportAnother->trigger();
        QCOMPARE(boxes_->shown.last().text, QStringLiteral("Import File Failure\r\nNo such file or directory"));
        QCOMPARE(texts(home_->lstQuestions), QStringList({QStringLiteral("a.QZ2\tA")}));
        // Cancelled: nothing changes, the selection included.
        home_->lstQuestions->setCurrentRow(0);
        dialogs_->cancel();
        home_->mnuImportAnother->trigger();
        QCOMPARE(home_->lstQuestions->currentRow(), 0);
        SpecialFolders::overrideRemovableMedia(QString());
    }

    void importAndExportStartInFoldersMadeWhenMissing()
    {
        program_->write(QStringLiteral("a.QZ2"), playableSet("A"));
        const QString desktop = docs() + QStringLiteral("Fresh/Desktop");
        const QString documents = docs() + QStringLiteral("Fresh/Documents");
        SpecialFolders::overridePath(SpecialFolders::kDesktop, desktop);
        SpecialFolders::overridePath(SpecialFolders::kDocuments, documents);
        openHome();
        home_->lstQuestions->setCurrentRow(0);
        dialogs_->cancel();
        home_->mnuExportAnother->trigger();
        QCOMPARE(dialogs_->requests.last().initialDir, desktop + QLatin1Char('/'));
        QVERIFY(QFileInfo(desktop).isDir());
        QVERIFY(QDir().rmdir(desktop));
        dialogs_->choose(program_->file(QStringLiteral("a.QZ2")));
        home_->mnuImportAnother->trigger();
        QCOMPARE(dialogs_->requests.last().initialDir, desktop + QLatin1Char('/'));
        QVERIFY(QFileInfo(desktop).isDir());
        QVERIFY(QFile::exists(documents + QStringLiteral("/a.QZ2")));
        QVERIFY(boxes_->shown.isEmpty());
    }

    void editorSavesANewSetThatTheListThenShows()
    {
        openHome();
        QCOMPARE(home_->lstQuestions->count(), 0);
        home_->cmdEditor->click();
        auto *editor = static_cast<frmEditor *>(home_->editor());
        QVERIFY(editor->isVisible());
        editor->txtDesc->setText(QStringLiteral("Written in the editor"));
        dialogs_->choose(docs() + QStringLiteral("Mine"));
        editor->mnuSave->trigger();
        editor->mnuExit->trigger();
        QVERIFY(home_->isVisible());
        QCOMPARE(texts(home_->lstQuestions), QStringList({QStringLiteral("Mine.QZ2\tWritten in the editor")}));
        QVERIFY(home_->cmdStart->isVisible());
    }

    void helpShowsTheChosenTopic()
    {
        std::unique_ptr<frmHowToPlay> help(new frmHowToPlay);
        help->setAttribute(Qt::WA_DeleteOnClose, false);
        help->show();
        QCOMPARE(help->windowTitle(), QStringLiteral("How To Play Quizzarr!"));
        QCOMPARE(help->size(), QSize(640, 480));
        auto shown = [&] { return help->txtPlay->toPlainText(); };
        auto expected = [](int i) { return HelpTopicText(i).replace(QStringLiteral("\r\n"), QStringLiteral("\n")); };
        QCOMPARE(shown(), expected(0));
        QTest::mouseClick(help->optHelp[4], Qt::LeftButton);
        QCOMPARE(shown(), expected(4));
        QTest::mouseClick(help->optHelp[0], Qt::LeftButton);
        QCOMPARE(shown(), expected(0)); // replaced, nothing added
        help->optHelp_Click(7);
        QCOMPARE(shown(), expected(0));
        QStringList captions;
        for (QPushButton *b : help->optHelp)
            captions << b->text();
        QCOMPARE(captions, QStringList({QStringLiteral("Starting"), QStringLiteral("Playing"),
                                        QStringLiteral("Special Keys"), QStringLiteral("Scoring"),
                                        QStringLiteral("Editing")}));
        help->resize(900, 700);
        QCOMPARE(help->vseButtons->geometry(), QRect(15, 15, 870, 50));
        QCOMPARE(help->txtPlay->geometry(), QRect(15, 80, 870, 700 - 95));
    }

    void helpTextsStandAsWritten()
    {
        QCOMPARE(HelpTopicText(0).split(QStringLiteral("\r\n\r\n")).size(), 3);
        QVERIFY(HelpTopicText(1).startsWith(QStringLiteral("In order to display an answer, click on the dollar amount.")));
        QVERIFY(HelpTopicText(2).endsWith(QStringLiteral(
            "Pressing SHIFT, ALT, CTRL and Q will prematurely end the game and take you back to the file selection screen.")));
        QVERIFY(HelpTopicText(3).contains(QStringLiteral("ad nauseum. Press 0 to add the point value to team 10.\r\n\r\n")));
        QVERIFY(HelpTopicText(4).contains(QStringLiteral("the new QZ2 files. \r\n\r\nTo migrate")));
        QVERIFY(!HelpTopicText(4).endsWith(QStringLiteral("\r\n")));
        QCOMPARE(HelpTopicText(5), QString());
    }

    // ------------------------------------------------------------ the list

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

QTEST_MAIN(TestSelect)
#include "test_select.moc"
