#include "QuestionSetList.h"

#include "questions/GameReads.h"
#include "platform/EveryCore.h"

#include <algorithm>

namespace {

// Fewer files than this are read on one core: a thread costs more than
// they take.
constexpr qsizetype kFilesPerCore = 256;

// The description of every file, in the files' order: the cache's where
// the file is unchanged, else read. With thousands of sets the home screen
// waits on these reads, one small file each, so they are shared out among
// the cores.
QStringList Descriptions(const QString &folder, const QList<StampedFile> &files, DescriptionCache *cache,
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
    if (cache) {
        for (qsizetype i = 0; i < files.size(); ++i)
            cache->remember(folder, files.at(i).name, files.at(i).stamp, out[i]);
    }
    return descriptions;
}

bool IsSetFileName(const QString &name)
{
    // Hidden files (a leading ".") are not listed, like the system's hidden
    // files never were.
    return !name.startsWith(QLatin1Char('.')) && name.endsWith(QStringLiteral(".QZ2"), Qt::CaseInsensitive);
}

QList<QuestionSetEntry> Describe(const QString &folder, const QList<StampedFile> &files, int folderCode,
                                 DescriptionCache *cache)
{
    QList<bool> cached;
    const QStringList descriptions = Descriptions(folder, files, cache, cached);
    QList<QuestionSetEntry> entries;
    for (qsizetype i = 0; i < files.size(); ++i) {
        if (GameReads::IsQuestionSet(descriptions.at(i)))
            entries.append({files.at(i).name + QLatin1Char('\t') + descriptions.at(i), folderCode, cached.at(i)});
    }
    return entries;
}

QList<StampedFile> SetFilesIn(const QString &folder)
{
    return folder.isEmpty() ? QList<StampedFile>() : OrdinaryFilesIn(folder, IsSetFileName);
}

// Both folders' stamped files described and sorted as the list shows them.
QList<QuestionSetEntry> Listed(const QString &programFolder, const QList<StampedFile> &programFiles,
                               const QString &documentsFolder, const QList<StampedFile> &documentFiles,
                               DescriptionCache *cache)
{
    QList<QuestionSetEntry> entries = Describe(programFolder, programFiles, 0, cache);
    entries += Describe(documentsFolder, documentFiles, 1, cache);
    std::stable_sort(entries.begin(), entries.end(),
                     [](const QuestionSetEntry &a, const QuestionSetEntry &b) { return EntryBefore(a.text, b.text); });
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
    return Listed(programFolder, SetFilesIn(programFolder), documentsFolder, SetFilesIn(documentsFolder), cache);
}

QString EntryFileName(const QString &text)
{
    return text.section(QLatin1Char('\t'), 0, 0);
}

SetListing ListSets(const QString &programFolder, const QString &documentsFolder)
{
    // The cache is read while the folders are stamped.
    const auto read = [] { return std::make_unique<DescriptionCache>(DescriptionCache::defaultFile()); };
    std::future<std::unique_ptr<DescriptionCache>> reading = OnAnotherCore(read);
    const QList<StampedFile> programFiles = SetFilesIn(programFolder);
    const QList<StampedFile> documentFiles = SetFilesIn(documentsFolder);
    SetListing listing{programFolder, documentsFolder, {}, reading.valid() ? reading.get() : read()};
    listing.entries = Listed(programFolder, programFiles, documentsFolder, documentFiles, listing.cache.get());
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
