// The open/save dialog wrapper: a caller sets a filter, a starting folder, a
// proposed name, a title and flags, runs ShowOpen or ShowSaveAs, and reads
// the chosen path, or parts of it, back. A fresh instance serves each use.
#pragma once

#include "platform/clsOpenSaveDlgFlags.h"

#include <QString>

#include <cstdint>

class clsOpenSaveDlg {
public:
    // The dialog record's own size, as the common dialogs knew it.
    static constexpr quint32 kRecordSize = 76;
    // Characters of the file-name buffer, terminator included.
    static constexpr int kFileNameBuffer = 260;

    clsOpenSaveDlg();

    clsOpenSaveDlgFlags &Flags() { return flags_; }
    const clsOpenSaveDlgFlags &Flags() const { return flags_; }

    // The owner window, by its window id (0 = none).
    uintptr_t hwndOwner() const { return owner_; }
    void setHwndOwner(uintptr_t window) { owner_ = window; }

    // Descriptions and patterns in turn, separated by "|".
    QString Filter() const;
    void setFilter(const QString &filter);

    qint32 FilterIndex() const { return filterIndex_; }
    void setFilterIndex(qint32 index) { filterIndex_ = qMax(0, index); }

    QString PathOnly() const;
    QString ExtOnly() const;
    QString FileNameOnly() const;
    QString FileNameExtOnly() const;

    QString FileName() const;
    void setFileName(const QString &name);

    QString InitialDir() const { return initialDir_; }
    void setInitialDir(const QString &folder) { initialDir_ = folder; }
    QString WindowTitle() const { return title_; }
    void setWindowTitle(const QString &title) { title_ = title; }
    QString DefaultExtension() const { return defaultExtension_; }
    void setDefaultExtension(const QString &extension) { defaultExtension_ = extension; }

    // Run the dialog; true when a file was chosen, false when it was
    // cancelled or failed.
    bool ShowOpen();
    bool ShowSaveAs();

private:
    bool show(bool save);

    clsOpenSaveDlgFlags flags_;
    uintptr_t owner_ = 0;
    QString filter_;      // NUL-separated, ending in NUL; "" = no filter
    qint32 filterIndex_ = 0;
    QString fileBuffer_;  // kFileNameBuffer characters
    QString initialDir_;
    QString title_;
    QString defaultExtension_;
};
