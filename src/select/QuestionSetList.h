// The question sets a game can be played from: every ".QZ2" file, in any
// letter case, in the program folder and in the documents folder, that has
// a description. Entries carry the file name, a tab and the description,
// and the code of the folder they came from.
#pragma once

#include "DescriptionCache.h"

#include <QFontMetrics>
#include <QList>
#include <QString>

#include <memory>
#include <optional>

struct QuestionSetEntry {
    QString text;        // file name, tab, description
    int folder = 0;      // 0 program folder, 1 documents folder
    bool cached = false; // as the cache knew it
};

// The whole list, sorted by text without regard to letter case: of each
// folder (ending in "/") its ordinary files, hidden ones left out, that
// have a description. A cache, when given, answers for unchanged files and
// learns the rest.
QList<QuestionSetEntry> ListQuestionSets(const QString &programFolder, const QString &documentsFolder,
                                         DescriptionCache *cache = nullptr);

// A folder whose files were taken on trust, as the cache had them.
struct UncheckedFolder {
    QString folder;
    QList<DescriptionCache::KnownFile> files;
};

// The whole list as ListQuestionSets gives it, taken from the cache alone
// when neither folder has changed (no file added, removed or renamed in
// it): ten thousand files need not be looked at before the list shows.
// Nothing when one has changed. The folders taken on trust are added to
// unchecked: a file may have been written in place since.
std::optional<QList<QuestionSetEntry>> RelistUnchangedQuestionSets(const QString &programFolder,
                                                                   const QString &documentsFolder,
                                                                   DescriptionCache &cache,
                                                                   QList<UncheckedFolder> &unchecked);

// Whether the folders' set files are still those, each at its stamp.
bool StillAsListed(const QList<UncheckedFolder> &folders);

// Orders entries as the list shows them.
bool EntryBefore(const QString &a, const QString &b);

// The file name of an entry: its text up to the first tab.
QString EntryFileName(const QString &text);

// The sets of both folders as the home screen lists them, with the user's
// cache of descriptions that answered (to be saved once the list is shown),
// and the folders taken on trust if unchanged folders may be.
struct SetListing {
    QString programFolder;
    QString documentsFolder;
    QList<QuestionSetEntry> entries;
    std::unique_ptr<DescriptionCache> cache;
    QList<UncheckedFolder> unchecked;
};
SetListing ListSets(const QString &programFolder, const QString &documentsFolder, bool trustUnchangedFolders = false);

// The widest file name of the entries in pixels of these metrics, as the
// list's column needs it. Measuring ten thousand names takes long, so the
// cache's answer stands while it is still true (its widest file is listed
// yet, no file is new to it, and names measure as before); only new names
// are measured then. The cache learns the answer.
int WidestFileName(const QList<QuestionSetEntry> &entries, const QFontMetrics &metrics, DescriptionCache *cache);
