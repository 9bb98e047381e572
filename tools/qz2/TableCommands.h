// qz2's spreadsheet commands: import a table as a set, export a set as a
// table. Same exit statuses as every qz2 command.
#pragma once

#include <QStringList>
#include <QTextStream>

// import TABLE [OUT] [--description TEXT] [--timer SECONDS]
int ImportTable(const QStringList &args, QTextStream &out, QTextStream &err);

// export SET TABLE
int ExportTable(const QStringList &args, QTextStream &out, QTextStream &err);
