#include "QuestionSetList.h"

#include "questions/GameReads.h"

#include <QDir>
#include <QThread>

#include <algorithm>
#include <future>
#include <system_error>
#include <vector>

namespace {

// Fewer files than this are read on one core: a thread costs more than
// they take.
constexpr qsizetype kFilesPerCore = 256;

// The description of every file, in the names' order. With thousands of
// sets the home screen waits on these reads, one small file each, so they
// are shared out among the cores.
QStringList Descriptions(const QString &folder, const QStringList &names)
{
    QStringList descriptions(names.size());
    QString *out = descriptions.data(); // detached once, before any thread writes
    const auto readRange = [&folder, &names, out](qsizetype from, qsizetype to) {
        for (qsizetype i = from; i < to; ++i)
            out[i] = GameReads::Description(folder + names.at(i));
    };
    const qsizetype cores = qBound(qsizetype(1), qsizetype(QThread::idealThreadCount()),
                                   names.size() / kFilesPerCore + 1);
    const qsizetype share = (names.size() + cores - 1) / cores;
    std::vector<std::future<void>> others;
    for (qsizetype from = share; from < names.size(); from += share) {
        const qsizetype to = qMin(from + share, names.size());
        try {
            others.push_back(std::async(std::launch::async, readRange, from, to));
        } catch (const std::system_error &) { // no thread to be had: read them here
            readRange(from, to);
        }
    }
    readRange(0, qMin(share, names.size()));
    for (auto &other : others)
        other.get();
    return descriptions;
}

} // namespace

QList<QuestionSetEntry> FindQuestionSets(const QString &folder, int folderCode)
{
    QList<QuestionSetEntry> entries;
    if (folder.isEmpty())
        return entries;
    QStringList names;
    for (const QString &name : QDir(folder).entryList(QDir::Files | QDir::NoDotAndDotDot, QDir::Unsorted)) {
        // Hidden files (a leading ".") are not listed, like the system's
        // hidden files never were.
        if (!name.startsWith(QLatin1Char('.')) && name.endsWith(QStringLiteral(".QZ2"), Qt::CaseInsensitive))
            names << name;
    }
    const QStringList descriptions = Descriptions(folder, names);
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (GameReads::IsQuestionSet(descriptions.at(i)))
            entries.append({names.at(i) + QLatin1Char('\t') + descriptions.at(i), folderCode});
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
