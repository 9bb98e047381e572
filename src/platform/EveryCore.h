// Work over a range of items shared out among the cores: for thousands of
// small files, each a system call or two, the second core halves the wait.
#pragma once

#include <QtGlobal>

#include <functional>

// Calls work(from, to) on ranges that together cover [0, count), each on
// its own thread but the first, which runs on this one; returns when all
// are done. Fewer than minimumPerCore items per core are not worth a thread.
void OnEveryCore(qsizetype count, qsizetype minimumPerCore, const std::function<void(qsizetype, qsizetype)> &work);
