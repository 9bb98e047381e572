// The four commands of qz2. Each writes to out and err and returns the
// process's exit status: 0 done, 1 a file could not be read or written or
// is not playable, 2 bad arguments.
#pragma once

#include <QStringList>
#include <QTextStream>

int RunQz2(const QStringList &args, QTextStream &out, QTextStream &err);
