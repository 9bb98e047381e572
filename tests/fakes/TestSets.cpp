#include "TestSets.h"

#include <QFile>

QByteArray setText(const QList<const char *> &round1, const QList<const char *> &round2, const char *final)
{
    QByteArray s = "[Round1]\r\nDescription=test\r\nTimer=10\r\n";
    auto round = [&](int n, const QList<const char *> &titles) {
        if (n == 2)
            s += "[Round2]\r\n";
        for (int c = 0; c < titles.size(); ++c) {
            if (titles[c])
                s += "Category" + QByteArray::number(c) + "=" + titles[c] + "\r\n";
        }
        for (int c = 0; c < 6; ++c) {
            s += "[Round" + QByteArray::number(n) + "Category" + QByteArray::number(c) + "]\r\n";
            for (int j = 0; j < 5; ++j) {
                const QByteArray id = "r" + QByteArray::number(n) + "c" + QByteArray::number(c);
                s += "Answer" + QByteArray::number(j) + "=" + id + "a" + QByteArray::number(j) + "\r\n";
                s += "Question" + QByteArray::number(j) + "=" + id + "q" + QByteArray::number(j) + "\r\n";
            }
        }
    };
    if (!round1.isEmpty())
        round(1, round1);
    if (!round2.isEmpty())
        round(2, round2);
    if (final)
        s += QByteArray("[Final]\r\nCategory=") + final + "\r\nAnswer=final clue\r\nQuestion=final response\r\n";
    return s;
}

QString writeFile(const QString &path, const QByteArray &bytes)
{
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
    return path;
}
