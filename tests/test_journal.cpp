// The game's journal: written after every change, gone when a game ends
// normally, and a game left behind by a crash resumed exactly as it was;
// a changed set or a damaged journal never resumes and never crashes.

#include "HomeFixture.h"

#include "game/GameRules.h"
#include "ui/controls/CaptionControl.h"
#include "ui/controls/ShadowLabel.h"

#include <QLabel>
#include <QLineEdit>

class TestJournal : public QObject, HomeFixture {
    Q_OBJECT

    QString setPath() const { return program_->file(QStringLiteral("game.QZ2")); }
    GameJournal journal() const { return GameJournal(); }
    using HomeFixture::openHome;
    // The next start of the program, with its own state.
    frmSelect *openHome(GameState &state)
    {
        home_ = new frmSelect(state, libraries_);
        return home_;
    }
    // A press as the host makes it.
    void press(BoardGame &game, int tile)
    {
        board()->run([tile](BoardGame &g) { g.TilePress(tile, true, false); });
        for (int step = 0; step < 3 && game.state().stepCode != QString(); ++step)
            board()->run([](BoardGame &g) { g.AnswerScreenPress(); });
        board()->run([](BoardGame &g) { g.AnswerScreenPress(); });
    }
    // What a crash leaves: the journal, and no end of the game.
    void crash() { closeAll(); }
    std::optional<JournalRecord> onDisk()
    {
        QCoreApplication::processEvents(); // the write waits for the event's end
        return journal().read();
    }

private slots:
    void initTestCase() { QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans")); }

    void init()
    {
        setUp(5);
        program_->write(QStringLiteral("game.QZ2"),
                        setText({"Rivers", "Lakes", "Seas", "", "", ""}, {"Hills", "Peaks", "", "", "", ""}, "Oceans"));
    }
    void cleanup() { tearDown(); }

    void journalFollowsEveryChangeAndGoesWhenTheGameEnds()
    {
        QVERIFY(!journal().exists());
        startGame(2);
        QVERIFY(board());
        std::optional<JournalRecord> r = onDisk();
        QVERIFY(r);
        QCOMPARE(r->questionFile, setPath());
        QCOMPARE(r->fingerprint, SetFingerprint(setPath()));
        QCOMPARE(r->description, QStringLiteral("test"));
        QCOMPARE(r->round, qint16(1));
        QCOMPARE(r->teams, qint16(2));
        QCOMPARE(r->tileCaption[0], QStringLiteral("$100"));
        BoardGame &game = board()->game();
        press(game, 7);
        board()->run([](BoardGame &g) { g.addToScore(1, 700); });
        board()->run([](BoardGame &g) { g.setTeamName(0, QStringLiteral("Owls")); });
        r = onDisk();
        QCOMPARE(r->tileCaption[7], QString());
        QCOMPARE(r->scores[1], 700);
        QCOMPARE(r->names[0], QStringLiteral("Owls"));
        QVERIFY(r->history == (std::vector<std::pair<int, qint32>>{{1, 700}}));
        QCOMPARE(r->dailyDouble1, state_.DailyDouble1);
        // A written journal reads back as written, the phones' room with it.
        r->room = QStringLiteral("KQXR");
        r->port = 47110;
        r->players = {{QString(32, QLatin1Char('a')), 1, QStringLiteral("Ana \U0001f981")}};
        const std::optional<JournalRecord> again = ReadJournal(WriteJournal(*r));
        QVERIFY(again);
        QCOMPARE(WriteJournal(*again), WriteJournal(*r));
        QCOMPARE(again->players.size(), 1);
        QCOMPARE(again->players[0].name, QStringLiteral("Ana \U0001f981"));
        sendKey(board(), Qt::Key_Q, kAllThreeKeys);
        QCoreApplication::processEvents();
        QVERIFY(!journal().exists()); // a normal end leaves nothing to resume
    }

    void crashedGameResumesExactlyWhereItStopped()
    {
        startGame(3);
        BoardGame &game = board()->game();
        press(game, 0);
        board()->run([](BoardGame &g) { g.addToScore(2, 300); g.addToScore(0, -200); });
        board()->run([](BoardGame &g) { g.setTeamName(1, QStringLiteral("Foxes")); });
        sendKey(board(), Qt::Key_N, kAllThreeKeys); // round 2
        press(game, 13);
        board()->run([](BoardGame &g) { g.TilePress(8, true, true); }); // taken out unplayed
        // The host opens a clue, and the battery dies with it on the screen.
        board()->run([](BoardGame &g) { g.TilePress(6, true, false); });
        QCoreApplication::processEvents();
        const BoardState before = game.state();
        const GameState settings = state_;
        crash();
        // The next start of the program.
        GameState next;
        FakeSoundControl sound(libraries_);
        boxes_->shown.clear();
        boxes_->answers = {MsgBoxResult::Yes};
        QVERIFY(openHome(next)->offerResume());
        QCOMPARE(boxes_->shown.size(), 1);
        QCOMPARE(boxes_->shown[0].text, QStringLiteral("Resume the interrupted game of test?\r\n\r\nRound 2\r\n"
                                                       "Team 1: $ -200\r\nFoxes: $ 0\r\nTeam 3: $ 300"));
        QCOMPARE(boxes_->shown[0].style, MsgBoxStyle::YesNo | MsgBoxStyle::Question);
        QCOMPARE(boxes_->shown[0].caption, QStringLiteral("PLOV(tm) Quizzarr!"));
        QVERIFY(board() && board()->isVisible());
        QVERIFY(!home_->isVisible());
        const BoardState &now = board()->game().state();
        QCOMPARE(next.Round, qint16(2));
        QVERIFY(now.headerTag == before.headerTag); // titles and tiles: the next test
        QCOMPARE(now.Teams, qint16(3));
        QVERIFY(now.scoreHistory == before.scoreHistory);
        QVERIFY(next.Scores == settings.Scores);
        QVERIFY(next.TeamNames == settings.TeamNames);
        QCOMPARE(next.TilesDone, qint16(settings.TilesDone + 1)); // the open clue counts as played
        QVERIFY(!board()->screenVisible());
        QVERIFY(sound.played().isEmpty()); // no start sound: the class is waiting
        // The resumed game goes on, and on being played keeps its journal.
        board()->run([](BoardGame &g) { g.undoScore(); });
        QCOMPARE(next.Scores[0], 0);
        QCOMPARE(onDisk()->scores[0], 0);
    }

    // A resume shows every restored value on every screen that watches:
    // the board and the host's console.
    void resumeShowsEverythingOnEveryScreen_data()
    {
        QTest::addColumn<QString>("when");
        QTest::newRow("round 1") << QStringLiteral("round 1");
        QTest::newRow("an open daily double") << QStringLiteral("daily double");
        QTest::newRow("the final") << QStringLiteral("final");
    }
    void resumeShowsEverythingOnEveryScreen()
    {
        QFETCH(QString, when);
        startGame(2);
        board()->run([](BoardGame &g) {
            g.setTeamName(0, QStringLiteral("Owls"));
            g.setTeamName(1, QStringLiteral("Foxes"));
            g.addToScore(1, 400);
        });
        if (when == QStringLiteral("final")) {
            sendKey(board(), Qt::Key_N, kAllThreeKeys);
            sendKey(board(), Qt::Key_N, kAllThreeKeys);
        } else {
            press(board()->game(), 0);
        }
        if (when == QStringLiteral("daily double"))
            board()->run([this](BoardGame &g) { g.TilePress(state_.DailyDouble1, true, false); });
        const GameState before = state_;
        const BoardState played = board()->game().state();
        QCoreApplication::processEvents();
        crash();
        GameState next;
        boxes_->answers = {MsgBoxResult::Yes};
        openHome(next);
        QTest::keyClick(home_, Qt::Key_F2); // the console watches from the start
        QVERIFY(home_->offerResume());
        frmConsole *console = home_->console();
        QVERIFY(console);
        QCOMPARE(next.Round, before.Round);
        for (int team = 0; team < 2; ++team) {
            const QString name = before.TeamNames[size_t(team)], score = team ? QStringLiteral("$ 400") : QStringLiteral("$ 0");
            QCOMPARE(board()->findChild<ShadowLabel *>(QStringLiteral("lblTeam(%1)").arg(team))->caption(), name + QLatin1Char(':'));
            QCOMPARE(board()->findChild<ShadowLabel *>(QStringLiteral("lblScore(%1)").arg(team))->caption(), score);
            QCOMPARE(console->findChild<QLineEdit *>(QStringLiteral("txtName(%1)").arg(team))->text(), name);
            QCOMPARE(console->findChild<QLabel *>(QStringLiteral("lblScore(%1)").arg(team))->text(), score);
        }
        if (when == QStringLiteral("final")) {
            QCOMPARE(board()->game().state().stepCode, QStringLiteral("FC|-1"));
            QVERIFY(console->findChild<QLabel *>(QStringLiteral("lblCategory"))->text().startsWith(QStringLiteral("Oceans")));
            return;
        }
        // The board's titles and tiles, and the console's miniature with its
        // daily doubles starred, are the ones played; an open clue counts.
        for (int c = 0; c < 6; ++c)
            QCOMPARE(board()->findChild<CaptionControl *>(QStringLiteral("vseCategory(%1)").arg(c))->caption(),
                     played.headerCaption[size_t(c)]);
        QCOMPARE(next.DailyDouble1, before.DailyDouble1);
        QCOMPARE(next.DailyDouble2, before.DailyDouble2);
        for (int i = 0; i < 30; ++i) {
            QCOMPARE(board()->findChild<CaptionControl *>(QStringLiteral("vseQuestion(%1)").arg(i))->caption(),
                     played.tileCaption[size_t(i)]);
            const bool starred = console->findChild<QPushButton *>(QStringLiteral("cmdTile(%1)").arg(i))->text().startsWith(QStringLiteral("\u2605"));
            QCOMPARE(starred, i == next.DailyDouble1 || i == next.DailyDouble2);
        }
    }

    // Phones that were on come back on with the game, with the same room
    // and players, so that the phones find their teams by themselves.
    void aResumeBringsThePhonesBack()
    {
        openHome();
        home_->setPhonesOn(true);
        QVERIFY(home_->phones().isOn());
        const QString code = home_->phones().room()->code();
        home_->phones().room()->join(1, QStringLiteral("Ana"));
        home_->cmbScore->setCurrentIndex(2);
        home_->lstQuestions->setCurrentRow(0);
        home_->cmdStart->click();
        press(board()->game(), 7);
        QCOMPARE(onDisk()->room, code);
        crash();
        GameState next;
        boxes_->answers = {MsgBoxResult::Yes};
        QVERIFY(openHome(next)->offerResume());
        QVERIFY(home_->phones().isOn());
        QCOMPARE(home_->phones().room()->code(), code);
        QCOMPARE(home_->phones().room()->players().value(0).name, QStringLiteral("Ana"));
    }

    // The journal goes with every way a game ends, and a game in which
    // nothing happened is not worth a question.
    void everyEndRemovesTheJournal_data()
    {
        QTest::addColumn<QString>("end");
        QTest::newRow("end key") << QStringLiteral("key");
        QTest::newRow("window's close button") << QStringLiteral("close");
        QTest::newRow("home screen closed") << QStringLiteral("home");
    }
    void everyEndRemovesTheJournal()
    {
        QFETCH(QString, end);
        startGame(2);
        press(board()->game(), 7);
        QVERIFY(onDisk());
        if (end == QStringLiteral("key"))
            sendKey(board(), Qt::Key_Q, kAllThreeKeys);
        else if (end == QStringLiteral("close"))
            board()->close();
        else
            home_->close();
        QCoreApplication::processEvents();
        QVERIFY(!journal().exists());
    }

    void aGameWithNothingPlayedIsNotOffered()
    {
        startGame(2);
        board()->run([](BoardGame &g) { g.TilePress(0, true, true); g.TilePress(0, true, true); }); // out and back
        board()->run([](BoardGame &g) { g.addToScore(0, 100); g.undoScore(); }); // the undo leaves history as before
        QVERIFY(onDisk());
        crash();
        GameState next;
        QVERIFY(!openHome(next)->offerResume());
        QVERIFY(boxes_->shown.isEmpty());
        QVERIFY(!journal().exists());
        // One tile taken out is a game the host played.
        JournalRecord r;
        QVERIFY(!JournalEarned(r));
        r.headerCaption[2] = QStringLiteral("Seas");
        r.tileCaption[8] = QString();
        QVERIFY(JournalEarned(r));
    }

    void noForgetsTheGame()
    {
        startGame(2);
        board()->run([](BoardGame &g) { g.addToScore(0, 100); });
        QVERIFY(onDisk());
        crash();
        GameState next;
        boxes_->answers = {MsgBoxResult::No};
        QVERIFY(!openHome(next)->offerResume());
        QVERIFY(!board());
        QVERIFY(!journal().exists());
        QVERIFY(!openHome(next)->offerResume()); // and does not ask again
        QCOMPARE(boxes_->shown.size(), 1);
    }

    void aChangedOrMissingSetIsNamedAndNotResumed_data()
    {
        QTest::addColumn<bool>("remove");
        QTest::newRow("changed") << false;
        QTest::newRow("gone") << true;
    }
    void aChangedOrMissingSetIsNamedAndNotResumed()
    {
        QFETCH(bool, remove);
        startGame(2);
        press(board()->game(), 7);
        QVERIFY(onDisk());
        crash();
        if (remove)
            QVERIFY(QFile::remove(setPath()));
        else
            program_->write(QStringLiteral("game.QZ2"), setText({"Other"}, {}, "Z"));
        GameState next;
        QVERIFY(!openHome(next)->offerResume());
        QCOMPARE(boxes_->shown.size(), 1);
        QCOMPARE(boxes_->shown[0].text, QStringLiteral("The question set ") + setPath() +
                                            QStringLiteral(" has changed or is gone since the game was interrupted, "
                                                           "so the game cannot be resumed."));
        QCOMPARE(boxes_->shown[0].style, MsgBoxStyle::Exclamation);
        QVERIFY(!board());
        QVERIFY(!journal().exists());
    }

    // Journals that must never resume, each in tests/data/journals: damaged,
    // foreign, from a newer game or out of range, most a small change of a
    // good one sealed anew (what the checksum cannot catch); and a huge file.
    void aDamagedOrForeignJournalIsSetAside_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QDir journals(QStringLiteral(QUIZZARR_TEST_DATA "/journals"));
        for (const QString &name : journals.entryList(QDir::Files))
            QTest::newRow(qPrintable(name)) << readFile(journals.filePath(name));
        QTest::newRow("a huge file") << QByteArray(2 << 20, ' ');
    }
    void aDamagedOrForeignJournalIsSetAside()
    {
        QFETCH(QByteArray, bytes);
        const QString path = GameJournal::defaultPath();
        QDir().mkpath(QFileInfo(path).absolutePath());
        writeFile(path, bytes);
        GameState next;
        QVERIFY(!openHome(next)->offerResume());
        QVERIFY(boxes_->shown.isEmpty()); // no question, no message
        QVERIFY(!journal().exists());
        QFile aside(path + QStringLiteral(".damaged"));
        QVERIFY(aside.open(QIODevice::ReadOnly));
        QCOMPARE(aside.readAll(), bytes); // kept for a look
        aside.remove();
    }

};

QTEST_MAIN(TestJournal)
#include "test_journal.moc"
