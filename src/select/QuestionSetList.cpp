#include "QuestionSetList.h"

#include "questions/GameReads.h"
#include "platform/EveryCore.h"

#include <algorithm>
#include <numeric>

namespace {

// Fewer files than this are read on one core: a thread costs more than
// they take.
constexpr qsizetype kFilesPerCore = 256;

// The description of every file, in the files' order: the cache's where
// the file is unchanged, else read. With thousands of sets the home screen
// waits on these reads, one small file each, so they are shared out among
// the cores.
QStringList Descriptions(const QString &folder, const QList<StampedFile> &files, const DescriptionCache *cache,
                         QList<bool> &cached)
{
    QStringList descriptions(files.size());
    cached.fill(false, files.size());
    QString *out = descriptions.data(); // detached once, before any thread writes
    QList<qsizetype> unknown;
    for (qsizetype i = 0; i < files.size(); ++i) {
        const QString *known = cache ? cache->find(folder, files.at(i).name, files.at(i).stamp) : nullptr;
        if (known) {
            out[i] = *known;
            cached[i] = true;
        } else
            unknown << i;
    }
    OnEveryCore(unknown.size(), kFilesPerCore, [&folder, &files, &unknown, out](qsizetype from, qsizetype to) {
        for (qsizetype k = from; k < to; ++k)
            out[unknown.at(k)] = GameReads::Description(folder + files.at(unknown.at(k)).name);
    });
    return descriptions;
}

bool IsSetFileName(const QString &name)
{
    // Hidden files (a leading ".") are not listed, like the system's hidden
    // files never were.
    return !name.startsWith(QLatin1Char('.')) && name.endsWith(QStringLiteral(".QZ2"), Qt::CaseInsensitive);
}

// A folder's entries in the list's order. The cache learns every file,
// the sets and the rest, in that order too, so that an unchanged folder's
// files come back from it already sorted.
QList<QuestionSetEntry> Describe(const QString &folder, const QList<StampedFile> &files, int folderCode,
                                 DescriptionCache *cache)
{
    QList<bool> cached;
    const QStringList descriptions = Descriptions(folder, files, cache, cached);
    QStringList texts;
    texts.reserve(files.size());
    for (qsizetype i = 0; i < files.size(); ++i)
        texts << files.at(i).name + QLatin1Char('\t') + descriptions.at(i);
    QList<qsizetype> order(files.size());
    std::iota(order.begin(), order.end(), qsizetype(0));
    std::stable_sort(order.begin(), order.end(),
                     [&texts](qsizetype a, qsizetype b) { return EntryBefore(texts.at(a), texts.at(b)); });
    QList<QuestionSetEntry> entries;
    for (const qsizetype i : order) {
        if (cache)
            cache->remember(folder, files.at(i).name, files.at(i).stamp, descriptions.at(i));
        if (GameReads::IsQuestionSet(descriptions.at(i)))
            entries.append({texts.at(i), folderCode, cached.at(i)});
    }
    return entries;
}

QList<StampedFile> SetFilesIn(const QString &folder)
{
    return folder.isEmpty() ? QList<StampedFile>() : OrdinaryFilesIn(folder, IsSetFileName);
}

// Both folders' entries as the list shows them: each folder's in order,
// merged, the program folder's first where two read alike.
QList<QuestionSetEntry> Merged(const QList<QuestionSetEntry> &program, const QList<QuestionSetEntry> &documents)
{
    QList<QuestionSetEntry> entries(program.size() + documents.size());
    std::merge(program.cbegin(), program.cend(), documents.cbegin(), documents.cend(), entries.begin(),
               [](const QuestionSetEntry &a, const QuestionSetEntry &b) { return EntryBefore(a.text, b.text); });
    return entries;
}

// An unchanged folder's entries as the cache has them, or nothing when the
// folder has changed.
std::optional<QList<QuestionSetEntry>> Relisted(const QString &folder, const FileStamp &folderStamp, int folderCode,
                                                DescriptionCache &cache, QList<UncheckedFolder> &unchecked)
{
    if (folder.isEmpty())
        return QList<QuestionSetEntry>();
    const QList<DescriptionCache::KnownFile> *files = cache.relistUnchanged(folder, folderStamp);
    if (!files)
        return std::nullopt;
    QList<QuestionSetEntry> entries;
    entries.reserve(files->size());
    for (const DescriptionCache::KnownFile &file : *files) {
        if (GameReads::IsQuestionSet(file.description))
            entries.append({file.name + QLatin1Char('\t') + file.description, folderCode, true});
    }
    // Kept in order by this program; any other order is no cache of it.
    const auto before = [](const QuestionSetEntry &a, const QuestionSetEntry &b) { return EntryBefore(a.text, b.text); };
    if (!std::is_sorted(entries.cbegin(), entries.cend(), before))
        std::stable_sort(entries.begin(), entries.end(), before);
    unchecked.append({folder, *files});
    return entries;
}

} // namespace

bool EntryBefore(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) < 0;
}

QList<QuestionSetEntry> ListQuestionSets(const QString &programFolder, const QString &documentsFolder,
                                         DescriptionCache *cache)
{
    // Each folder is stamped before its files are looked at: a change while
    // they are looked at shows as a changed folder next time.
    for (const QString &folder : {programFolder, documentsFolder}) {
        if (cache && !folder.isEmpty())
            cache->listFolder(folder, FolderStamp(folder));
    }
    const QList<QuestionSetEntry> program = Describe(programFolder, SetFilesIn(programFolder), 0, cache);
    return Merged(program, Describe(documentsFolder, SetFilesIn(documentsFolder), 1, cache));
}

std::optional<QList<QuestionSetEntry>> RelistUnchangedQuestionSets(const QString &programFolder,
                                                                   const QString &documentsFolder,
                                                                   DescriptionCache &cache,
                                                                   QList<UncheckedFolder> &unchecked)
{
    const FileStamp programStamp = FolderStamp(programFolder);
    const FileStamp documentsStamp = FolderStamp(documentsFolder);
    const auto unchanged = [&cache](const QString &folder, const FileStamp &stamp) {
        return folder.isEmpty() || cache.unchanged(folder, stamp);
    };
    if (!unchanged(programFolder, programStamp) || !unchanged(documentsFolder, documentsStamp) ||
        programFolder == documentsFolder)
        return std::nullopt;
    QList<UncheckedFolder> relisted;
    const std::optional<QList<QuestionSetEntry>> program = Relisted(programFolder, programStamp, 0, cache, relisted);
    if (!program)
        return std::nullopt;
    const std::optional<QList<QuestionSetEntry>> documents =
        Relisted(documentsFolder, documentsStamp, 1, cache, relisted);
    if (!documents)
        return std::nullopt;
    unchecked += relisted;
    return Merged(*program, *documents);
}

bool StillAsListed(const QList<UncheckedFolder> &folders)
{
    const auto byName = [](const auto &a, const auto &b) { return a.name < b.name; };
    for (const UncheckedFolder &folder : folders) {
        QList<StampedFile> now = SetFilesIn(folder.folder);
        QList<DescriptionCache::KnownFile> then = folder.files;
        if (now.size() != then.size())
            return false;
        std::sort(now.begin(), now.end(), byName);
        std::sort(then.begin(), then.end(), byName);
        for (qsizetype i = 0; i < now.size(); ++i) {
            if (now.at(i).name != then.at(i).name || now.at(i).stamp != then.at(i).stamp)
                return false;
        }
    }
    return true;
}

QString EntryFileName(const QString &text)
{
    return text.section(QLatin1Char('\t'), 0, 0);
}

SetListing ListSets(const QString &programFolder, const QString &documentsFolder, bool trustUnchangedFolders)
{
    SetListing listing{programFolder, documentsFolder, {},
                       std::make_unique<DescriptionCache>(DescriptionCache::defaultFile()), {}};
    if (trustUnchangedFolders) {
        std::optional<QList<QuestionSetEntry>> relisted =
            RelistUnchangedQuestionSets(programFolder, documentsFolder, *listing.cache, listing.unchecked);
        if (relisted) {
            listing.entries = std::move(*relisted);
            return listing;
        }
    }
    listing.entries = ListQuestionSets(programFolder, documentsFolder, listing.cache.get());
    return listing;
}

int WidestFileName(const QList<QuestionSetEntry> &entries, const QFontMetrics &metrics, DescriptionCache *cache)
{
    // Names measure as before only in the same font at the same resolution:
    // a sample text's exact width tells.
    const QString measure = metrics.fontDpi() > 0
        ? QString::number(QFontMetricsF(metrics).horizontalAdvance(
              QStringLiteral("The quick brown fox jumps over the lazy dog 0123456789")), 'g', 17) +
            QLatin1Char('@') + QString::number(metrics.fontDpi())
        : QString();
    const DescriptionCache::WidestName before = cache ? cache->widestName() : DescriptionCache::WidestName{};
    const QStringList folders = cache ? cache->listedFolders() : QStringList();
    bool beforeStands = before.width >= 0 && before.measure == measure && before.folders == folders;
    if (beforeStands) {
        const QString prefix = before.name + QLatin1Char('\t');
        beforeStands = std::any_of(entries.cbegin(), entries.cend(), [&prefix](const QuestionSetEntry &e) {
            return e.cached && e.text.startsWith(prefix);
        });
    }
    DescriptionCache::WidestName widest{folders, measure, QString(), beforeStands ? before.width : -1};
    if (beforeStands)
        widest.name = before.name;
    for (const QuestionSetEntry &entry : entries) {
        if (beforeStands && entry.cached)
            continue;
        const QString name = EntryFileName(entry.text);
        const int width = metrics.horizontalAdvance(name);
        if (width > widest.width)
            widest = {folders, measure, name, width};
    }
    if (cache)
        cache->setWidestName(widest);
    return qMax(0, widest.width);
}
