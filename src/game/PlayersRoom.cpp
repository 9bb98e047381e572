#include "PlayersRoom.h"

#include <QRandomGenerator>

#include <optional>

namespace {

// Letters no one mistakes for another (no I or O) when read off a screen.
constexpr char kCodeLetters[] = "ABCDEFGHJKLMNPQRSTUVWXYZ";

QString randomToken()
{
    // Unguessable: the token alone lets a phone act for its team.
    QString token;
    for (int i = 0; i < 4; ++i)
        token += QStringLiteral("%1").arg(QRandomGenerator::system()->generate(), 8, 16, QLatin1Char('0'));
    return token;
}

} // namespace

PlayersRoom::PlayersRoom(QObject *parent) : QObject(parent)
{
    for (int i = 0; i < 4; ++i)
        code_ += QLatin1Char(kCodeLetters[QRandomGenerator::system()->bounded(int(sizeof kCodeLetters - 1))]);
}

std::optional<PhonePlayer> PlayersRoom::join(int team, const QString &name)
{
    if (players_.size() >= kMostPlayers)
        return std::nullopt;
    players_.append({randomToken(), team, name});
    emit changed();
    return players_.last();
}

const PhonePlayer *PlayersRoom::find(const QString &token) const
{
    for (const PhonePlayer &p : players_) {
        if (p.token == token)
            return &p;
    }
    return nullptr;
}

void PlayersRoom::remove(const QString &token)
{
    if (players_.removeIf([&](const PhonePlayer &p) { return p.token == token; }) > 0)
        emit changed();
}

void PlayersRoom::restore(const QString &code, quint16 port, const QList<PhonePlayer> &players)
{
    code_ = code;
    port_ = port;
    players_ = players.mid(0, kMostPlayers);
    emit changed();
}
