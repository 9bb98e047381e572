// The room of players who joined on their phones: its four-letter code,
// the port the game serves them on, and every player by a token of its
// own, which names its team and can act for no other. It lives for the
// run, so that hosts can reuse the code between games; a game's journal
// keeps it, so that phones come back to their teams after a resume.
#pragma once

#include <QList>
#include <optional>
#include <QObject>
#include <QString>

struct PhonePlayer {
    QString token; // 32 hex digits
    int team = 0;
    QString name;
};

class PlayersRoom : public QObject {
    Q_OBJECT
public:
    static constexpr int kMostPlayers = 200;

    // A new room with a code of its own.
    explicit PlayersRoom(QObject *parent = nullptr);

    const QString &code() const { return code_; }
    quint16 port() const { return port_; }
    void setPort(quint16 port) { port_ = port; }
    const QList<PhonePlayer> &players() const { return players_; }

    // A new player in a team; nothing when the room is full.
    std::optional<PhonePlayer> join(int team, const QString &name);
    const PhonePlayer *find(const QString &token) const;
    void remove(const QString &token);
    // The room as a journal kept it: its code, port and players.
    void restore(const QString &code, quint16 port, const QList<PhonePlayer> &players);

signals:
    void changed();

private:
    QString code_;
    quint16 port_ = 0;
    QList<PhonePlayer> players_;
};
