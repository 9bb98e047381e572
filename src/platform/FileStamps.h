// The ordinary files of a folder, each with what tells one version of it
// from another without reading it.
#pragma once

#include <QList>
#include <QString>

#include <functional>

struct FileStamp {
    qint64 size = -1;
    qint64 modifiedNs = 0; // last change of content, which a program may set back
    qint64 changedNs = 0;  // last change of content or status, which none can
    quint64 inode = 0;
    bool operator==(const FileStamp &) const = default;
};

struct StampedFile {
    QString name;
    FileStamp stamp;
};

// The ordinary files (links followed) whose names pass the filter, in the
// order the file system gives. A folder that cannot be read has none.
QList<StampedFile> OrdinaryFilesIn(const QString &folder, const std::function<bool(const QString &)> &wanted);

// A folder's own stamp, which changes as files are added to it, removed or
// renamed (not as they are written). A folder that does not exist has the
// stamp kNoFolder; one that cannot be looked at, an unknown stamp (size -1).
inline constexpr FileStamp kNoFolder{-2, 0, 0, 0};
FileStamp FolderStamp(const QString &folder);

// The time now in the terms of a stamp: nanoseconds since 1970.
qint64 StampClockNowNs();
