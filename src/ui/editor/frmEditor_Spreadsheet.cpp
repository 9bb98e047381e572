// Questions from a spreadsheet and back: a host writes a whole set in the
// spreadsheet program the school already uses, and the editor takes it in
// or hands the set out for the same.

#include "frmEditor.h"

#include "platform/MsgBox.h"
#include "questions/TableFiles.h"
#include "questions/clsOpenSaveDlg.h"

#include <QAction>

void frmEditor::mnuImportTable_Click()
{
    const QString kImportCaption = tr("Import Spreadsheet");
    if (!modifiedCheck(kImportCaption))
        return;
    clsOpenSaveDlg dialog;
    prepareDialog(dialog, questionFolder());
    dialog.Flags().setNoChangeDir(true);
    dialog.Flags().setAllowMultiSelect(false);
    dialog.setFileName(QString());
    dialog.setFilter(tr("Spreadsheets (*.csv;*.xlsx;*.ods)|*.csv;*.xlsx;*.ods"));
    dialog.Flags().setFileMustExist(true);
    dialog.setWindowTitle(kImportCaption);
    if (!dialog.ShowOpen())
        return;
    const QString table = dialog.FileName();
    const TableImport result = ImportQuestionTable(table, DescriptionFromTableName(table), 20);
    if (!result.set) {
        MsgBox((result.unreadable ? tr("Cannot read %1:\r\n\r\n%2") : tr("Cannot import %1:\r\n\r\n%2"))
                   .arg(table, result.error),
               MsgBoxStyle::OKOnly | MsgBoxStyle::Critical, kImportCaption);
        return;
    }
    newSet();
    questionSet = *result.set;
    // Save As proposes the table's own name in the documents folder, which
    // the home screen lists; its pictures are still found beside the table,
    // and the save takes them along.
    CurrentFileBase = FileBaseOf(table);
    proposeDocuments_ = true;
    showSet();
    // Nothing of it is saved yet.
    Modified = QStringLiteral("X");
}

void frmEditor::mnuExportTable_Click()
{
    const QString kExportCaption = tr("Export Spreadsheet");
    clsOpenSaveDlg dialog;
    prepareDialog(dialog, saveFolder());
    dialog.Flags().setNoChangeDir(true);
    dialog.Flags().setAllowMultiSelect(false);
    dialog.setFileName(CurrentFileBase.mid(CurrentFileBase.lastIndexOf(QLatin1Char('/')) + 1));
    dialog.setFilter(tr("Excel Workbook (*.xlsx)|*.xlsx|CSV Text (*.csv)|*.csv"));
    dialog.setDefaultExtension(QStringLiteral("xlsx"));
    dialog.Flags().setNoReadOnlyReturn(true);
    dialog.Flags().setOverwritePrompt(true);
    dialog.Flags().setPathMustExist(true);
    dialog.setWindowTitle(kExportCaption);
    if (!dialog.ShowSaveAs())
        return;
    const Table table = TableFromQuestionSet(questionSet);
    const FileError error = WriteTableFile(table, dialog.FileName());
    if (error) {
        MsgBox(tr("Export file error #:%1\r\n\r\n%2").arg(QString::number(error.number), error.description),
               MsgBoxStyle::OKOnly | MsgBoxStyle::Critical, kExportCaption);
        return;
    }
    // A half-made set is worth finishing in the spreadsheet; the host
    // learns now what an import would refuse.
    const TableImport back = QuestionSetFromTable(table, questionSet.Description, questionSet.Timer);
    if (!back.set)
        MsgBox(tr("The spreadsheet was written, but it will not import as it is:\r\n\r\n%1").arg(back.error),
               MsgBoxStyle::OKOnly | MsgBoxStyle::Exclamation, kExportCaption);
}
