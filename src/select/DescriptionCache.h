// What the home list last read of each set, kept between runs in the
// user's cache folder: a file whose stamp is unchanged need not be opened
// again, which spares ten thousand reads at start (and on a network folder
// ten thousand round trips).
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

    // What was read of this file at this very stamp, or nullptr.
    const QString *find(const QString &folder, const QString &name, const FileStamp &stamp) const;

    // What a file was read to say; kept for the next run only once its
    // stamp has settled, since a file changed within the same tick of its
    // file system's clock would keep its stamp.
    void remember(const QString &folder, const QString &name, const FileStamp &stamp, const QString &description);

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
    // The folders with files in this listing, in the order they came.
    const QStringList &listedFolders() const { return listedOrder_; }

private:
    struct Known {
        FileStamp stamp;
        QString description;
    };
    struct Named {
        QString name;
        Known known;
    };

    bool read(const QByteArray &bytes);
    bool changed() const;

    QString file_;
    qint64 nowNs_;
    QHash<QString, QHash<QString, Known>> loaded_; // by folder, then by name
    QStringList loadedOrder_;                       // most recently listed first
    QHash<QString, QList<Named>> listed_;
    QStringList listedOrder_;
    WidestName widest_;
    WidestName widestNow_;
    bool changed_ = false;
    mutable int hits_ = 0;
    mutable const QHash<QString, Known> *lastFound_ = nullptr;
    mutable QString lastFoundFolder_;
    QList<Named> *lastListed_ = nullptr;
    QString lastListedFolder_;
};
