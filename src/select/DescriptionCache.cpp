#include "DescriptionCache.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <cstdio>
#include <cstring>

#include <zlib.h>

// The file: a mark, then for each folder its path, its own stamp and its
// files, each with name, stamp and description, then the widest name, then
// the mark again, then the CRC-32 of all before it (so that a damaged file
// reads as empty, never as other descriptions). Texts are stored as their UTF-16 code units, so that
// every one comes back exactly; numbers in the machine's own order, since
// the cache never leaves it.

namespace {

constexpr char kMark[8] = {'Q', 'Z', 'D', 'C', '0', '0', '0', '4'};
constexpr qint64 kSettledNs = 2'000'000'000;
// Far beyond any real cache (some 400,000 sets): a larger file is not
// read at all.
constexpr qint64 kMostBytes = 64 * 1024 * 1024;
// Folders not listed this time (another program folder, say) are kept, the
// most recently listed first, up to this many.
constexpr int kOtherFolders = 4;

quint32 crcOf(const char *data, qsizetype size)
{
    return quint32(crc32(crc32(0L, Z_NULL, 0), reinterpret_cast<const Bytef *>(data), uInt(size)));
}

class Reader {
public:
    explicit Reader(const QByteArray &bytes) : at_(bytes.constData()), end_(at_ + bytes.size()) {}

    bool mark()
    {
        if (end_ - at_ < qsizetype(sizeof kMark) || std::memcmp(at_, kMark, sizeof kMark) != 0)
            return false;
        at_ += sizeof kMark;
        return true;
    }
    template <typename T> bool number(T &value)
    {
        if (end_ - at_ < qsizetype(sizeof value))
            return false;
        std::memcpy(&value, at_, sizeof value);
        at_ += sizeof value;
        return true;
    }
    bool text(QString &value)
    {
        quint32 units = 0;
        if (!number(units) || quint64(end_ - at_) < quint64(units) * 2)
            return false;
        value.resize(qsizetype(units));
        std::memcpy(value.data(), at_, size_t(units) * 2);
        at_ += qsizetype(units) * 2;
        return true;
    }
    bool stamp(FileStamp &s) { return number(s.size) && number(s.modifiedNs) && number(s.changedNs) && number(s.inode); }
    bool atEnd() const { return at_ == end_; }

private:
    const char *at_;
    const char *end_;
};

class Writer {
public:
    void mark() { bytes_.append(kMark, sizeof kMark); }
    template <typename T> void number(T value) { bytes_.append(reinterpret_cast<const char *>(&value), sizeof value); }
    void text(const QString &value)
    {
        number(quint32(value.size()));
        bytes_.append(reinterpret_cast<const char *>(value.constData()), value.size() * 2);
    }
    void stamp(const FileStamp &s)
    {
        number(s.size);
        number(s.modifiedNs);
        number(s.changedNs);
        number(s.inode);
    }
    const QByteArray &bytes() const { return bytes_; }

private:
    QByteArray bytes_;
};

} // namespace

DescriptionCache::DescriptionCache(QString file, qint64 nowNs) : file_(std::move(file)), nowNs_(nowNs)
{
    if (file_.isEmpty()) // a cache of this listing only
        return;
    QFile f(file_);
    if (f.size() > kMostBytes || !f.open(QIODevice::ReadOnly))
        return;
    if (!read(f.readAll())) {
        loaded_.clear();
        loadedOrder_.clear();
        widest_ = widestNow_ = {};
    }
}

bool DescriptionCache::read(const QByteArray &sealed)
{
    quint32 crc = 0;
    if (sealed.size() < qsizetype(sizeof crc))
        return false;
    const QByteArray bytes = sealed.left(sealed.size() - qsizetype(sizeof crc));
    std::memcpy(&crc, sealed.constData() + bytes.size(), sizeof crc);
    if (crc != crcOf(bytes.constData(), bytes.size()))
        return false;
    Reader in(bytes);
    if (!in.mark())
        return false;
    quint32 folders = 0;
    if (!in.number(folders))
        return false;
    for (quint32 f = 0; f < folders; ++f) {
        QString name;
        Folder folder;
        quint32 files = 0;
        if (!in.text(name) || !in.stamp(folder.stamp) || !in.number(files) || loaded_.contains(name))
            return false;
        for (quint32 i = 0; i < files; ++i) {
            KnownFile file;
            if (!in.text(file.name) || !in.stamp(file.stamp) || !in.text(file.description))
                return false;
            folder.files.append(std::move(file));
        }
        loadedOrder_ << name;
        loaded_.insert(name, std::move(folder));
    }
    qint32 width = -1;
    quint32 folderCount = 0;
    if (!in.number(folderCount) || folderCount > folders)
        return false;
    for (quint32 f = 0; f < folderCount; ++f) {
        QString folder;
        if (!in.text(folder))
            return false;
        widest_.folders << folder;
    }
    if (!in.text(widest_.measure) || !in.text(widest_.name) || !in.number(width))
        return false;
    widest_.width = width;
    widestNow_ = widest_;
    // Cut short, or with anything after: none of it is trusted.
    return in.mark() && in.atEnd();
}

QString DescriptionCache::defaultFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + QStringLiteral("/set-descriptions");
}

bool DescriptionCache::settled(const FileStamp &stamp) const
{
    return stamp.size != -1 && stamp.modifiedNs < nowNs_ - kSettledNs && stamp.changedNs < nowNs_ - kSettledNs;
}

DescriptionCache::Folder &DescriptionCache::listed(const QString &folder)
{
    const auto known = listed_.find(folder);
    if (known != listed_.end())
        return *known;
    listedOrder_ << folder;
    return listed_[folder];
}

const QString *DescriptionCache::find(const QString &folder, const QString &name, const FileStamp &stamp) const
{
    const auto files = loaded_.constFind(folder);
    if (files == loaded_.constEnd())
        return nullptr;
    if (files->byName.isEmpty() && !files->files.isEmpty()) {
        files->byName.reserve(files->files.size());
        for (qsizetype i = 0; i < files->files.size(); ++i)
            files->byName.insert(files->files.at(i).name, i);
    }
    const auto known = files->byName.constFind(name);
    if (known == files->byName.constEnd() || files->files.at(*known).stamp != stamp)
        return nullptr;
    ++hits_;
    return &files->files.at(*known).description;
}

void DescriptionCache::listFolder(const QString &folder, const FileStamp &folderStamp)
{
    // A stamp that had not settled may be a changed folder's yet: such a
    // folder is never taken on trust.
    listed(folder).stamp = settled(folderStamp) ? folderStamp : FileStamp{};
}

void DescriptionCache::remember(const QString &folder, const QString &name, const FileStamp &stamp,
                                const QString &description)
{
    Folder &files = listed(folder);
    if (!settled(stamp)) {
        changed_ = true;         // kept no longer
        files.stamp = FileStamp{}; // nor the folder, one file short
        return;
    }
    files.files.append({name, stamp, description});
}

bool DescriptionCache::unchanged(const QString &folder, const FileStamp &folderStamp) const
{
    const auto known = loaded_.constFind(folder);
    return known != loaded_.constEnd() && known->stamp.size != -1 && known->stamp == folderStamp;
}

const QList<DescriptionCache::KnownFile> *DescriptionCache::relistUnchanged(const QString &folder,
                                                                           const FileStamp &folderStamp)
{
    if (!unchanged(folder, folderStamp) || listed_.contains(folder))
        return nullptr;
    const auto known = loaded_.constFind(folder);
    Folder &again = listed(folder);
    again.stamp = known->stamp;
    again.files = known->files;
    hits_ += int(again.files.size());
    return &again.files;
}

bool DescriptionCache::changed() const
{
    if (changed_ || widestNow_ != widest_ || loadedOrder_.mid(0, listedOrder_.size()) != listedOrder_)
        return true;
    // Every file of the listed folders found as it was, none gone, and the
    // folders as they were.
    qsizetype known = 0, kept = 0;
    for (auto folder = listed_.constBegin(); folder != listed_.constEnd(); ++folder) {
        const Folder &before = loaded_[folder.key()];
        if (before.stamp != folder->stamp)
            return true;
        known += before.files.size();
        kept += folder->files.size();
    }
    return hits_ != kept || kept != known;
}

void DescriptionCache::save() const
{
    if (file_.isEmpty() || !changed())
        return;
    QStringList others;
    for (const QString &folder : loadedOrder_) {
        if (!listed_.contains(folder) && others.size() < kOtherFolders)
            others << folder;
    }
    Writer out;
    out.mark();
    out.number(quint32(listed_.size() + others.size()));
    const auto write = [&out](const QString &name, const Folder &folder) {
        out.text(name);
        out.stamp(folder.stamp);
        out.number(quint32(folder.files.size()));
        for (const KnownFile &file : folder.files) {
            out.text(file.name);
            out.stamp(file.stamp);
            out.text(file.description);
        }
    };
    for (const QString &folder : listedOrder_)
        write(folder, listed_[folder]);
    for (const QString &folder : others)
        write(folder, loaded_[folder]);
    out.number(quint32(widestNow_.folders.size()));
    for (const QString &folder : widestNow_.folders)
        out.text(folder);
    out.text(widestNow_.measure);
    out.text(widestNow_.name);
    out.number(qint32(widestNow_.width));
    out.mark();
    out.number(crcOf(out.bytes().constData(), out.bytes().size()));
    QDir().mkpath(QFileInfo(file_).absolutePath());
    // Written beside and renamed over: a reader sees the old cache or the
    // new one, never half of one. A cache needs no flush to the disk: after
    // a crash, a damaged one only reads as empty.
    QTemporaryFile f(file_ + QStringLiteral(".XXXXXX"));
    if (!f.open() || f.write(out.bytes()) != out.bytes().size() || !f.flush())
        return;
    if (std::rename(QFile::encodeName(f.fileName()).constData(), QFile::encodeName(file_).constData()) == 0)
        f.setAutoRemove(false); // it is the cache now
}
