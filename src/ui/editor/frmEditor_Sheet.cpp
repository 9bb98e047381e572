// The host's sheet of the set being edited, printed to a PDF.

#include "frmEditor.h"

#include "platform/MsgBox.h"
#include "questions/HostSheet.h"
#include "questions/clsOpenSaveDlg.h"

#include <QFileInfo>

void frmEditor::mnuPrintSheet_Click()
{
    const QFileInfo set(CurrentFileBase);
    clsOpenSaveDlg dialog;
    dialog.setFileName(tr("%1 - host sheet.pdf").arg(set.fileName().isEmpty() ? tr("Question Set") : set.fileName()));
    prepareDialog(dialog, saveFolder());
    dialog.setWindowTitle(tr("Print Host Sheet"));
    dialog.setFilter(tr("PDF Files (*.pdf)|*.pdf"));
    dialog.setDefaultExtension(QStringLiteral("pdf"));
    dialog.Flags().setNoReadOnlyReturn(true);
    dialog.Flags().setOverwritePrompt(true);
    dialog.Flags().setPathMustExist(true);
    if (!dialog.ShowSaveAs() || dialog.FileName().isEmpty())
        return;
    const FileError error = WriteHostSheet(questionSet, dialog.FileName());
    if (error)
        MsgBox(tr("The host sheet could not be written to %1:\r\n%2").arg(dialog.FileName(), error.description),
               MsgBoxStyle::OKOnly | MsgBoxStyle::Critical, tr("Print Host Sheet"));
}
