// File dialogs for tests: every request is recorded, and answered from a
// script (a path, or a cancel when the script has run out).
#pragma once

#include "platform/FileDialog.h"

#include <QList>

class ScriptedFileDialog final : public FileDialogHandler {
public:
    // Installs itself; uninstalls on destruction.
    ScriptedFileDialog();
    ~ScriptedFileDialog() override;

    FileDialogResult run(const FileDialogRequest &request) override;

    // Answers the next dialog with this path (accepted).
    void choose(const QString &path) { answers.append(FileDialogResult{true, path, 1}); }
    void cancel() { answers.append(FileDialogResult{}); }

    QList<FileDialogRequest> requests;
    QList<FileDialogResult> answers;
};
