// The editor's spreadsheet commands: importing replaces the set (after the
// question every command asks about unsaved work), exporting writes the set
// shown, and every fault reaches the host in a message box.

#include "EditorFixture.h"
#include "ScriptedFileDialog.h"
#include "ScriptedMsgBox.h"
#include "TestSets.h"

#include "platform/SpecialFolders.h"
#include "platform/clsOpenSaveDlgFlags.h"
#include "questions/QuestionSet.h"
#include "questions/TableFiles.h"
#include "ui/editor/frmEditor.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QTemporaryDir>
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

class TestEditorTables : public QObject, EditorFixture {
    Q_OBJECT



    QString sampleSet()
    {
        QuestionSet s = distinctSet();
        s.Description = QStringLiteral("Sample");
        const QString file = path(QStringLiteral("Sets/Quiz.QZ2"));
        QDir().mkpath(path(QStringLiteral("Sets")));
        if (WriteQuestionSet(s, file))
            qFatal("cannot write the sample set");
        return file;
    }

private slots:
    void initTestCase() { QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans")); }

    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void menuOffersSpreadsheetsBeforeExit()
    {
        open();
        QStringList texts;
        for (const QAction *a : editor_->menuBar()->actions())
            texts << a->text();
        QCOMPARE(texts.mid(texts.indexOf(QStringLiteral("&Exit")) - 2),
                 (QStringList{QStringLiteral("&Import Spreadsheet..."), QStringLiteral("E&xport Spreadsheet..."),
                              QStringLiteral("&Exit")}));
        QCOMPARE(editor_->mnuImportTable->text(), QStringLiteral("&Import Spreadsheet..."));
        // At the editor's 640 pixels every command shows, none behind the
        // menu bar's overflow button.
        QCOMPARE(editor_->width(), 640);
        const QMenuBar *bar = editor_->menuBar();
        for (QAction *a : bar->actions())
            QVERIFY2(bar->rect().contains(bar->actionGeometry(a)), qPrintable(a->text()));
    }

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
};

QTEST_MAIN(TestEditorTables)
#include "test_editor_tables.moc"
