#include "QtFileDialog.h"

#include "platform/clsOpenSaveDlgFlags.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace {

using Flags = clsOpenSaveDlgFlags;

// Qt reads a filter's patterns from its last parentheses; the description
// shows alone (HideNameFilterDetails), as the game wrote it.
QStringList nameFilters(const FileDialogRequest &r)
{
    QStringList filters;
    for (const auto &[description, patterns] : r.filters)
        filters << description + QStringLiteral(" (") + CaseInsensitivePatterns(patterns).join(QLatin1Char(' ')) +
                       QLatin1Char(')');
    return filters;
}

QFileDialog::FileMode fileMode(const FileDialogRequest &r)
{
    if (r.save)
        return QFileDialog::AnyFile;
    if (r.flags & Flags::OFN_ALLOWMULTISELECT)
        return QFileDialog::ExistingFiles;
    return r.flags & Flags::OFN_FILEMUSTEXIST ? QFileDialog::ExistingFile : QFileDialog::AnyFile;
}

// The checks the common dialogs made before letting a name through.
bool acceptable(const FileDialogRequest &r, const QString &path, QWidget *dialog)
{
    const QFileInfo file(path);
    // Qt lets a name in a missing folder through; the flag means the
    // dialog refuses it, before the caller tries to write there.
    if ((r.flags & Flags::OFN_PATHMUSTEXIST) && !QFileInfo(file.absolutePath()).isDir()) {
        QMessageBox::warning(dialog, dialog->windowTitle(),
                             QCoreApplication::translate("QtFileDialog", "%1\nThe folder does not exist.\nCheck the path and try again.").arg(path));
        return false;
    }
    if (r.save && (r.flags & Flags::OFN_NOREADONLYRETURN) && file.exists() && !file.isWritable()) {
        QMessageBox::warning(dialog, dialog->windowTitle(),
                             QCoreApplication::translate("QtFileDialog", "%1\nThis file is set to read-only.\nTry again with a different file name.").arg(path));
        return false;
    }
    if (!r.save && !file.exists() && (r.flags & Flags::OFN_CREATEPROMPT) && !(r.flags & Flags::OFN_FILEMUSTEXIST)) {
        return QMessageBox::question(dialog, dialog->windowTitle(),
                                     QCoreApplication::translate("QtFileDialog", "%1\nThis file does not exist.\nDo you want to create it?").arg(path)) ==
               QMessageBox::Yes;
    }
    return true;
}

} // namespace

FileDialogResult QtFileDialog::run(const FileDialogRequest &r)
{
    QFileDialog dialog(r.ownerWindow ? QWidget::find(WId(r.ownerWindow)) : nullptr);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(r.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(fileMode(r));
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !(r.flags & Flags::OFN_OVERWRITEPROMPT));
    if (!r.title.isEmpty())
        dialog.setWindowTitle(r.title);
    if (!r.initialDir.isEmpty())
        dialog.setDirectory(r.initialDir);
    const QStringList filters = nameFilters(r);
    if (!filters.isEmpty()) {
        dialog.setOption(QFileDialog::HideNameFilterDetails);
        dialog.setNameFilters(filters);
        dialog.selectNameFilter(filters.value(qMax(0, r.filterIndex - 1)));
    }
    if (!r.defaultExtension.isEmpty())
        dialog.setDefaultSuffix(r.defaultExtension);
    if (!r.fileName.isEmpty())
        dialog.selectFile(r.fileName);
    for (;;) {
        if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
            return {};
        const QString path = dialog.selectedFiles().first();
        if (acceptable(r, path, &dialog))
            return {true, path, int(dialog.nameFilters().indexOf(dialog.selectedNameFilter())) + 1};
    }
}
