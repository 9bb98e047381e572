// The question editor: editor flows with scripted dialogs and message
// boxes, its lists and fields, the exact bytes the editor writes, and its
// spreadsheet commands: importing replaces the set (after the question
// every command asks about unsaved work), exporting writes the set shown,
// and every fault reaches the host in a message box.

#include "EditorFixture.h"

#include "platform/ModuleFileName.h"
#include "platform/clsOpenSaveDlgFlags.h"
#include "questions/TableFiles.h"
#include "questions/clsOpenSaveDlg.h"
#include "ui/controls/CaptionControl.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QToolButton>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include <dlfcn.h>

namespace {

using Flags = clsOpenSaveDlgFlags;

// A table of one round of two categories and the final, in the layout a
// host writes; clue texts "c<category><row>".
QByteArray tableText(const QString &firstClue = QStringLiteral("c00"))
{
    QByteArray csv = "round,Category,Clue,Response,Picture\r\n";
    for (int c = 0; c < 2; ++c) {
        for (int j = 0; j < 5; ++j) {
            const QByteArray clue = c == 0 && j == 0 ? firstClue.toUtf8() : "c" + QByteArray::number(c * 10 + j);
            csv += "1,Cat " + QByteArray::number(c) + "," + clue + ",r" + QByteArray::number(c * 10 + j) + ",\r\n";
        }
    }
    return csv + "Final,Last,fc,fr,final.png\r\n";
}

} // namespace

class TestEditor : public QObject, EditorFixture {
    Q_OBJECT

    // What a host types replaces the field's text.
    void type(QLineEdit *field, const QString &text)
    {
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, text);
    }

private slots:
    void initTestCase() { QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans")); }

    void init() { setUp(); }
    void cleanup() { tearDown(); }

    // The spreadsheet commands first: the workbook writer must not be
    // loaded by an earlier export.
    void importAsksFirstThenReplacesTheSet()
    {
        QDir().mkpath(path(QStringLiteral("Downloads")));
        const QString table = writeFile(path(QStringLiteral("Downloads/Class Table.csv")), tableText());
        writeFile(path(QStringLiteral("Downloads/final.png")), "a picture");
        open(sampleSet());
        editor_->txtName->setText(QStringLiteral("changed"));
        boxes_->answers = {MsgBoxResult::Cancel};
        editor_->mnuImportTable->trigger();
        QCOMPARE(boxes_->shown.size(), 1);
        QCOMPARE(boxes_->shown[0].text, QStringLiteral("Would you like to save your work?"));
        QCOMPARE(boxes_->shown[0].caption, QStringLiteral("Import Spreadsheet"));
        QVERIFY(dialogs_->requests.isEmpty());
        QCOMPARE(editor_->questionSet.Categories[0][0].Title, QStringLiteral("changed"));
        boxes_->answers = {MsgBoxResult::No};
        dialogs_->choose(table);
        editor_->mnuImportTable->trigger();
        const FileDialogRequest &r = dialogs_->requests.last();
        QVERIFY(!r.save);
        QCOMPARE(r.title, QStringLiteral("Import Spreadsheet"));
        QCOMPARE(r.filters.size(), 1);
        QCOMPARE(r.filters[0].first, QStringLiteral("Spreadsheets (*.csv;*.xlsx;*.ods)"));
        QCOMPARE(r.filters[0].second, QStringLiteral("*.csv;*.xlsx;*.ods"));
        QCOMPARE(r.initialDir, path(QStringLiteral("Documents/")));
        QCOMPARE(r.flags & Flags::OFN_FILEMUSTEXIST, quint32(Flags::OFN_FILEMUSTEXIST));
        const QuestionSet &s = editor_->questionSet;
        QCOMPARE(s.RoundCount, qint16(1));
        QCOMPARE(s.CategoryCount[0], qint16(2));
        QCOMPARE(s.Categories[0][1].Answer[4], QStringLiteral("c14"));
        QCOMPARE(s.Categories[2][0].Picture[0], QStringLiteral("final.png"));
        QCOMPARE(editor_->txtDesc->text(), QStringLiteral("Class Table"));
        QCOMPARE(editor_->txtSecs->text(), QStringLiteral("20"));
        QCOMPARE(editor_->txtName->text(), QStringLiteral("Cat 0"));
        QCOMPARE(editor_->txtAnswer[0]->text(), QStringLiteral("c00"));
        QCOMPARE(editor_->cmbRounds->currentText(), QStringLiteral("1"));
        QCOMPARE(editor_->cmbCategories->currentText(), QStringLiteral("2"));
        QCOMPARE(editor_->Modified, QStringLiteral("X")); // not saved anywhere yet
        // Save As proposes the table's own name where the home screen lists
        // it, and takes the table's pictures along.
        dialogs_->choose(path(QStringLiteral("Documents/Class Table.QZ2")));
        editor_->mnuSave->trigger();
        QCOMPARE(dialogs_->requests.last().fileName, QStringLiteral("Class Table"));
        QCOMPARE(dialogs_->requests.last().initialDir, path(QStringLiteral("Documents/")));
        QVERIFY(QFile::exists(path(QStringLiteral("Documents/final.png"))));
    }

    void importFaultsKeepTheSet()
    {
        const QString table = writeFile(path(QStringLiteral("bad.csv")), tableText(QString()));
        open(sampleSet());
        dialogs_->choose(table);
        editor_->mnuImportTable->trigger();
        QCOMPARE(boxes_->shown.size(), 1);
        QCOMPARE(boxes_->shown[0].text, QStringLiteral("Cannot import ") + table +
                                            QStringLiteral(":\r\n\r\nrow 2 (\"1 | Cat 0 |  | r0\"), column C (Clue): the clue is empty"));
        QCOMPARE(boxes_->shown[0].style, MsgBoxStyle::OKOnly | MsgBoxStyle::Critical);
        QCOMPARE(boxes_->shown[0].caption, QStringLiteral("Import Spreadsheet"));
        QCOMPARE(editor_->questionSet.Description, QStringLiteral("Sample"));
        QCOMPARE(editor_->txtName->text(), QStringLiteral("R0C0 title"));
        QCOMPARE(editor_->Modified, QString());
        dialogs_->choose(path(QStringLiteral("gone.xlsx")));
        editor_->mnuImportTable->trigger();
        QCOMPARE(boxes_->shown.last().text,
                 QStringLiteral("Cannot read ") + path(QStringLiteral("gone.xlsx")) + QStringLiteral(":\r\n\r\nno such file"));
        dialogs_->cancel();
        editor_->mnuImportTable->trigger();
        QCOMPARE(boxes_->shown.size(), 2);
        QCOMPARE(editor_->questionSet.Description, QStringLiteral("Sample"));
    }

    void exportWritesTheSetShown()
    {
        // The workbook writer (and the cryptography it brings) loads with
        // the first export, not with the game.
        const auto writerLoaded = [] { return ::dlopen("libxlsxwriter.so.4", RTLD_NOW | RTLD_NOLOAD) != nullptr; };
        QVERIFY(!writerLoaded());
        open(sampleSet());
        editor_->txtAnswer[1]->setText(QStringLiteral("typed, not saved"));
        const QString table = path(QStringLiteral("Sets/Quiz.xlsx"));
        dialogs_->choose(table);
        editor_->mnuExportTable->trigger();
        const FileDialogRequest &r = dialogs_->requests.last();
        QVERIFY(r.save);
        QCOMPARE(r.title, QStringLiteral("Export Spreadsheet"));
        QCOMPARE(r.fileName, QStringLiteral("Quiz"));
        QCOMPARE(r.initialDir, path(QStringLiteral("Sets/")));
        QCOMPARE(r.filters.size(), 2);
        QCOMPARE(r.filters[0].second, QStringLiteral("*.xlsx"));
        QCOMPARE(r.filters[1].second, QStringLiteral("*.csv"));
        QCOMPARE(r.defaultExtension, QStringLiteral("xlsx"));
        const quint32 wanted = Flags::OFN_OVERWRITEPROMPT | Flags::OFN_NOREADONLYRETURN | Flags::OFN_PATHMUSTEXIST;
        QCOMPARE(r.flags & wanted, wanted);
        QVERIFY(boxes_->shown.isEmpty());
        QVERIFY(writerLoaded());
        const TableImport back = ImportQuestionTable(table, QStringLiteral("Sample"), editor_->questionSet.Timer);
        QVERIFY2(back.set, qPrintable(back.error));
        QString where;
        QVERIFY2(sameTexts(editor_->questionSet, *back.set, &where), qPrintable(where));
        QCOMPARE(back.set->Categories[0][0].Answer[1], QStringLiteral("typed, not saved"));
        QCOMPARE(editor_->Modified, QStringLiteral("X")); // an export is no save
    }

    void exportFaultsAreShown()
    {
        open();
        editor_->txtName->setText(QStringLiteral("Only a title"));
        const QString half = path(QStringLiteral("Documents/half.csv"));
        dialogs_->choose(half);
        editor_->mnuExportTable->trigger();
        QCOMPARE(dialogs_->requests.last().fileName, QString());
        QVERIFY(QFile::exists(half));
        QCOMPARE(boxes_->shown.size(), 1);
        QCOMPARE(boxes_->shown[0].text, QStringLiteral("The spreadsheet was written, but it will not import as it is:"
                                                       "\r\n\r\nrow 2 (\"1 | Only a title | 100\"), column D (Clue): the clue is empty"));
        QCOMPARE(boxes_->shown[0].style, MsgBoxStyle::OKOnly | MsgBoxStyle::Exclamation);
        dialogs_->choose(path(QStringLiteral("Documents/set.ods")));
        editor_->mnuExportTable->trigger();
        QCOMPARE(boxes_->shown.last().text, QStringLiteral("Export file error #:22\r\n\r\na spreadsheet is written as .csv or .xlsx"));
        QCOMPARE(boxes_->shown.last().style, MsgBoxStyle::OKOnly | MsgBoxStyle::Critical);
        QCOMPARE(boxes_->shown.last().caption, QStringLiteral("Export Spreadsheet"));
        QVERIFY(!QFile::exists(path(QStringLiteral("Documents/set.ods"))));
        dialogs_->choose(path(QStringLiteral("missing/set.xlsx")));
        editor_->mnuExportTable->trigger();
        QVERIFY(boxes_->shown.last().text.startsWith(QStringLiteral("Export file error #:2\r\n\r\n")));
    }

    // ------------------------------------------------------------- the editor

    void opensOnANewEmptySet()
    {
        open();
        QCOMPARE(editor_->windowTitle(), QStringLiteral("Question Editor/Creator"));
        QCOMPARE(editor_->size(), QSize(640, 480));
        QCOMPARE(editor_->questionSet.RoundCount, qint16(2));
        QCOMPARE(editor_->questionSet.CategoryCount[0], qint16(6));
        QCOMPARE(editor_->questionSet.Timer, qint16(20));
        QCOMPARE(editor_->txtSecs->text(), QStringLiteral("20"));
        QCOMPARE(editor_->cmbRounds->currentText(), QStringLiteral("2"));
        QCOMPARE(editor_->cmbCategories->currentText(), QStringLiteral("6"));
        QVERIFY(editor_->optRound[0]->isChecked() && editor_->optCategory[0]->isChecked());
        QCOMPARE(editor_->Modified, QString());
        QSignalSpy gone(editor_.data(), &frmEditor::unloaded);
        editor_->mnuExit->trigger();
        QCOMPARE(gone.size(), 1);
        QVERIFY(boxes_->shown.isEmpty());
        QVERIFY(!editor_->isVisible());
    }

    void newAsksBeforeDroppingChanges()
    {
        open();
        type(editor_->txtName, QStringLiteral("R"));
        QCOMPARE(editor_->Modified, QStringLiteral("X"));
        boxes_->answers = {MsgBoxResult::Cancel};
        editor_->mnuNew->trigger();
        QCOMPARE(boxes_->shown.size(), 1);
        QCOMPARE(boxes_->shown[0].text, QStringLiteral("Would you like to save your work?"));
        QCOMPARE(boxes_->shown[0].caption, QStringLiteral("New"));
        QCOMPARE(boxes_->shown[0].style, MsgBoxStyle::YesNoCancel | MsgBoxStyle::Question);
        QCOMPARE(editor_->txtName->text(), QStringLiteral("R"));
        // Yes, then a cancelled save dialog: the set stays as it is.
        boxes_->answers = {MsgBoxResult::Yes};
        dialogs_->cancel();
        editor_->mnuNew->trigger();
        QCOMPARE(dialogs_->requests.size(), 1);
        QCOMPARE(editor_->questionSet.Categories[0][0].Title, QStringLiteral("R"));
        QCOMPARE(editor_->Modified, QStringLiteral("X"));
        // No: everything goes, the final's title too.
        editor_->optRound[2]->click();
        type(editor_->txtName, QStringLiteral("Final title"));
        boxes_->answers = {MsgBoxResult::No};
        editor_->mnuNew->trigger();
        QCOMPARE(editor_->questionSet.Categories[0][0].Title, QString());
        QCOMPARE(editor_->questionSet.Categories[2][0].Title, QString());
        QCOMPARE(editor_->txtName->text(), QString());
        QVERIFY(editor_->optRound[0]->isChecked());
        QCOMPARE(editor_->Modified, QString());
    }

    void showingAnotherCategoryOfAnOpenedSetCountsAsAChange()
    {
        open(sampleSet());
        QCOMPARE(editor_->txtDesc->text(), QStringLiteral("Sample"));
        QCOMPARE(editor_->txtSecs->text(), QStringLiteral("25"));
        QCOMPARE(editor_->txtName->text(), QStringLiteral("R0C0 title"));
        QCOMPARE(editor_->Modified, QString());
        editor_->optCategory[3]->click();
        QCOMPARE(editor_->txtAnswer[2]->text(), QStringLiteral("clue 0.3.2 = yes"));
        QCOMPARE(editor_->Modified, QStringLiteral("X"));
        boxes_->answers = {MsgBoxResult::Cancel};
        editor_->close();
        QCOMPARE(boxes_->shown.size(), 1);
        QCOMPARE(boxes_->shown[0].caption, QStringLiteral("Exit"));
        QVERIFY(editor_->isVisible()); // Cancel keeps the editor open
    }

    void loweredCountsHideTextsWithoutClearingThem()
    {
        open(sampleSet());
        editor_->optRound[1]->click();
        QCOMPARE(editor_->txtName->text(), QStringLiteral("R1C0 title"));
        editor_->cmbRounds->setCurrentIndex(0);
        QVERIFY(editor_->optRound[1]->isHidden());
        QVERIFY(editor_->optRound[0]->isChecked());
        editor_->cmbCategories->setCurrentIndex(3);
        QVERIFY(editor_->optCategory[4]->isHidden() && !editor_->optCategory[3]->isHidden());
        dialogs_->choose(path(QStringLiteral("Small")));
        editor_->mnuSave->trigger();
        const QByteArray bytes = read(path(QStringLiteral("Small.QZ2")));
        QVERIFY(!bytes.contains("[Round2]"));
        QVERIFY(!bytes.contains("Category4"));
        // Raised again: the old texts are back.
        editor_->cmbRounds->setCurrentIndex(1);
        editor_->cmbCategories->setCurrentIndex(5);
        editor_->optCategory[5]->click();
        QCOMPARE(editor_->txtName->text(), QStringLiteral("R0C5 title"));
        editor_->optRound[1]->click();
        QCOMPARE(editor_->txtName->text(), QStringLiteral("R1C0 title"));
        QCOMPARE(editor_->txtQuestion[4]->text(), QStringLiteral("What is 1.0.4?"));
    }

    void finalShowsOnePairAndNoCategories()
    {
        open(sampleSet());
        editor_->optRound[2]->click();
        QCOMPARE(editor_->txtName->text(), QStringLiteral("R2C0 title"));
        QVERIFY(!editor_->txtAnswer[0]->isHidden() && !editor_->txtQuestion[0]->isHidden());
        for (int j = 1; j < 5; ++j)
            QVERIFY(editor_->txtAnswer[size_t(j)]->isHidden() && editor_->txtQuestion[size_t(j)]->isHidden());
        QVERIFY(!editor_->cmbCategories->isEnabled());
        QVERIFY(editor_->vseCategories->isHidden());
        QCOMPARE(editor_->cmbCategories->currentIndex(), -1);
        editor_->optRound[0]->click();
        QVERIFY(editor_->cmbCategories->isEnabled());
        QVERIFY(!editor_->txtAnswer[4]->isHidden());
        QCOMPARE(editor_->cmbCategories->currentIndex(), 5);
    }

    void secondsFieldTakesDigitsAndCorrectsOnLeaving_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::newRow("7 stays") << "7" << "7";
        QTest::newRow("3 becomes 20") << "3" << "20";
        QTest::newRow("4 becomes 20") << "4" << "20";
        QTest::newRow("5 stays") << "5" << "5";
        QTest::newRow("60 stays") << "60" << "60";
        QTest::newRow("61 becomes 20") << "61" << "20";
        QTest::newRow("75 becomes 20") << "75" << "20";
        QTest::newRow("empty becomes 20") << "" << "20";
        QTest::newRow("letters are dropped") << "4x5" << "45";
        QTest::newRow("two characters at most") << "123" << "12";
    }
    void secondsFieldTakesDigitsAndCorrectsOnLeaving()
    {
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        open();
        editor_->txtSecs->setFocus();
        editor_->txtSecs->clear();
        QTest::keyClicks(editor_->txtSecs, typed);
        QFocusEvent out(QEvent::FocusOut);
        QCoreApplication::sendEvent(editor_->txtSecs, &out);
        QCOMPARE(editor_->txtSecs->text(), shown);
        QCOMPARE(int(editor_->questionSet.Timer), shown.toInt());
    }

    void secondsFieldLetsKeysThatTypeNothingThrough()
    {
        open();
        editor_->txtSecs->setFocus();
        editor_->txtSecs->setText(QStringLiteral("45"));
        editor_->txtSecs->setCursorPosition(0);
        QKeyEvent del(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, QString(QChar(0x7F))); // as X11 gives it
        QCoreApplication::sendEvent(editor_->txtSecs, &del);
        QCOMPARE(editor_->txtSecs->text(), QStringLiteral("5"));
        QTest::keyClick(editor_->txtSecs, Qt::Key_End);
        QTest::keyClick(editor_->txtSecs, Qt::Key_Backspace);
        QCOMPARE(editor_->txtSecs->text(), QString());
    }

    void listsActOnTheSameCountChosenAgain_data()
    {
        QTest::addColumn<bool>("rounds");
        QTest::addColumn<QString>("how");
        for (const bool rounds : {true, false}) {
            for (const char *how : {"popup", "key", "wheel"})
                QTest::addRow("%s, %s", rounds ? "rounds" : "categories", how) << rounds << QString::fromLatin1(how);
        }
    }
    void listsActOnTheSameCountChosenAgain()
    {
        QFETCH(bool, rounds);
        QFETCH(QString, how);
        open(sampleSet());
        QComboBox *list = rounds ? editor_->cmbRounds : editor_->cmbCategories;
        (rounds ? editor_->optRound[1] : editor_->optCategory[3])->click();
        QCOMPARE(editor_->txtName->text(), rounds ? QStringLiteral("R1C0 title") : QStringLiteral("R0C3 title"));
        editor_->Modified.clear();
        const int count = list->currentIndex();
        QCOMPARE(count, list->count() - 1);
        if (how == QStringLiteral("popup")) {
            list->showPopup();
            QAbstractItemView *view = list->view();
            QCoreApplication::processEvents();
            QVERIFY(view->isVisible());
            QCOMPARE(view->currentIndex().row(), count);
            QTest::keyClick(view, Qt::Key_Return); // the same item chosen in the open list
            QVERIFY(!view->isVisible());
        } else if (how == QStringLiteral("key")) {
            QTest::keyClick(list, char('1' + count));
        } else {
            const QPointF centre(list->width() / 2.0, list->height() / 2.0);
            QWheelEvent down(centre, list->mapToGlobal(centre), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                             Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(list, &down); // the last count stays
        }
        QCOMPARE(list->currentIndex(), count);
        QVERIFY(editor_->optRound[0]->isChecked());
        QVERIFY(editor_->optCategory[0]->isChecked());
        QCOMPARE(editor_->txtName->text(), QStringLiteral("R0C0 title"));
        QCOMPARE(editor_->Modified, QStringLiteral("X"));
    }

    void saveAsWritesTheFieldAsItStands()
    {
        open();
        editor_->txtSecs->setFocus();
        editor_->txtSecs->clear();
        QTest::keyClicks(editor_->txtSecs, QStringLiteral("3"));
        dialogs_->choose(path(QStringLiteral("Short")));
        editor_->mnuSave->trigger(); // a menu command takes no focus
        QVERIFY(read(path(QStringLiteral("Short.QZ2"))).contains("\r\nTimer=3\r\n"));
    }

    void cluesTakeAPictureChosenBesideTheSet()
    {
        QuestionSet set;
        set.Description = QStringLiteral("With pictures");
        QVERIFY(!WriteQuestionSet(set, path(QStringLiteral("Pics.QZ2"))));
        QDir(path(QString())).mkpath(QStringLiteral("art"));
        QImage flag(30, 20, QImage::Format_RGB32);
        flag.fill(Qt::blue);
        QVERIFY(flag.save(path(QStringLiteral("art/flag.png"))));
        open(path(QStringLiteral("Pics.QZ2")));
        // Without a picture the button offers one, in a drawing that fits
        // beside the menu's arrow at any size.
        const auto offersOne = [this] {
            return editor_->cmdPicture[2]->toolTip() == QStringLiteral("Choose a picture to show with this clue");
        };
        QVERIFY(offersOne());
        for (const QSize size : {QSize(640, 480), QSize(1920, 1080)}) {
            editor_->resize(size);
            const QToolButton *b = editor_->cmdPicture[2];
            const int arrow = b->style()->pixelMetric(QStyle::PM_MenuButtonIndicator, nullptr, b);
            const QSize drawn = b->icon().actualSize(b->iconSize());
            QVERIFY(b->toolButtonStyle() == Qt::ToolButtonIconOnly && !drawn.isEmpty());
            QVERIFY2(drawn.width() + arrow <= b->width() && drawn.height() <= b->height(),
                     qPrintable(QStringLiteral("at %1x%2").arg(size.width()).arg(size.height())));
        }
        dialogs_->choose(path(QStringLiteral("art/flag.png")));
        editor_->cmdPicture[2]->click();
        QCOMPARE(dialogs_->requests.last().flags & 0x1000u, 0x1000u); // the file must exist
        QCOMPARE(editor_->questionSet.Categories[0][0].Picture[2], QStringLiteral("art/flag.png")); // relative to the set
        QVERIFY(!offersOne()); // its thumbnail
        QCOMPARE(editor_->cmdPicture[2]->toolTip(), QStringLiteral("art/flag.png"));
        QCOMPARE(editor_->Modified, QStringLiteral("X"));
        editor_->optCategory[1]->click();
        QVERIFY(offersOne()); // another category, its own pictures
        editor_->optCategory[0]->click();
        dialogs_->choose(path(QStringLiteral("Pics")));
        editor_->mnuSave->trigger();
        QVERIFY(read(path(QStringLiteral("Pics.QZ2"))).contains("\r\nPicture2=art/flag.png\r\n"));
        // Saved into another folder, the set takes its picture along.
        dialogs_->choose(path(QStringLiteral("Documents/Pics")));
        editor_->mnuSave->trigger();
        QCOMPARE(read(path(QStringLiteral("Documents/art/flag.png"))), read(path(QStringLiteral("art/flag.png"))));
        QVERIFY(boxes_->shown.isEmpty());
        editor_->mnuRemovePicture[2]->trigger();
        QCOMPARE(editor_->questionSet.Categories[0][0].Picture[2], QString());
        QVERIFY(offersOne());
        QCOMPARE(editor_->Modified, QStringLiteral("X"));
    }

    void printsTheHostSheetOfTheSetAsItStands()
    {
        open();
        type(editor_->txtDesc, QStringLiteral("Sheet test"));
        dialogs_->choose(path(QStringLiteral("sheet.pdf")));
        editor_->mnuPrintSheet->trigger();
        const FileDialogRequest &r = dialogs_->requests.last();
        QVERIFY(r.save);
        QCOMPARE(r.title, QStringLiteral("Print Host Sheet"));
        QCOMPARE(r.defaultExtension, QStringLiteral("pdf"));
        QVERIFY(read(path(QStringLiteral("sheet.pdf"))).startsWith("%PDF"));
        QVERIFY(!editor_->Modified.isEmpty()); // printing is not saving
    }

    void writesExactlyWhatWasTyped()
    {
        open();
        type(editor_->txtDesc, QStringLiteral("Typed set"));
        editor_->cmbRounds->setCurrentIndex(0);
        editor_->cmbCategories->setCurrentIndex(1);
        type(editor_->txtName, QStringLiteral("Birds"));
        type(editor_->txtAnswer[0], QStringLiteral("It has a red breast."));
        type(editor_->txtQuestion[0], QStringLiteral("What is a robin?"));
        editor_->optCategory[1]->click();
        type(editor_->txtName, QStringLiteral("Trees"));
        type(editor_->txtQuestion[4], QStringLiteral("What is an oak?"));
        editor_->optRound[2]->click();
        type(editor_->txtName, QStringLiteral("Seas"));
        type(editor_->txtAnswer[0], QStringLiteral("The largest = the Pacific"));
        type(editor_->txtQuestion[0], QStringLiteral("What is the ocean?"));
        dialogs_->choose(path(QStringLiteral("Typed.qz2")));
        editor_->mnuSave->trigger();
        QCOMPARE(editor_->Modified, QString());
        QCOMPARE(read(path(QStringLiteral("Typed.qz2"))),
                 QByteArray("[Round1]\r\nDescription=Typed set\r\nTimer=20\r\nCategory0=Birds\r\nCategory1=Trees\r\n"
                            "\r\n[Round1Category0]\r\nAnswer0=It has a red breast.\r\nQuestion0=What is a robin?\r\n"
                            "Answer1=\r\nQuestion1=\r\nAnswer2=\r\nQuestion2=\r\nAnswer3=\r\nQuestion3=\r\n"
                            "Answer4=\r\nQuestion4=\r\n"
                            "\r\n[Round1Category1]\r\nAnswer0=\r\nQuestion0=\r\nAnswer1=\r\nQuestion1=\r\n"
                            "Answer2=\r\nQuestion2=\r\nAnswer3=\r\nQuestion3=\r\nAnswer4=\r\nQuestion4=What is an oak?\r\n"
                            "\r\n[Final]\r\nCategory=Seas\r\nAnswer=The largest = the Pacific\r\n"
                            "Question=What is the ocean?\r\n"));
    }

    void saveAsProposesTheOpenedNameAndFolder()
    {
        const QString quiz = sampleSet();
        open(quiz);
        editor_->optCategory[1]->click();
        dialogs_->choose(quiz.chopped(4)); // accepting the proposal: "Quiz"
        editor_->mnuSave->trigger();
        const FileDialogRequest &r = dialogs_->requests.last();
        QVERIFY(r.save);
        QCOMPARE(r.fileName, QStringLiteral("Quiz"));
        QCOMPARE(r.initialDir, path(QStringLiteral("Sets/")));
        QCOMPARE(r.title, QString());
        QCOMPARE(r.filters[0].first, QStringLiteral("QZ2 Files (*.QZ2)"));
        QCOMPARE(r.flags & 0x8002u, 0x8002u); // no read-only return, overwrite prompt
        QVERIFY(QFile::exists(quiz));
        QVERIFY(!QFile::exists(quiz.chopped(4)));
        QCOMPARE(editor_->Modified, QString());
        // A new set: an empty name in the documents folder, before and after.
        boxes_->answers = {MsgBoxResult::No};
        editor_->mnuNew->trigger();
        dialogs_->choose(path(QStringLiteral("Documents/Fresh")));
        editor_->mnuSave->trigger();
        QCOMPARE(dialogs_->requests.last().fileName, QString());
        QCOMPARE(dialogs_->requests.last().initialDir, path(QStringLiteral("Documents/")));
        dialogs_->cancel();
        editor_->mnuSave->trigger();
        QCOMPARE(dialogs_->requests.last().fileName, QString());
    }

    void openShowsTheDialogAndLoadsLegacyFiles()
    {
        const QString legacy = path(QStringLiteral("Old.QZA"));
        QFile f(legacy);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write("[Round1]\r\nDescription=Old\r\nCategory0=Birds\r\n\r\n[Round1Category0]\r\n"
                "Answer0=What is a robin?\r\nQuestion0=It has a red breast.\r\n");
        f.close();
        open();
        dialogs_->choose(legacy);
        editor_->mnuOpen->trigger();
        const FileDialogRequest &r = dialogs_->requests.last();
        QCOMPARE(r.title, QStringLiteral("Open"));
        QCOMPARE(r.filters[0].second, QStringLiteral("*.QZ2;*.QZA"));
        QCOMPARE(r.initialDir, path(QStringLiteral("Documents/")));
        QCOMPARE(r.flags & 0x1800u, 0x1800u);
        QCOMPARE(r.flags & 0x200u, 0u);
        QCOMPARE(editor_->txtAnswer[0]->text(), QStringLiteral("It has a red breast."));
        QCOMPARE(editor_->CurrentFileBase, path(QStringLiteral("Old")));
        dialogs_->choose(path(QStringLiteral("Old")));
        editor_->mnuSave->trigger();
        QVERIFY(read(path(QStringLiteral("Old.QZ2"))).contains("Answer0=It has a red breast.\r\n"));
        QVERIFY(read(legacy).contains("Question0=It has a red breast."));
    }

    void dialogsStartInADocumentsFolderThatExists_data()
    {
        QTest::addColumn<bool>("save");
        QTest::addColumn<QString>("documents");
        QTest::addColumn<bool>("installed");
        QTest::addColumn<QString>("start");
        QTest::newRow("open, folder missing: made") << false << "Fresh/Documents" << false << "Fresh/Documents/";
        QTest::newRow("save, folder missing: made") << true << "Fresh/Documents" << false << "Fresh/Documents/";
        QTest::newRow("open, cannot be made: program folder") << false << "file/Documents" << false << "program";
        QTest::newRow("save, cannot be made: program folder") << true << "file/Documents" << false << "program";
        QTest::newRow("save, read-only program folder: home") << true << "file/Documents" << true << "home";
    }
    void dialogsStartInADocumentsFolderThatExists()
    {
        QFETCH(bool, save);
        QFETCH(QString, documents);
        QFETCH(bool, installed);
        QFETCH(QString, start);
        QVERIFY(QFile(path(QStringLiteral("file"))).open(QIODevice::WriteOnly)); // a file where a folder would go
        SpecialFolders::overridePath(SpecialFolders::kDocuments, path(documents));
        const QString program = path(QStringLiteral("program/"));
        QDir().mkpath(program);
        QFile::setPermissions(program, installed ? QFileDevice::ReadOwner | QFileDevice::ExeOwner
                                                 : QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        ModuleFileName::overrideProgramFolder(program);
        open();
        dialogs_->cancel();
        (save ? editor_->mnuSave : editor_->mnuOpen)->trigger();
        ModuleFileName::overrideProgramFolder(QString());
        const QString expected = start == QStringLiteral("program") ? program
                                 : start == QStringLiteral("home")  ? QDir::homePath() + QLatin1Char('/')
                                                                    : path(start);
        QCOMPARE(dialogs_->requests.last().initialDir, expected);
        QVERIFY(QFileInfo(expected).isDir());
    }

    // Installed, the sample sets lie in a folder the user cannot write to:
    // whatever would be written beside such a set is proposed in the
    // documents folder instead, under the same name.
    void aSetInAReadOnlyFolderIsSavedAmongTheUsersFiles_data()
    {
        QTest::addColumn<QString>("action");
        QTest::newRow("save") << "mnuSave";
        QTest::newRow("host sheet") << "mnuPrintSheet";
        QTest::newRow("spreadsheet") << "mnuExportTable";
    }
    void aSetInAReadOnlyFolderIsSavedAmongTheUsersFiles()
    {
        QFETCH(QString, action);
        const QString quiz = sampleSet();
        open(quiz);
        QAction *command = action == QStringLiteral("mnuSave")         ? editor_->mnuSave
                           : action == QStringLiteral("mnuPrintSheet") ? editor_->mnuPrintSheet
                                                                       : editor_->mnuExportTable;
        const QString sets = path(QStringLiteral("Sets/"));
        for (const bool readOnly : {false, true}) {
            QFile::setPermissions(sets, readOnly ? QFileDevice::ReadOwner | QFileDevice::ExeOwner
                                                 : QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
            dialogs_->cancel();
            command->trigger();
            QCOMPARE(dialogs_->requests.last().initialDir, readOnly ? path(QStringLiteral("Documents/")) : sets);
            QVERIFY(dialogs_->requests.last().fileName.startsWith(QStringLiteral("Quiz")));
        }
        QFile::setPermissions(sets, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    }

    void failedSaveShowsTheErrorAndKeepsTheSetModified()
    {
        open();
        type(editor_->txtDesc, QStringLiteral("Unsaved"));
        QDir().mkpath(path(QStringLiteral("Locked")));
        QFile::setPermissions(path(QStringLiteral("Locked")), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
        dialogs_->choose(path(QStringLiteral("Locked/Set")));
        editor_->mnuSave->trigger();
        QCOMPARE(boxes_->shown.size(), 1);
        QCOMPARE(boxes_->shown[0].text, QStringLiteral("Save file error #:13\r\n\r\nPermission denied"));
        QCOMPARE(boxes_->shown[0].caption, QStringLiteral("Save As..."));
        QCOMPARE(boxes_->shown[0].style, MsgBoxStyle::Critical);
        QCOMPARE(editor_->Modified, QStringLiteral("X"));
        QFile::setPermissions(path(QStringLiteral("Locked")),
                              QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        boxes_->answers = {MsgBoxResult::Cancel};
        editor_->close();
        QCOMPARE(boxes_->shown.last().text, QStringLiteral("Would you like to save your work?"));
    }

};

QTEST_MAIN(TestEditor)
#include "test_editor.moc"
