#include "QuestionSetList.h"

#include "questions/GameReads.h"

#include <QDir>

#include <algorithm>

QList<QuestionSetEntry> FindQuestionSets(const QString &folder, int folderCode)
{
    QList<QuestionSetEntry> entries;
    if (folder.isEmpty())
        return entries;
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files | QDir::NoDotAndDotDot, QDir::Unsorted);
    for (const QFileInfo &file : files) {
        const QString name = file.fileName();
        // Hidden files (a leading ".") are not listed, like the system's
        // hidden files never were.
        if (name.startsWith(QLatin1Char('.')) || !name.endsWith(QStringLiteral(".QZ2"), Qt::CaseInsensitive))
            continue;
        const QString description = GameReads::Description(folder + name);
        if (!GameReads::IsQuestionSet(description))
            continue;
        entries.append({name + QLatin1Char('\t') + description, folderCode});
    }
    return entries;
}

bool EntryBefore(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) < 0;
}

QList<QuestionSetEntry> ListQuestionSets(const QString &programFolder, const QString &documentsFolder)
{
    QList<QuestionSetEntry> entries = FindQuestionSets(programFolder, 0);
    entries += FindQuestionSets(documentsFolder, 1);
    std::stable_sort(entries.begin(), entries.end(),
                     [](const QuestionSetEntry &a, const QuestionSetEntry &b) { return EntryBefore(a.text, b.text); });
    return entries;
}

QString EntryFileName(const QString &text)
{
    return text.section(QLatin1Char('\t'), 0, 0);
}
