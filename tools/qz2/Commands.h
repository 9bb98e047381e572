// The commands of qz2. Each writes to out and err and returns the
// process's exit status: 0 done, 1 a file could not be read or written or
// is not playable, 2 bad arguments.
#pragma once

#include "platform/ReadableFile.h"

#include <QStringList>
#include <QTextStream>

int RunQz2(const QStringList &args, QTextStream &out, QTextStream &err);

// The host's sheet of a set as a PDF; needs a QGuiApplication (main makes
// one, offscreen).
int sheet(const QStringList &args, QTextStream &out, QTextStream &err);

