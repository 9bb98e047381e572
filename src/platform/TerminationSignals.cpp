#include "TerminationSignals.h"

#include <QSocketNotifier>

#include <array>
#include <csignal>

#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr std::array<int, 3> kSignals{SIGTERM, SIGINT, SIGHUP};

// The handler may only write: the pair carries the signal's number to the
// event loop, which does the rest.
int pipeEnds[2] = {-1, -1};

extern "C" void onSignal(int signalNumber)
{
    const unsigned char byte = static_cast<unsigned char>(signalNumber);
    [[maybe_unused]] const ssize_t written = ::write(pipeEnds[0], &byte, 1);
}

} // namespace

TerminationSignals::TerminationSignals(QObject *parent) : QObject(parent)
{
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, pipeEnds) != 0)
        return;
    notifier_ = new QSocketNotifier(pipeEnds[1], QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, this, &TerminationSignals::readPipe);
    struct sigaction action {};
    action.sa_handler = onSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (int s : kSignals)
        sigaction(s, &action, nullptr);
}

TerminationSignals::~TerminationSignals()
{
    for (int s : kSignals)
        std::signal(s, SIG_DFL);
    delete notifier_;
    for (int &end : pipeEnds) {
        if (end >= 0)
            ::close(end);
        end = -1;
    }
}

void TerminationSignals::readPipe()
{
    unsigned char byte = 0;
    if (::read(pipeEnds[1], &byte, 1) == 1)
        emit received(byte);
}
