#include "frmEditor.h"

#include "questions/clsOpenSaveDlg.h"
#include "ui/controls/Backdrop.h"
#include "ui/controls/CaptionControl.h"
#include "ui/controls/FormLook.h"
#include "platform/ModuleFileName.h"
#include "platform/MsgBox.h"
#include "platform/SpecialFolders.h"
#include "platform/WriteFileReplacing.h"
#include "platform/clsShellFolders.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>

namespace {

// The editor's canvas: the backdrop behind the fields, and the main
// container over all of it, which scales the fields with the window.
class Backdrop final : public QWidget {
public:
    using QWidget::QWidget;
    CaptionControl *main = nullptr;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter p(this);
        PaintBackdrop(p, rect());
    }
    void resizeEvent(QResizeEvent *) override
    {
        if (main) {
            main->setGeometry(rect());
            main->refresh();
        }
    }
};

} // namespace

frmEditor::frmEditor(QWidget *parent) : QMainWindow(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Question Editor/Creator"));
    auto *canvas = new Backdrop;
    setCentralWidget(canvas);
    vseMain = new CaptionControl(canvas);
    canvas->main = vseMain;
    createFields();
    createRoundsAndCategories();
    createMenu();
    connectFields();
    arrangeTabOrder();
}

void frmEditor::arrangeTabOrder()
{
    // Top to bottom, each answer followed by its question.
    QList<QWidget *> order{txtDesc, txtSecs, cmbRounds};
    order += {optRound[0], optRound[1], optRound[2], cmbCategories};
    for (QPushButton *b : optCategory)
        order << b;
    order << txtName;
    for (int j = 0; j < 5; ++j)
        order << txtAnswer[size_t(j)] << txtQuestion[size_t(j)];
    for (qsizetype i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
}

void frmEditor::createMenu()
{
    mnuNew = menuBar()->addAction(tr("&New"), this, &frmEditor::mnuNew_Click);
    mnuOpen = menuBar()->addAction(tr("&Open..."), this, &frmEditor::mnuOpen_Click);
    mnuSave = menuBar()->addAction(tr("&Save As..."), this, &frmEditor::mnuSave_Click);
    mnuPrintSheet =
        menuBar()->addAction(tr("&Print Host Sheet..."), this, &frmEditor::mnuPrintSheet_Click);
    mnuImportTable = menuBar()->addAction(tr("&Import Spreadsheet..."), this, &frmEditor::mnuImportTable_Click);
    mnuExportTable = menuBar()->addAction(tr("E&xport Spreadsheet..."), this, &frmEditor::mnuExportTable_Click);
    mnuExit = menuBar()->addAction(tr("&Exit"), this, &frmEditor::mnuExit_Click);
}

void frmEditor::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (!loaded_) {
        loaded_ = true;
        Form_Load();
    }
}

void frmEditor::Form_Load()
{
    resize(640, 480);
    CentreOnScreen(*this);
    cmbRounds->setCurrentIndex(1);
    cmbCategories->setCurrentIndex(5);
    Modified.clear();
    mnuNew_Click();
    if (!FileToLoad.isEmpty())
        LoadQuestionSet(FileToLoad);
}

bool frmEditor::modifiedCheck(const QString &caption)
{
    if (Modified.isEmpty())
        return true;
    switch (MsgBox(tr("Would you like to save your work?"),
                   MsgBoxStyle::YesNoCancel | MsgBoxStyle::Question, caption)) {
    case MsgBoxResult::Yes:
        mnuSave_Click();
        return Modified.isEmpty(); // cancelled or failed: stop
    case MsgBoxResult::No:
        return true;
    default:
        return false;
    }
}

void frmEditor::mnuNew_Click()
{
    if (!modifiedCheck(tr("New")))
        return;
    newSet();
}

QString frmEditor::questionFolder() const
{
    const QString documents = clsShellFolders().GetExistingSpecialFolder(uintptr_t(winId()), SpecialFolders::kDocuments);
    if (!documents.isEmpty())
        return ModuleFileName::withTrailingSeparator(documents);
    const QString program = ModuleFileName::programFolder();
    return IsWritableFolder(program) ? program : ModuleFileName::withTrailingSeparator(QDir::homePath());
}

QString frmEditor::saveFolder() const
{
    const qsizetype slash = CurrentFileBase.lastIndexOf(QLatin1Char('/'));
    const QString own = slash >= 0 ? ModuleFileName::withTrailingSeparator(CurrentFileBase.left(slash)) : QString();
    return !proposeDocuments_ && !own.isEmpty() && IsWritableFolder(own) ? own : questionFolder();
}

void frmEditor::mnuOpen_Click()
{
    if (!modifiedCheck(tr("Open")))
        return;
    clsOpenSaveDlg dialog;
    dialog.setFileName(QString());
    dialog.setFilter(tr("PLOV(tm) Quizzarr! QA Files (*.QZ2;*.QZA)|*.QZ2;*.QZA"));
    dialog.Flags().setExplorer(true);
    dialog.Flags().setHideReadOnly(true);
    dialog.Flags().setLongNames(true);
    dialog.Flags().setNoChangeDir(true);
    dialog.Flags().setFileMustExist(true);
    dialog.Flags().setAllowMultiSelect(false);
    dialog.setInitialDir(questionFolder());
    dialog.setHwndOwner(uintptr_t(winId()));
    dialog.setWindowTitle(tr("Open"));
    if (!dialog.ShowOpen())
        return;
    LoadQuestionSet(dialog.FileName());
}

void frmEditor::prepareDialog(clsOpenSaveDlg &dialog, const QString &folder)
{
    dialog.setHwndOwner(uintptr_t(winId()));
    dialog.setInitialDir(folder);
    dialog.Flags().setExplorer(true);
    dialog.Flags().setHideReadOnly(true);
    dialog.Flags().setLongNames(true);
}

void frmEditor::mnuSave_Click()
{
    // A set opened from a file is proposed under its own name and folder.
    clsOpenSaveDlg dialog;
    dialog.setFileName(CurrentFileBase.mid(CurrentFileBase.lastIndexOf(QLatin1Char('/')) + 1));
    prepareDialog(dialog, saveFolder());
    dialog.setFilter(tr("QZ2 Files (*.QZ2)|*.QZ2"));
    dialog.Flags().setNoChangeDir(true);
    dialog.Flags().setNoReadOnlyReturn(true);
    dialog.Flags().setOverwritePrompt(true);
    if (!dialog.ShowSaveAs() || dialog.FileName().isEmpty())
        return;
    const FileError error = WriteQuestionSet(questionSet, dialog.FileName());
    if (error) {
        MsgBox(tr("Save file error #:%1\r\n\r\n%2").arg(QString::number(error.number), error.description),
               MsgBoxStyle::OKOnly | MsgBoxStyle::Critical, tr("Save As..."));
        return;
    }
    Modified.clear();
    proposeDocuments_ = false;
    // Saved into another folder (a sample set from the installed program
    // folder into the documents folder), the set takes the pictures it
    // names beside it along, as an export does; the set itself is saved
    // whatever becomes of them.
    if (CurrentFileBase.contains(QLatin1Char('/'))) {
        const FileError copy = CopySetPictures(questionSet, QFileInfo(CurrentFileBase).absolutePath(),
                                               QFileInfo(dialog.FileName()).absolutePath());
        if (copy)
            MsgBox(tr("The set was saved, but its pictures could not all be copied beside it:\r\n\r\n%1")
                       .arg(copy.description),
                   MsgBoxStyle::OKOnly | MsgBoxStyle::Exclamation, tr("Save As..."));
    }
}

void frmEditor::mnuExit_Click()
{
    close();
}

void frmEditor::closeEvent(QCloseEvent *event)
{
    if (!modifiedCheck(tr("Exit"))) {
        event->ignore();
        return;
    }
    emit unloaded();
    event->accept();
}

void frmEditor::LoadQuestionSet(const QString &FileName)
{
    Modified.clear();
    newSet();
    CurrentFileBase = FileBaseOf(FileName);
    questionSet = ::LoadQuestionSet(FileName);
    showSet();
    Modified.clear();
}
