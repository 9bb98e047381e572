#include "WriteFileReplacing.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <functional>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

FileError systemError(int number)
{
    return {number, QString::fromLocal8Bit(std::strerror(number))};
}

// Writes everything, retrying short writes and interruptions; 0 or errno.
int writeAll(int fd, const char *data, qsizetype size)
{
    while (size > 0) {
        const ssize_t n = ::write(fd, data, size_t(size));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return n < 0 ? errno : EIO;
        data += n;
        size -= n;
    }
    return 0;
}

mode_t modeForNewFile()
{
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

constexpr char kTemporaryPrefix[] = ".quizzarr-save-";
// A save takes well under this; a temporary file older than it was left by
// a save that was killed midway.
constexpr time_t kLeftBehindSeconds = 60;

// Removes what killed saves left in the folder: a save never does this
// for a file of a save still under way.
void removeLeftBehind(const QByteArray &folder)
{
    DIR *dir = ::opendir(folder.constData());
    if (!dir)
        return;
    const time_t now = ::time(nullptr);
    const int fd = ::dirfd(dir);
    while (const dirent *entry = ::readdir(dir)) {
        struct stat st {};
        if (std::strncmp(entry->d_name, kTemporaryPrefix, sizeof kTemporaryPrefix - 1) == 0 &&
            ::fstatat(fd, entry->d_name, &st, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(st.st_mode) &&
            st.st_mtime < now - kLeftBehindSeconds)
            ::unlinkat(fd, entry->d_name, 0);
    }
    ::closedir(dir);
}

// Fills a temporary file beside the target through fill (which returns 0 or
// an error number), then puts it in the target's place. On any failure
// the temporary file goes and the target is untouched.
FileError replaceFile(const QString &path, const std::function<int(int fd)> &fill)
{
    // Through a link, the file it points to is the one replaced.
    const QFileInfo info(path);
    const QString target = info.isSymLink() && !info.canonicalFilePath().isEmpty() ? info.canonicalFilePath() : path;
    const QByteArray native = QFile::encodeName(target);

    struct stat old {};
    const bool exists = ::stat(native.constData(), &old) == 0;
    if (exists && S_ISDIR(old.st_mode))
        return systemError(EISDIR);
    // A file the system will not let us change says why (a read-only file
    // system, an unchangeable file) in its own words. A read-only file or
    // folder stays as it is for every user: the administrator, whom the
    // system would let through, included.
    if (exists && ::access(native.constData(), W_OK) != 0)
        return systemError(errno);
    if (exists && (old.st_mode & 0222) == 0)
        return systemError(EACCES);
    const QByteArray folder = QFile::encodeName(QFileInfo(target).absolutePath());
    struct stat dir {};
    if (::stat(folder.constData(), &dir) != 0)
        return systemError(errno);
    if (!S_ISDIR(dir.st_mode))
        return systemError(ENOTDIR);
    if ((dir.st_mode & 0222) == 0)
        return systemError(EACCES);

    removeLeftBehind(folder);
    QByteArray temporary = folder + '/' + kTemporaryPrefix + "XXXXXX";
    const int fd = ::mkstemp(temporary.data());
    if (fd < 0)
        return systemError(errno);
    int failure = fill(fd);
    if (failure == 0 && ::fsync(fd) != 0)
        failure = errno;
    ::fchmod(fd, exists ? (old.st_mode & 07777) : modeForNewFile());
    if (::close(fd) != 0 && failure == 0)
        failure = errno;
    if (failure == 0 && ::rename(temporary.constData(), native.constData()) != 0)
        failure = errno;
    if (failure != 0) {
        ::unlink(temporary.constData());
        return systemError(failure);
    }
    return {};
}

} // namespace

FileError WriteFileReplacing(const QString &path, const QByteArray &bytes)
{
    return replaceFile(path, [&](int fd) { return writeAll(fd, bytes.constData(), bytes.size()); });
}

FileError CopyFileReplacing(const QString &from, const QString &to)
{
    const QFileInfo source(from), destination(to);
    if (source.exists() && !source.isFile())
        return systemError(source.isDir() ? EISDIR : EINVAL);
    if (destination.exists() && source.canonicalFilePath() == destination.canonicalFilePath())
        return {EEXIST, QCoreApplication::translate("WriteFileReplacing", "A file cannot be copied onto itself.")};
    // Never waits on a pipe or a device put in the file's place meanwhile.
    const int in = ::open(QFile::encodeName(from).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (in < 0)
        return systemError(errno);
    struct stat opened {};
    if (::fstat(in, &opened) != 0 || !S_ISREG(opened.st_mode)) {
        ::close(in);
        return systemError(S_ISDIR(opened.st_mode) ? EISDIR : EINVAL);
    }
    // Streamed in chunks: a file of any size copies without filling memory.
    const FileError result = replaceFile(to, [in](int fd) {
        std::vector<char> chunk(1 << 20);
        for (;;) {
            const ssize_t n = ::read(in, chunk.data(), chunk.size());
            if (n < 0 && errno == EINTR)
                continue;
            if (n < 0)
                return errno;
            if (n == 0)
                return 0;
            if (const int e = writeAll(fd, chunk.data(), n))
                return e;
        }
    });
    ::close(in);
    return result;
}

bool IsWritableFolder(const QString &folder)
{
    const QByteArray native = QFile::encodeName(folder);
    struct stat dir {};
    return ::stat(native.constData(), &dir) == 0 && S_ISDIR(dir.st_mode) && (dir.st_mode & 0222) != 0 &&
           ::access(native.constData(), W_OK) == 0;
}
