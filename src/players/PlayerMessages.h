// The messages a phone may send, each checked against its form before
// anything acts on it: at most 1 KB, one JSON object, a known "type", and
// every field of the right kind and within range. Anything else is no
// message at all.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

struct PlayerMessage {
    enum Type { Join, Hello, Buzz, Wager, Response } type = Buzz;
    QString room;     // Join: the room code as typed (up to 8), in capitals
    int team = 0;     // Join: 0..9
    QString name;     // Join: 1..20 characters, one line
    QString token;    // Hello: 32 hex digits
    qint64 amount = 0; // Wager: 0..9,999,999
    QString text;     // Response: up to 200 characters, one line
};

constexpr qsizetype kMostMessageBytes = 1024;
constexpr int kLongestPlayerName = 20;
constexpr int kLongestResponse = 200;

std::optional<PlayerMessage> ParsePlayerMessage(const QByteArray &bytes);

// A name or response as it is kept: blanks at the ends gone, blanks inside
// one each; empty when it holds a control or format character.
QString CleanPlayerText(const QString &text);
