#include "GameReads.h"

#include <QDir>
#include <QFileInfo>

#include "platform/NumberText.h"
#include "platform/GetPrivateProfileString.h"

namespace GameReads {

QString Description(const QString &file)
{
    return GetPrivateProfileString(QStringLiteral("Round1"), QStringLiteral("Description"), kNone, file);
}

bool IsQuestionSet(const QString &description)
{
    return description != kNone;
}

int AnswerTimerMs(const QString &file)
{
    const QString text = GetPrivateProfileString(QStringLiteral("Round1"), QStringLiteral("Timer"),
                                                 QStringLiteral("10"), file);
    const long long ms = RoundHalfEven(LeadingNumber(text) * 1000.0);
    // Nothing, 0, or a negative time (which no host means) gives the
    // usual ten seconds; a long one is honoured up to an hour.
    if (ms <= 0)
        return 10'000;
    return int(qMin(ms, 3'600'000LL));
}

bool RoundExists(const QString &file, int round)
{
    const QString value = round == 3
        ? GetPrivateProfileString(QStringLiteral("Final"), QStringLiteral("Category"), kNone, file)
        : GetPrivateProfileString(QStringLiteral("Round") + QString::number(round), QStringLiteral("Category0"),
                                  kNone, file);
    return value != kNone;
}

QString ColumnTitle(const QString &file, int round, int column)
{
    const QString title = GetPrivateProfileString(QStringLiteral("Round") + QString::number(round),
                                                  QStringLiteral("Category") + QString::number(column), kNone, file);
    return title == kNone ? QString() : title;
}

QString TileSection(int round, int tile)
{
    if (tile < 0)
        return QStringLiteral("Final");
    return QStringLiteral("Round") + QString::number(round) + QStringLiteral("Category") +
           QString::number(tile % 6);
}

QString ClueKey(int tile)
{
    return tile < 0 ? QStringLiteral("Answer") : QStringLiteral("Answer") + QString::number(tile / 6);
}

QString ResponseKey(int tile)
{
    return tile < 0 ? QStringLiteral("Question") : QStringLiteral("Question") + QString::number(tile / 6);
}

QString Clue(const QString &file, int round, int tile)
{
    const QString key = ClueKey(tile);
    return GetPrivateProfileString(TileSection(round, tile), key, key, file);
}

QString Response(const QString &file, int round, int tile)
{
    const QString key = ResponseKey(tile);
    return GetPrivateProfileString(TileSection(round, tile), key, key, file);
}

QString FinalTitle(const QString &file)
{
    return GetPrivateProfileString(QStringLiteral("Final"), QStringLiteral("Category"), QStringLiteral("Category"),
                                   file);
}

QString PicturePath(const QString &setFile, const QString &name)
{
    if (name.isEmpty())
        return {};
    const QFileInfo picture(name);
    return picture.isAbsolute() ? QDir::cleanPath(name) : QDir::cleanPath(QFileInfo(setFile).absoluteDir().filePath(name));
}

QString CluePicture(const QString &file, int round, int tile)
{
    const QString key = tile < 0 ? QStringLiteral("Picture") : QStringLiteral("Picture") + QString::number(tile / 6);
    return PicturePath(file, GetPrivateProfileString(TileSection(round, tile), key, QString(), file));
}

} // namespace GameReads
