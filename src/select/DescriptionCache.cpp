#include "DescriptionCache.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <cstdio>
#include <cstring>

// The file: a mark, then for each folder its path and its files, each with
// name, stamp and description, then the widest name, then the mark again. Texts are stored as
// their UTF-16 code units, so that every one comes back exactly; numbers in
// the machine's own order, since the cache never leaves it.

namespace {

constexpr char kMark[8] = {'Q', 'Z', 'D', 'C', '0', '0', '0', '2'};
constexpr qint64 kSettledNs = 2'000'000'000;
// Far beyond any real cache (some 400,000 sets): a larger file is not
// read at all.
constexpr qint64 kMostBytes = 64 * 1024 * 1024;
// Folders not listed this time (another program folder, say) are kept, the
// most recently listed first, up to this many.
constexpr int kOtherFolders = 4;

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

bool DescriptionCache::read(const QByteArray &bytes)
{
    Reader in(bytes);
    if (!in.mark())
        return false;
    quint32 folders = 0;
    if (!in.number(folders))
        return false;
    for (quint32 f = 0; f < folders; ++f) {
        QString folder;
        quint32 files = 0;
        if (!in.text(folder) || !in.number(files))
            return false;
        loadedOrder_ << folder;
        QHash<QString, Known> &known = loaded_[folder];
        for (quint32 i = 0; i < files; ++i) {
            QString name;
            Known entry;
            if (!in.text(name) || !in.stamp(entry.stamp) || !in.text(entry.description))
                return false;
            known.insert(name, entry);
        }
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

const QString *DescriptionCache::find(const QString &folder, const QString &name, const FileStamp &stamp) const
{
    // Thousands of files of one folder come in a row: its table is looked
    // up once for all of them.
    if (!lastFound_ || folder != lastFoundFolder_) {
        const auto files = loaded_.constFind(folder);
        if (files == loaded_.constEnd())
            return nullptr;
        lastFound_ = &*files;
        lastFoundFolder_ = folder;
    }
    const auto known = lastFound_->constFind(name);
    if (known == lastFound_->constEnd() || known->stamp != stamp)
        return nullptr;
    ++hits_;
    return &known->description;
}

void DescriptionCache::remember(const QString &folder, const QString &name, const FileStamp &stamp,
                                const QString &description)
{
    if (!lastListed_ || folder != lastListedFolder_) {
        if (!listed_.contains(folder))
            listedOrder_ << folder;
        lastListed_ = &listed_[folder];
        lastListedFolder_ = folder;
    }
    if (stamp.modifiedNs >= nowNs_ - kSettledNs || stamp.changedNs >= nowNs_ - kSettledNs) {
        changed_ = true; // kept no longer
        return;
    }
    lastListed_->append({name, {stamp, description}});
}

bool DescriptionCache::changed() const
{
    if (changed_ || widestNow_ != widest_)
        return true;
    // Every file of the listed folders found as it was, and none gone.
    qsizetype known = 0, kept = 0;
    for (auto folder = listed_.constBegin(); folder != listed_.constEnd(); ++folder) {
        known += loaded_.value(folder.key()).size();
        kept += folder->size();
    }
    return hits_ != kept || kept != known || loadedOrder_.mid(0, listed_.size()) != listedOrder_;
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
    for (const QString &folder : listedOrder_) {
        const QList<Named> &files = listed_[folder];
        out.text(folder);
        out.number(quint32(files.size()));
        for (const Named &file : files) {
            out.text(file.name);
            out.stamp(file.known.stamp);
            out.text(file.known.description);
        }
    }
    for (const QString &folder : others) {
        const QHash<QString, Known> &files = loaded_[folder];
        out.text(folder);
        out.number(quint32(files.size()));
        for (auto file = files.constBegin(); file != files.constEnd(); ++file) {
            out.text(file.key());
            out.stamp(file->stamp);
            out.text(file->description);
        }
    }
    out.number(quint32(widestNow_.folders.size()));
    for (const QString &folder : widestNow_.folders)
        out.text(folder);
    out.text(widestNow_.measure);
    out.text(widestNow_.name);
    out.number(qint32(widestNow_.width));
    out.mark();
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
