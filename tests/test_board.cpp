// The board: its layout on real screen shapes, text fitting, the answer
// screen's zoom and flip, and the board's load and unload.

#include "FakeClock.h"
#include "FakeSoundControl.h"
#include "ScriptedMsgBox.h"
#include "TestSets.h"

#include "board/AnimationGeometry.h"
#include "ui/controls/Backdrop.h"
#include "board/BoardLayout.h"
#include "ui/controls/ShadowLabel.h"
#include "board/TextFitting.h"
#include "game/GameState.h"
#include "BoardUnderTest.h"
#include "ui/controls/CaptionControl.h"
#include "shell/PictureLibrary.h"
#include "shell/Libraries.h"

#include "questions/HostSheet.h"

#include <QGlyphRun>
#include <QProcess>
#include <QRawFont>
#include <QTemporaryDir>
#include <QTextLayout>
#include <QtTest>

namespace {

QFont bold(qreal points)
{
    QFont f(QStringLiteral("Arial"));
    f.setBold(true);
    f.setPointSizeF(points);
    return f;
}

// Where the fitting must end, found one point at a time: the oracle for
// its climb in steps of 10. A text that fits at `from` ends at the last size
// before the first that fails. One that does not ends one point below
// `from` up to 10; above, at the last fitting size counting up from nine
// below `from`, or else at the largest that fits below that.
int sizeFoundPointByPoint(const QString &text, int from, qreal w, qreal h)
{
    auto fits = [&](int s) { return s >= 1 && TextFits(bold(s), WrapText(text, bold(s), qRound(w)), w, h); };
    auto lastBeforeFailing = [&](int s) {
        while (fits(s + 1))
            ++s;
        return s;
    };
    if (fits(from))
        return lastBeforeFailing(from);
    if (from <= 10)
        return from - 1;
    if (fits(from - 9))
        return lastBeforeFailing(from - 9);
    int s = from - 10;
    while (s > 1 && !fits(s))
        --s;
    return s;
}

struct Frame {
    QRect geometry;
    qreal fontSize;
    bool visible;
};

} // namespace

class TestBoard : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;

    GameState state_;
    Libraries libraries_;

    BoardUnderTest *newBoard(QSize size = QSize(1024, 768))
    {
        auto *board = new BoardUnderTest(state_, libraries_);
        board->resize(size);
        board->Form_Resize();
        return board;
    }

    QString writeSet(const QByteArray &round1) { return writeFile(dir_.filePath(QStringLiteral("set.QZ2")), round1); }

private slots:
    void initTestCase()
    {
        QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans"));
        libraries_.hPictureLib = PictureLibrary::load(QStringLiteral(QUIZZARR_PROGRAM_DIR "/PLOVQBmp.so"));
        QVERIFY(libraries_.hPictureLib);
    }

    void cleanupTestCase() { libraries_.ShutdownLibraries(); }

    void init()
    {
        state_.Scores.fill(0);
        state_.QuestionFile.clear();
        state_.PicIdScreen = 400;
        state_.PicIdDailyDouble = 401;
        state_.PicIdFinal = 402;
        state_.PicIdBackdrop = 403;
    }

    // Clues in any script show as letters, never as empty boxes: on the
    // answer screen (its font, and the fonts the system falls back to) and
    // on the host's sheet, which carries the fonts it needs.
    void everyScriptShows_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("Chinese") << QStringLiteral("\u5317\u4eac\u662f\u4e2d\u56fd\u7684\u9996\u90fd\u3002");
        QTest::newRow("Japanese") << QStringLiteral("\u6771\u4eac\u30bf\u30ef\u30fc\u306f\u3069\u3053\uff1f");
        QTest::newRow("Korean") << QStringLiteral("\ud55c\uad6d\uc758 \uc218\ub3c4\ub294?");
        QTest::newRow("emoji") << QStringLiteral("Which animal is \U0001f981?");
    }
    void everyScriptShows()
    {
        QFETCH(QString, text);
        std::unique_ptr<BoardUnderTest> board(newBoard(QSize(1024, 768)));
        board->showOnScreen(text);
        QCOMPARE(board->vseTV->caption().remove(QLatin1Char('\n')).remove(QLatin1Char(' ')), QString(text).remove(QLatin1Char(' ')));
        QTextLayout layout(text, board->vseTV->font());
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        for (const QGlyphRun &run : layout.glyphRuns())
            QVERIFY2(!run.glyphIndexes().contains(0), qPrintable(run.rawFont().familyName()));
        QuestionSet set = distinctSet();
        set.Categories[0][0].Answer[0] = text;
        const QString pdf = QDir::temp().filePath(QStringLiteral("quizzarr-scripts.pdf"));
        QVERIFY(!WriteHostSheet(set, pdf, QPageSize::A4));
        QProcess fonts;
        fonts.start(QStringLiteral("pdffonts"), {pdf});
        QVERIFY(fonts.waitForFinished(20000));
        QVERIFY(fonts.readAllStandardOutput().contains(text.contains(QStringLiteral("\U0001f981")) ? "Emoji" : "CJK"));
        QFile::remove(pdf);
    }

    void lays800PixelBoardOut()
    {
        const BoardGeometry g = LayOutBoard(800, 31);
        QVERIFY(qAbs(g.y0 - 94.62) < 0.01);
        QCOMPARE(g.B, 650.0);
        QCOMPARE(g.r, 81.25);
        QVERIFY(qAbs(g.categories.top() - 99.62) < 0.01);
        QVERIFY(qAbs(g.rows[4].bottom() - 597.12) < 0.01);
        QCOMPARE(g.left, 80.0);
        QVERIFY(qAbs(g.bannerHeight - 63.62) < 0.01);
        // The same on a real board, within a pixel.
        std::unique_ptr<BoardUnderTest> board(newBoard(QSize(800, 600)));
        QVERIFY(qAbs(board->vseQuestions[4]->geometry().bottom() + 1 - 597.12) <= 1);
        QVERIFY(qAbs(board->vseQuestion[0]->width() - 650 / 6.0) <= 1);
    }

    void wholeBoardIsVisibleOnCommonScreens_data()
    {
        QTest::addColumn<QSize>("screen");
        QTest::newRow("4:3") << QSize(1024, 768);
        QTest::newRow("16:10") << QSize(1280, 800);
        QTest::newRow("16:9") << QSize(1920, 1080);
        QTest::newRow("4K") << QSize(3840, 2160);
        QTest::newRow("5:4") << QSize(1280, 1024);
    }
    void wholeBoardIsVisibleOnCommonScreens()
    {
        QFETCH(QSize, screen);
        std::unique_ptr<BoardUnderTest> board(newBoard(screen));
        const QRect area = board->boardArea();
        QVERIFY(QRect(QPoint(0, 0), screen).contains(area));
        // Centred: equal margins left and right, top and bottom.
        QVERIFY(qAbs(area.left() - (screen.width() - area.right() - 1)) <= 1);
        QVERIFY(qAbs(area.top() - (screen.height() - area.bottom() - 1)) <= 1);
        QVERIFY(qAbs(area.width() * 3 - area.height() * 4) <= 4);
        for (QWidget *row : board->vseQuestions) {
            const QRect onScreen(row->mapTo(board.get(), QPoint(0, 0)), row->size());
            QVERIFY2(QRect(QPoint(0, 0), screen).contains(onScreen), qPrintable(QStringLiteral("row cut off")));
        }
        // 4:3 cells: each tile is a third wider than high.
        QVERIFY(qAbs(board->vseQuestion[7]->width() * 3 - board->vseQuestion[7]->height() * 4) <= 8);
    }

    void teamLabelsFollowTheTeamCount_data()
    {
        QTest::addColumn<int>("teams");
        QTest::newRow("no scoring") << 0;
        QTest::newRow("one team") << 1;
        QTest::newRow("ten teams") << 10;
    }
    void teamLabelsFollowTheTeamCount()
    {
        QFETCH(int, teams);
        std::unique_ptr<BoardUnderTest> board(newBoard());
        board->show();
        board->game().setTeams(teams);
        board->PrepareTeamLabels(teams);
        state_.Scores[9] = 1500;
        board->Form_Resize();
        QCOMPARE(board->lblTeam.size(), qMax(1, teams));
        QCOMPARE(board->lblScore2.size(), qMax(1, teams));
        QCOMPARE(board->lblTeam[0]->isVisible(), teams > 0);
        const BoardGeometry &g = board->geometry();
        for (int i = 0; i < board->lblTeam.size(); ++i) {
            QCOMPARE(board->lblTeam[i]->caption(), QStringLiteral("Team %1:").arg(i + 1));
            QVERIFY(qAbs(board->lblTeam[i]->y() - (g.y0 + i * (2 * g.labelHeight + 10))) <= 1);
            QCOMPARE(board->lblTeam[i]->x(), 5);
            QVERIFY(qAbs(board->lblScore[i]->y() - board->lblTeam[i]->y() - g.labelHeight) <= 1);
            QCOMPARE(board->lblScore[i]->isVisible(), teams > 0);
            QCOMPARE(board->lblTeam2[i]->x(), 40);
            QVERIFY(!board->lblTeam2[i]->isVisible());
        }
        if (teams == 10) {
            QCOMPARE(board->lblScore[9]->caption(), QStringLiteral("$ 1500")); // no separator after a resize
            QCOMPARE(board->lblTeam[9]->caption(), QStringLiteral("Team 10:"));
            QVERIFY(board->lblScore[9]->geometry().bottom() < board->height());
        }
        // The geometry of the board is the same, teams or not.
        QVERIFY(qAbs(board->vseCategories->y() - (g.y0 + 5)) <= 1);
    }

    // On a board wider than 1024 pixels the teams' labels grow with it,
    // from 12 points, as everything else on the board does.
    void teamLabelsGrowWithTheBoard_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<qreal>("points");
        QTest::newRow("1024") << QSize(1024, 768) << 12.0;
        QTest::newRow("1920x1080") << QSize(1920, 1080) << 16.875; // a 1440 pixel wide 4:3 area
        QTest::newRow("3840x2160") << QSize(3840, 2160) << 33.75;
    }
    void teamLabelsGrowWithTheBoard()
    {
        QFETCH(QSize, size);
        QFETCH(qreal, points);
        std::unique_ptr<BoardUnderTest> board(newBoard(size));
        for (ShadowLabel *label : {board->lblTeam[0], board->lblScore[0], board->lblTeam2[0], board->lblScore2[0]})
            QCOMPARE(label->font().pointSizeF(), points);
    }

    void crammedTextEndsWhereAPointByPointClimbEnds_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("start");
        for (const int start : {8, 10, 23}) {
            for (const char *text : {"$400", "Animal Kingdom", "World Capitals of Europe", "What is the tallest mountain on Earth?"})
                QTest::addRow("%s from %d", text, start) << QString::fromLatin1(text) << start;
        }
    }
    void crammedTextEndsWhereAPointByPointClimbEnds()
    {
        QFETCH(QString, text);
        QFETCH(int, start);
        for (int w = 14; w <= 420; w += 17) {
            for (int h = 10; h <= 330; h += 16) {
                const qreal got = CramText(text, bold(start), start, w, h).points;
                const int expected = sizeFoundPointByPoint(text, start, w, h);
                if (int(got) != expected)
                    QFAIL(qPrintable(QStringLiteral("box %1 x %2: %3 instead of %4").arg(w).arg(h).arg(got).arg(expected)));
            }
        }
    }

    void fittingEdgeCases()
    {
        CaptionControl c;
        c.setFont(bold(8));
        // One word wider than the box at 8 ends at 7, on one line.
        c.showFitted(CramText(QStringLiteral("Supercalifragilistic"), c.font(), 8, 30, 40));
        QCOMPARE(c.fontSize(), 7.0);
        QCOMPARE(c.caption(), QStringLiteral("Supercalifragilistic"));
        // Two words that do not fit side by side: one word a line.
        const qreal oneWord = CaptionText::width(bold(8), QStringLiteral("Wombat"));
        c.setFontSize(8);
        c.showFitted(CramText(QStringLiteral("Wombat Wombat"), c.font(), 8, oneWord * 1.5, 400));
        QVERIFY(c.caption().contains(QLatin1Char('\n')));
        for (const QString &line : c.caption().split(QLatin1Char('\n')))
            QCOMPARE(line, QStringLiteral("Wombat"));
        // Double spaces leave no empty line and no leading space.
        const QString wrapped = WrapText(QStringLiteral("alpha  beta  gamma"), bold(20), 90);
        for (const QString &line : wrapped.split(QLatin1Char('\n'))) {
            QVERIFY(!line.isEmpty());
            QVERIFY(!line.startsWith(QLatin1Char(' ')) && !line.endsWith(QLatin1Char(' ')));
        }
        // An empty text gives an empty caption.
        c.setCaption(QStringLiteral("old"));
        c.showFitted(CramText(QString(), c.font(), 8, 100, 100));
        QCOMPARE(c.caption(), QString());
        // No break offered: the rest stays on one over-long line.
        QCOMPARE(WrapText(QStringLiteral("Unbreakable"), bold(20), 10), QStringLiteral("Unbreakable"));
    }

    void longClueShrinksUntilItFitsTheAnswerScreen()
    {
        QString clue;
        while (clue.size() < 1999)
            clue += QStringLiteral("a long clue that goes on and on ");
        clue.truncate(1999);
        CaptionControl tv;
        tv.setFont(bold(60));
        tv.showFitted(CramText(clue, tv.font(), 60, 800, 600));
        QVERIFY(tv.fontSize() < 50);
        QVERIFY(TextFits(tv.font(), tv.caption(), 800, 600));
        QVERIFY(!TextFits(bold(tv.fontSize() + 1), WrapText(clue, bold(tv.fontSize() + 1), 800), 800, 600));
    }

    void zoomGrowsInFiveEqualStepsToTheWholeBoard()
    {
        std::unique_ptr<BoardUnderTest> board(newBoard());
        board->show();
        board->game().setTeams(3);
        board->PrepareTeamLabels(3);
        board->Form_Resize();
        board->vseQuestion_RealignFrame(0);
        FakeClock clock;
        QList<Frame> frames;
        clock.onPause = [&](int ms) {
            QCOMPARE(ms, 25);
            frames.append({board->vseTV->geometry(), board->vseTV->fontSize(), board->vseTV->isVisible()});
        };
        board->vseTV->setCaption(board->vseQuestion[0]->caption());
        const QRect tile(board->vseQuestion[0]->mapTo(board->vseTV->parentWidget(), QPoint(0, 0)),
                         board->vseQuestion[0]->size());
        const qreal tileFont = board->vseQuestion[0]->fontSize();
        board->ZoomTV({ZoomSource::Tile, 0}, state_.PicIdScreen);
        QCOMPARE(frames.size(), 5);
        const QSizeF W = board->boardSize();
        for (const Frame &f : frames)
            QVERIFY(f.visible && f.geometry.width() > tile.width());
        QCOMPARE(frames.last().geometry, QRect(QPoint(0, 0), W.toSize()));
        // Equal steps: every step moves the width by the same amount.
        const int step = frames[1].geometry.width() - frames[0].geometry.width();
        for (int k = 2; k < 5; ++k)
            QVERIFY(qAbs(frames[k].geometry.width() - frames[k - 1].geometry.width() - step) <= 2);
        // With a caption the font grows with the width.
        QVERIFY(qAbs(frames.last().fontSize - tileFont * W.width() / tile.width()) < 0.5);
        // Three teams: three pairs shown on the answer screen.
        for (int i = 0; i < 3; ++i) {
            QVERIFY(board->lblTeam2[i]->isVisible());
            QVERIFY(board->lblScore2[i]->isVisible());
        }
        QVERIFY(!board->lblCategory->isVisible());
    }

    void zoomWithoutCaptionKeepsTheFontAndShowsNoTeamsWithoutScoring()
    {
        std::unique_ptr<BoardUnderTest> board(newBoard());
        board->show();
        FakeClock clock;
        board->vseTV->setCaption(QString());
        board->vseTV->setFontSize(11);
        QList<qreal> sizes;
        clock.onPause = [&](int) { sizes.append(board->vseTV->fontSize()); };
        board->ZoomTV({ZoomSource::Tile, 9}, state_.PicIdDailyDouble);
        // The screen takes the tile's font size, then keeps it.
        for (qreal s : sizes)
            QCOMPARE(s, board->vseQuestion[9]->fontSize());
        QVERIFY(!board->lblTeam2[0]->isVisible());
        PictureBox expected;
        libraries_.DrawLibraryBitmap(expected, state_.PicIdDailyDouble);
        QCOMPARE(board->vseTV->picture(), expected.image());
    }

    void answerScreenCoversAWideWindowWhole()
    {
        std::unique_ptr<BoardUnderTest> board(newBoard(QSize(1280, 720)));
        board->show();
        FakeClock clock;
        QCOMPARE(board->boardArea(), QRect(160, 0, 960, 720)); // the grid keeps to 4:3
        board->ZoomTV({ZoomSource::Tile, 0}, state_.PicIdScreen);
        QCOMPARE(board->vseTV->geometry(), QRect(0, 0, 1280, 720));
        board->RotateTV(state_.PicIdScreen, state_.PicIdScreen);
        QCOMPARE(board->vseTV->geometry(), QRect(0, 0, 1280, 720));
        const QRect firstTile(board->vseQuestion[0]->mapTo(board.get(), QPoint(0, 0)), board->vseQuestion[0]->size());
        QVERIFY(board->boardArea().contains(firstTile));
    }

    void pictureCluesTakeTheLargerArrangement_data()
    {
        QTest::addColumn<QSizeF>("screen");
        QTest::addColumn<QSizeF>("picture");
        QTest::addColumn<bool>("beside");
        QTest::newRow("a flag on a wide screen: beside") << QSizeF(1280, 720) << QSizeF(300, 200) << true;
        QTest::newRow("a flag on a 4:3 screen: under") << QSizeF(1024, 768) << QSizeF(300, 200) << false;
        QTest::newRow("a tall portrait: beside") << QSizeF(1024, 768) << QSizeF(200, 400) << true;
        QTest::newRow("a panorama: under") << QSizeF(3840, 2160) << QSizeF(1000, 200) << false;
    }
    void pictureCluesTakeTheLargerArrangement()
    {
        QFETCH(QSizeF, screen);
        QFETCH(QSizeF, picture);
        QFETCH(bool, beside);
        const PictureClueLayout l = LayOutPictureClue(screen, picture, true);
        const QRectF whole(QPointF(0, 0), screen);
        QVERIFY(whole.contains(l.picture) && whole.contains(l.text));
        QVERIFY(!l.picture.intersects(l.text));
        QCOMPARE(l.text.left() > l.picture.right(), beside);
        QCOMPARE(l.text.top() > l.picture.bottom(), !beside);
        QVERIFY(l.picture.top() >= 0.12 * screen.height()); // clear of the category and value
        // Without text the picture has all the room there is.
        const PictureClueLayout alone = LayOutPictureClue(screen, picture, false);
        QVERIFY(alone.text.isEmpty());
        QVERIFY(alone.picture.contains(l.picture));
    }

    void answerScreenShowsAPictureOrTheTextAlone()
    {
        std::unique_ptr<BoardUnderTest> board(newBoard(QSize(1280, 720)));
        board->show();
        QTemporaryDir dir;
        QImage flag(300, 200, QImage::Format_RGB32);
        flag.fill(Qt::red);
        const QString png = dir.filePath(QStringLiteral("flag.png"));
        QVERIFY(flag.save(png));
        board->vseTV->setGeometry(0, 0, 1280, 720); // as a zoom leaves it
        board->vseTV->show();
        board->showOnScreen(QStringLiteral("Whose flag is this?"), png);
        QCOMPARE(board->vseTV->inset().size(), QSize(300, 200));
        QVERIFY(board->vseTV->caption().contains(QStringLiteral("flag")));
        const QImage drawn = board->vseTV->grab().toImage();
        const PictureClueLayout l = LayOutPictureClue(QSizeF(1280, 720), QSizeF(300, 200), true);
        QCOMPARE(drawn.pixelColor(l.picture.center().toPoint()), QColor(Qt::red));
        // Missing or unreadable: the text alone, and nothing to say about it.
        ScriptedMsgBox boxes;
        writeFile(dir.filePath(QStringLiteral("broken.png")), "not a picture");
        for (const QString &bad : {dir.filePath(QStringLiteral("gone.png")), dir.filePath(QStringLiteral("broken.png"))}) {
            board->showOnScreen(QStringLiteral("Whose flag is this?"), bad);
            QVERIFY(board->vseTV->inset().isNull());
        }
        QVERIFY(boxes.shown.isEmpty());
        // A response never keeps the clue's picture.
        board->showOnScreen(QStringLiteral("What is Japan?"), png);
        board->showOnScreen(QStringLiteral("What is Japan?"));
        QVERIFY(board->vseTV->inset().isNull());
    }

    void flipFoldsAndUnfoldsOverTheWholeBoard()
    {
        std::unique_ptr<BoardUnderTest> board(newBoard());
        board->show();
        FakeClock clock;
        board->ZoomTV({ZoomSource::Tile, 14}, state_.PicIdFinal);
        QList<QRect> frames;
        QList<int> pauses;
        clock.onPause = [&](int ms) {
            pauses.append(ms);
            frames.append(board->vseTV->geometry());
        };
        qint64 start = clock.elapsedMs();
        board->RotateTV(state_.PicIdFinal, state_.PicIdScreen);
        QCOMPARE(frames.size(), 18);
        // One step per frame of a 60 Hz display: 300 ms in all.
        for (const int ms : pauses)
            QVERIFY(ms == 16 || ms == 17);
        QCOMPARE(clock.elapsedMs() - start, 300);
        const QSize W = board->boardSize().toSize();
        // Folding: ever thinner, centred, down to the sin 10 degrees strip,
        // which the last (zero-height) step leaves in place.
        for (int k = 1; k < 8; ++k)
            QVERIFY(frames[k].height() < frames[k - 1].height());
        QCOMPARE(frames[8], frames[7]);
        QVERIFY(qAbs(frames[7].height() - W.height() * std::sin(10 * M_PI / 180)) <= 1);
        QVERIFY(qAbs(frames[3].center().y() - W.height() / 2) <= 1);
        // Unfolding: ever wider, centred, ending over the whole board.
        for (int k = 10; k < 18; ++k)
            QVERIFY(frames[k].width() > frames[k - 1].width());
        QCOMPARE(frames.last(), QRect(QPoint(0, 0), W));
        QCOMPARE(board->vseTV->geometry(), QRect(QPoint(0, 0), W));
        PictureBox face;
        libraries_.DrawLibraryBitmap(face, state_.PicIdScreen);
        QCOMPARE(board->vseTV->picture(), face.image());
    }

    void loadRetriesSoundThenGoesOnWithout()
    {
        FakeSoundControl fake(libraries_);
        ScriptedMsgBox boxes;
        fake.setInitFailures(2);
        boxes.answers = {MsgBoxResult::Retry, MsgBoxResult::Cancel};
        {
            std::unique_ptr<BoardUnderTest> board(new BoardUnderTest(state_, libraries_));
            QCOMPARE(boxes.shown.size(), 2);
            for (const ShownBox &box : boxes.shown) {
                QCOMPARE(box.text, QStringLiteral(
                    "I am unable to initialize DirectSound. This might be caused if a sound is currently playing. "
                    "Click RETRY after all sounds have stopped to try again. Click CANCEL to play the game WITHOUT "
                    "sound."));
                QCOMPARE(box.style, MsgBoxStyle::RetryCancel | MsgBoxStyle::Critical);
                QCOMPARE(box.caption, QStringLiteral("PLOV(tm) Quizzarr!"));
            }
            QCOMPARE(fake.calls(), QStringList({QStringLiteral("InitSound failed"), QStringLiteral("InitSound failed")}));
        }
        boxes.shown.clear();
        fake.reset();
        // Two boards in a row: initialised and shut down once each.
        for (int game = 0; game < 2; ++game) {
            auto *board = new BoardUnderTest(state_, libraries_);
            QSignalSpy gone(board, &frmMain::unloaded);
            board->Unload();
            QCOMPARE(gone.size(), 1);
            board->Unload(); // a second unload does nothing
            QCOMPARE(gone.size(), 1);
            delete board;
        }
        QVERIFY(boxes.shown.isEmpty());
        QCOMPARE(fake.calls(), QStringList({QStringLiteral("InitSound"), QStringLiteral("Shutdown"),
                                            QStringLiteral("InitSound"), QStringLiteral("Shutdown")}));
    }

    void answerTimeComesFromRound1Timer_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("ms");
        QTest::newRow("15 seconds") << QByteArray("[Round1]\r\nTimer=15\r\n") << 15000;
        QTest::newRow("no Timer key") << QByteArray("[Round1]\r\nDescription=x\r\n") << 10000;
        QTest::newRow("fraction") << QByteArray("[Round1]\r\nTimer=2.5\r\n") << 2500;
        QTest::newRow("zero") << QByteArray("[Round1]\r\nTimer=0\r\n") << 10000;
        QTest::newRow("leading number") << QByteArray("[Round1]\r\nTimer=12 seconds\r\n") << 12000;
        QTest::newRow("not a number") << QByteArray("[Round1]\r\nTimer=soon\r\n") << 10000;
        QTest::newRow("only round 1 counts") << QByteArray("[Round1]\r\n[Round2]\r\nTimer=30\r\n[Final]\r\nTimer=40\r\n")
                                             << 10000;
    }
    void answerTimeComesFromRound1Timer()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, ms);
        state_.QuestionFile = writeSet(content);
        std::unique_ptr<BoardUnderTest> board(new BoardUnderTest(state_, libraries_));
        QCOMPARE(board->tmrQuestion->interval(), ms);
        QVERIFY(!board->tmrQuestion->isActive());
    }

    void tilesAndHeadersWearTheScreenFace()
    {
        state_.PicIdScreen = 300;
        std::unique_ptr<BoardUnderTest> board(new BoardUnderTest(state_, libraries_));
        PictureBox face;
        libraries_.DrawLibraryBitmap(face, 300);
        QCOMPARE(board->vseQuestion[29]->picture(), face.image());
        QCOMPARE(board->vseCategory[0]->picture(), face.image());
        QCOMPARE(board->vseQuestion[17]->caption(), QStringLiteral("$300"));
        QCOMPARE(board->vseCategory[3]->caption(), QStringLiteral("PotPourri"));
    }
};

QTEST_MAIN(TestBoard)
#include "test_board.moc"
