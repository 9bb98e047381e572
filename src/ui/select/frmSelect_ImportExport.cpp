// Import and export: whole-file copies of question sets to and from a
// place the host chooses, through the open and save dialogs.

#include "frmSelect.h"

#include "select/QuestionSetList.h"
#include "platform/clsShellFolders.h"
#include "ui/controls/CommandButton.h"
#include "platform/ModuleFileName.h"
#include "platform/MsgBox.h"
#include "platform/SpecialFolders.h"
#include "platform/WriteFileReplacing.h"
#include "questions/QuestionSet.h"
#include "questions/clsOpenSaveDlg.h"

#include <QCoreApplication>
#include <QCursor>
#include <QListWidget>
#include <QMenu>

namespace {

// The dialog both ways: the wrapper's defaults, one file, the game's files.
void prepare(clsOpenSaveDlg &dialog, uintptr_t owner, const QString &title, const QString &folder)
{
    dialog.setHwndOwner(owner);
    dialog.setWindowTitle(title);
    dialog.setFilter(QCoreApplication::translate("frmSelect", "PLOV(tm) Quizzarr! QA Files (*.QZ2)|*.QZ2"));
    dialog.setInitialDir(folder);
    dialog.Flags().setAllowMultiSelect(false);
    dialog.Flags().setExplorer(true);
    dialog.Flags().setHideReadOnly(true);
    dialog.Flags().setLongNames(true);
    dialog.Flags().setOverwritePrompt(true);
    dialog.Flags().setPathMustExist(true);
}

} // namespace

void frmSelect::createMenus()
{
    // Pop-up menus only: they never stand on a menu bar.
    mnuExport = new QMenu(tr("Export"), this);
    mnuExportFloppy = mnuExport->addAction(tr("To a floppy disk (A:)..."));
    mnuExportAnother = mnuExport->addAction(tr("To another drive..."));
    mnuImport = new QMenu(tr("Import"), this);
    mnuImportFloppy = mnuImport->addAction(tr("From a floppy disk (A:)..."));
    mnuImportAnother = mnuImport->addAction(tr("From another drive..."));
    // Where the old game said "A:\", a removable disk of this computer.
    connect(mnuExportFloppy, &QAction::triggered, this, [this] { ExportQuestionSet(SpecialFolders::removableMedia()); });
    connect(mnuExportAnother, &QAction::triggered, this, [this] { ExportQuestionSet(QString()); });
    connect(mnuImportFloppy, &QAction::triggered, this, [this] { ImportQuestionSet(SpecialFolders::removableMedia()); });
    connect(mnuImportAnother, &QAction::triggered, this, [this] { ImportQuestionSet(QString()); });
    connect(cmdExport, &QPushButton::clicked, this, [this] { mnuExport->popup(QCursor::pos()); });
    connect(cmdImport, &QPushButton::clicked, this, [this] { mnuImport->popup(QCursor::pos()); });
}

void frmSelect::ExportQuestionSet(const QString &InitialFolder)
{
    const QListWidgetItem *entry = lstQuestions->selectedItems().value(0);
    if (!entry)
        return;
    const QString source = GetEntryPath(entry);
    clsOpenSaveDlg dialog;
    const QString folder = InitialFolder.isEmpty()
                               ? clsShellFolders().GetExistingSpecialFolder(uintptr_t(winId()), SpecialFolders::kDesktop)
                               : InitialFolder;
    prepare(dialog, uintptr_t(winId()), tr("Export Question File To"), folder);
    dialog.setFileName(EntryFileName(entry->text()));
    if (!dialog.ShowSaveAs())
        return;
    FileError error = CopyFileReplacing(source, dialog.FileName());
    // The pictures go with the set, to the same places beside it.
    if (!error)
        error = CopySetPictures(source, dialog.FileName());
    if (error)
        MsgBox(tr("Export File Failure\r\n%1").arg(error.description), MsgBoxStyle::OKOnly, applicationTitle());
}

void frmSelect::ImportQuestionSet(const QString &InitialFolder)
{
    const QString documents =
        clsShellFolders().GetExistingSpecialFolder(uintptr_t(winId()), SpecialFolders::kDocuments);
    if (documents.isEmpty())
        return;
    clsOpenSaveDlg dialog;
    const QString folder = InitialFolder.isEmpty()
                               ? clsShellFolders().GetExistingSpecialFolder(uintptr_t(winId()), SpecialFolders::kDesktop)
                               : InitialFolder;
    prepare(dialog, uintptr_t(winId()), tr("Select Question File To Import"), folder);
    if (!dialog.ShowOpen())
        return;
    const QString target = documents + dialog.FileNameExtOnly();
    FileError error = CopyFileReplacing(dialog.FileName(), target);
    if (!error)
        error = CopySetPictures(dialog.FileName(), target);
    if (error)
        MsgBox(tr("Import File Failure\r\n%1").arg(error.description), MsgBoxStyle::OKOnly, applicationTitle());
    PopulateQZ2();
}
