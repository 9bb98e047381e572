// What the fuzz targets share: a folder of their own for the files they
// write, the shaping of an input into a file that reaches the reader's
// chunk and line limits, and the report of a broken promise.
#pragma once

#include <QByteArray>
#include <QString>

#include <fuzzer/FuzzedDataProvider.h>

namespace Fuzz {

// The size of the reader's chunks; the runs below aim at its multiples.
constexpr qsizetype kChunk = 64 * 1024;

// A folder of this process's own in the temporary folder, made on first
// use. A target writes a file for every input: scripts/fuzz points TMPDIR
// at memory, where the writer's fsync costs nothing.
QString folder();

// Writes the bytes to the named file in that folder; its path.
QString writeFile(const QString &name, const QByteArray &bytes);

// The input's remaining bytes with up to two runs put in where its
// controls say: blanks, letters, short lines, line ends or two-byte UTF-8
// characters, short or long enough that what follows starts just before or
// just after a 64 KiB boundary, which also makes one line longer than
// anything the reader keeps of it. Controls come from the end of the input.
QByteArray shapedFile(FuzzedDataProvider &input);

// Text with every character outside printable ASCII written as \x{...},
// and cut in the middle when it is very long: for reports.
QString visible(const QString &text);

// Prints what was expected and what came, then aborts, so that libFuzzer
// keeps the input that broke the promise.
[[noreturn]] void diverged(const QString &what, const QString &expected, const QString &found);

} // namespace Fuzz
