// Question sets made for a test, written where the test wants them.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

// A set whose rounds hold the given column titles ("" for an empty column,
// nullptr for a missing key); clues are "r<round>c<col>a<row>" and
// responses "r<round>c<col>q<row>". An empty list leaves the round out,
// a null final leaves [Final] out.
QByteArray setText(const QList<const char *> &round1, const QList<const char *> &round2, const char *final);

// Writes bytes to path (replacing it); the path back.
QString writeFile(const QString &path, const QByteArray &bytes);
