#include "ScriptedFileDialog.h"

ScriptedFileDialog::ScriptedFileDialog()
{
    installFileDialogHandler(this);
}

ScriptedFileDialog::~ScriptedFileDialog()
{
    installFileDialogHandler(nullptr);
}

FileDialogResult ScriptedFileDialog::run(const FileDialogRequest &request)
{
    requests.append(request);
    return answers.isEmpty() ? FileDialogResult{} : answers.takeFirst();
}
