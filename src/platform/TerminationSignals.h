// The system's requests to end the program (SIGTERM from a logout, a
// shutdown or kill; SIGINT from a terminal's Ctrl+C; SIGHUP when the
// terminal goes), turned into a Qt signal on the user-interface thread, so
// that the game can end as it does when the home screen closes.
#pragma once

#include <QObject>

class QSocketNotifier;

class TerminationSignals : public QObject {
    Q_OBJECT
public:
    // Takes over the three signals for as long as it lives; one at a time.
    explicit TerminationSignals(QObject *parent = nullptr);
    ~TerminationSignals() override;

signals:
    void received(int signalNumber);

private:
    void readPipe();

    QSocketNotifier *notifier_ = nullptr;
};
