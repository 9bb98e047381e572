// What the game will make of one file: whether the home screen lists it,
// which rounds are played, which columns stay empty, which texts are
// missing (and would show their key names), and the answer time.
#pragma once

#include <QString>
#include <QStringList>

struct RoundReport {
    QString name;          // "round 1", "round 2", "final"
    bool played = false;
    QString note;          // why skipped, or which columns are empty
};

struct SetReport {
    bool listed = false;
    QString listing;       // why not, or the description shown
    QString answerText;    // "10 s", "2.5 s"
    QList<RoundReport> rounds;
    QStringList missing;   // "[Round1Category2] Answer3"
    QStringList pictures;  // "[Round1Category2] Picture3: maps/a.png is missing"
    QStringList stayBehind; // "[Final] Picture: /srv/a.png is named by an absolute path"
    bool playable() const;
};

SetReport CheckQuestionSet(const QString &path);
QString FormatReport(const QString &path, const SetReport &report);
