// Question sets made for a test, written where the test wants them.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include "questions/QuestionSet.h"

// A set whose rounds hold the given column titles ("" for an empty column,
// nullptr for a missing key); clues are "r<round>c<col>a<row>" and
// responses "r<round>c<col>q<row>". An empty list leaves the round out,
// a null final leaves [Final] out.
QByteArray setText(const QList<const char *> &round1, const QList<const char *> &round2, const char *final);

// The smallest set the home list shows: one round of one clue, with this
// description.
QByteArray playableSet(const QByteArray &description);

// Writes bytes to path (replacing it); the path back.
QString writeFile(const QString &path, const QByteArray &bytes);

// A whole set (two rounds and the final) with every text distinct, so that a
// swapped or shifted text shows.
QuestionSet distinctSet();

// Whether two sets hold the same description and texts; where not, where.
bool sameTexts(const QuestionSet &a, const QuestionSet &b, QString *where);

// Lines joined by CR LF, the last one ended too.
QByteArray crlf(const QStringList &lines);

// A file's bytes, or none.
QByteArray readFile(const QString &path);

// A file of the built program folder.
QString programFile(const QString &name);

// Runs the built qz2 and waits for it; its exit status, or -1.
int runQz2(const QStringList &args, QByteArray *out = nullptr, QByteArray *err = nullptr);
