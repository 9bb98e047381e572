#include "EveryCore.h"

#include <QThread>

#include <vector>

void OnEveryCore(qsizetype count, qsizetype minimumPerCore, const std::function<void(qsizetype, qsizetype)> &work)
{
    const qsizetype cores =
        qBound(qsizetype(1), qsizetype(QThread::idealThreadCount()), count / qMax(qsizetype(1), minimumPerCore) + 1);
    const qsizetype share = (count + cores - 1) / cores;
    std::vector<std::future<void>> others;
    for (qsizetype from = share; from < count; from += share) {
        const qsizetype to = qMin(from + share, count);
        std::future<void> other = OnAnotherCore([&work, from, to] { work(from, to); });
        if (other.valid())
            others.push_back(std::move(other));
        else
            work(from, to);
    }
    work(0, qMin(share, count));
    for (auto &other : others)
        other.get();
}
