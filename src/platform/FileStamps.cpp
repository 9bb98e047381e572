#include "FileStamps.h"

#include "EveryCore.h"

#include <QFile>

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// Folders of thousands of files are stamped on every core.
constexpr qsizetype kFilesPerCore = 512;

qint64 nanoseconds(const struct timespec &t)
{
    return qint64(t.tv_sec) * 1'000'000'000 + t.tv_nsec;
}

} // namespace

QList<StampedFile> OrdinaryFilesIn(const QString &folder, const std::function<bool(const QString &)> &wanted)
{
    // One status call per wanted file, relative to the open folder: the
    // folder's path is not walked again for each of thousands of files.
    const int dir = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (dir < 0)
        return {};
    DIR *listing = ::fdopendir(dir);
    if (!listing) {
        ::close(dir);
        return {};
    }
    QList<QByteArray> raw;
    QList<StampedFile> named;
    while (const dirent *entry = ::readdir(listing)) {
        if (entry->d_type != DT_REG && entry->d_type != DT_LNK && entry->d_type != DT_UNKNOWN)
            continue;
        const QString name = QFile::decodeName(entry->d_name);
        if (!wanted(name))
            continue;
        raw << QByteArray(entry->d_name);
        named.append({name, {}});
    }
    StampedFile *out = named.data();
    OnEveryCore(named.size(), kFilesPerCore, [dir, &raw, out](qsizetype from, qsizetype to) {
        for (qsizetype i = from; i < to; ++i) {
            struct stat st;
            if (::fstatat(dir, raw.at(i).constData(), &st, 0) == 0 && S_ISREG(st.st_mode))
                out[i].stamp = {qint64(st.st_size), nanoseconds(st.st_mtim), nanoseconds(st.st_ctim), quint64(st.st_ino)};
        }
    });
    ::closedir(listing);
    // Gone since, a folder, a pipe or a device: not an ordinary file.
    named.removeIf([](const StampedFile &f) { return f.stamp.size < 0; });
    return named;
}

FileStamp FolderStamp(const QString &folder)
{
    struct stat st;
    if (::stat(QFile::encodeName(folder).constData(), &st) != 0)
        return errno == ENOENT || errno == ENOTDIR ? kNoFolder : FileStamp{};
    if (!S_ISDIR(st.st_mode))
        return kNoFolder;
    return {qint64(st.st_size), nanoseconds(st.st_mtim), nanoseconds(st.st_ctim), quint64(st.st_ino)};
}

qint64 StampClockNowNs()
{
    struct timespec now;
    ::clock_gettime(CLOCK_REALTIME, &now);
    return nanoseconds(now);
}
