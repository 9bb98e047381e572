// The rules of reading one value of a question set, applied the plain way:
// the whole file in memory, judged and decoded at once, cut into lines,
// each line taken apart as a whole. Slow and simple, to hold the streaming
// reader to; it shares no code with it.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

class ReferenceProfile {
public:
    explicit ReferenceProfile(const QByteArray &wholeFile);

    // The value of key in section, or the default, by the same rules as
    // GetPrivateProfileString.
    QString read(const QString &section, const QString &key, const QString &defaultValue) const;

    // Every key line's key with the name of the section it stands in (empty
    // before the first section line), as decoded, in file order.
    QList<std::pair<QString, QString>> keys() const;

    // The verdict on the whole file: UTF-8 rather than Windows-1252.
    bool isUtf8() const { return utf8_; }

    // Blanks around a name or a value: white space other than the line feed.
    static bool isBlank(QChar c);
    // A value as read: without blanks around it, without one pair of
    // enclosing quotation marks, at most 1999 characters (never half of
    // a surrogate pair).
    static QString valueAsRead(const QString &raw);
    static QString cut(const QString &text);

private:
    struct Line {
        enum Kind { Section, Key } kind;
        QString name;
        QString value; // as read
    };

    bool utf8_ = false;
    std::vector<Line> lines_;
};
