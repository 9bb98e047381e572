// What the home list last read of each set, kept between runs in the
// user's cache folder: a file whose stamp is unchanged need not be opened
// again, which spares ten thousand reads at start (and on a network folder
// ten thousand round trips). A folder whose own stamp is unchanged has the
// same files as then, which spares even looking at each of them.
#pragma once

#include "platform/FileStamps.h"

#include <QHash>
#include <QList>
#include <QString>

class DescriptionCache {
public:
    // Reads the cache file; one that is missing, damaged or foreign counts
    // as empty; no file at all makes a cache of one listing, kept nowhere.
    // nowNs is the time of this listing.
    explicit DescriptionCache(QString file, qint64 nowNs = StampClockNowNs());

    // The cache file of this user.
    static QString defaultFile();

    struct KnownFile {
        QString name;
        FileStamp stamp;
        QString description;
    };

    // What was read of this file at this very stamp, or nullptr.
    const QString *find(const QString &folder, const QString &name, const FileStamp &stamp) const;

    // A folder's own stamp at this listing, taken before its files were
    // looked at; every folder listed is given one, files or none.
    void listFolder(const QString &folder, const FileStamp &folderStamp);

    // What a file was read to say; kept for the next run only once its
    // stamp has settled, since a file changed within the same tick of its
    // file system's clock would keep its stamp. The files of a folder come
    // in the order the list shows them.
    void remember(const QString &folder, const QString &name, const FileStamp &stamp, const QString &description);

    // Whether the folder's stamp is that of its last listing, and had
    // settled then: no file has been added to it, removed or renamed since.
    bool unchanged(const QString &folder, const FileStamp &folderStamp) const;
    // The files of an unchanged folder as its last listing left them (else
    // nullptr), listed again as they are. What a file says may have changed
    // in place since: their stamps are for checking later.
    const QList<KnownFile> *relistUnchanged(const QString &folder, const FileStamp &folderStamp);

    // Writes the files remembered in this listing, and only those, unless
    // they are just what was read. Quietly does nothing when it cannot.
    void save() const;

    int hits() const { return hits_; }

    // The widest file name of the last listing, of the folders it listed,
    // in pixels of one way of measuring (a font at a resolution), which
    // measure names.
    struct WidestName {
        QStringList folders;
        QString measure;
        QString name;
        int width = -1;
        bool operator==(const WidestName &) const = default;
    };
    const WidestName &widestName() const { return widest_; }
    void setWidestName(const WidestName &widest) { widestNow_ = widest; }
    // The folders of this listing, in the order they came.
    const QStringList &listedFolders() const { return listedOrder_; }

private:
    struct Folder {
        FileStamp stamp; // of the folder itself; one of size -1 is never trusted
        QList<KnownFile> files;
        mutable QHash<QString, qsizetype> byName; // made at the first look-up
    };

    bool read(const QByteArray &bytes);
    bool changed() const;
    bool settled(const FileStamp &stamp) const;
    Folder &listed(const QString &folder);

    QString file_;
    qint64 nowNs_;
    QHash<QString, Folder> loaded_;
    QStringList loadedOrder_; // most recently listed first
    QHash<QString, Folder> listed_;
    QStringList listedOrder_;
    WidestName widest_;
    WidestName widestNow_;
    bool changed_ = false;
    mutable int hits_ = 0;
};
