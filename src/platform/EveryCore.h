// Work on the other cores: at start, while one core waits on Qt, and over
// thousands of small files, each a system call or two.
#pragma once

#include <QtGlobal>

#include <functional>
#include <future>
#include <system_error>
#include <type_traits>
#include <utility>

// Starts work on a thread of its own. When no thread is to be had the
// future is empty (not valid()), and the caller does the work itself or
// goes without.
template <class Work>
std::future<std::invoke_result_t<std::decay_t<Work>>> OnAnotherCore(Work &&work)
{
    try {
        return std::async(std::launch::async, std::forward<Work>(work));
    } catch (const std::system_error &) {
        return {};
    }
}

// Calls work(from, to) on ranges that together cover [0, count), each on
// its own thread but the first, which runs on this one; returns when all
// are done. Fewer than minimumPerCore items per core are not worth a thread.
void OnEveryCore(qsizetype count, qsizetype minimumPerCore, const std::function<void(qsizetype, qsizetype)> &work);
