// The system's file dialogs for opening and saving, behind a seam: the
// dialog wrapper describes what it wants, a handler shows it. Tests install
// a handler that answers from a script.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <cstdint>

#include <utility>



struct FileDialogRequest {
    bool save = false;
    uintptr_t ownerWindow = 0;  // window id of the owner; 0 = none
    QString title;             // "" = the dialog's own title
    QString initialDir;        // "" = the dialog's own choice
    QString fileName;          // proposed name
    QList<std::pair<QString, QString>> filters; // description, patterns ("*.QZ2;*.QZA")
    int filterIndex = 0;       // 1-based; 0 = the first
    quint32 flags = 0;         // the common dialog flag bits
    QString defaultExtension;  // "" = none
};

struct FileDialogResult {
    bool accepted = false;
    QString path;
    int filterIndex = 0;
};

class FileDialogHandler {
public:
    virtual ~FileDialogHandler() = default;
    virtual FileDialogResult run(const FileDialogRequest &request) = 0;
};

FileDialogResult RunFileDialog(const FileDialogRequest &request);

// Installs a handler (not owned). The game installs Qt's dialog at start-up;
// without a handler every dialog is cancelled.
void installFileDialogHandler(FileDialogHandler *handler);

// A pattern list ("*.QZ2;*.QZA") as the dialog matches it: any letter case.
QStringList CaseInsensitivePatterns(const QString &patterns);
