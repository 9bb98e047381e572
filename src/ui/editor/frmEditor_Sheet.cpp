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
    dialog.setFileName((set.fileName().isEmpty() ? QStringLiteral("Question Set") : set.fileName()) +
                       QStringLiteral(" - host sheet.pdf"));
    prepareDialog(dialog, saveFolder());
    dialog.setWindowTitle(QStringLiteral("Print Host Sheet"));
    dialog.setFilter(QStringLiteral("PDF Files (*.pdf)|*.pdf"));
    dialog.setDefaultExtension(QStringLiteral("pdf"));
    dialog.Flags().setNoReadOnlyReturn(true);
    dialog.Flags().setOverwritePrompt(true);
    dialog.Flags().setPathMustExist(true);
    if (!dialog.ShowSaveAs() || dialog.FileName().isEmpty())
        return;
    const FileError error = WriteHostSheet(questionSet, dialog.FileName());
    if (error)
        MsgBox(QStringLiteral("The host sheet could not be written to ") + dialog.FileName() + QStringLiteral(":\r\n") +
                   error.description,
               MsgBoxStyle::OKOnly | MsgBoxStyle::Critical, QStringLiteral("Print Host Sheet"));
}
