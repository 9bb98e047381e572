// The journal of the game being played: its whole state, written after
// every change to a file in the user's data folder, so that a dead battery,
// a crash or a stray key costs no scores. It goes away when the game ends
// normally; one left behind offers to resume at the next start.
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include "PlayersRoom.h"

#include <array>
#include <optional>
#include <utility>
#include <vector>

class BoardGame;

// What a journal holds: enough to put a board back as it was.
struct JournalRecord {
    QString questionFile;
    // Of the set's contents: a set changed since cannot be resumed.
    QString fingerprint;
    QString description;
    qint16 round = 1;
    qint16 teams = 0;
    qint16 dailyDouble1 = 0;
    qint16 dailyDouble2 = 0;
    std::array<QString, 30> tileCaption;
    std::array<QString, 6> headerCaption;
    std::array<QString, 6> headerTag;
    std::array<qint32, 10> scores{};
    std::array<QString, 10> names;
    std::vector<std::pair<int, qint32>> history;
    // The phones' room, when phones were on: its code, port and players.
    QString room;
    quint16 port = 0;
    QList<PhonePlayer> players;
};

QByteArray WriteJournal(const JournalRecord &record);
// The record in bytes written by WriteJournal; nothing for anything else:
// damaged (its checksum differs), foreign, from a newer game, out of range,
// or at odds with itself (scores that are not the sum of their history, a
// tile whose caption is not its row's value).
std::optional<JournalRecord> ReadJournal(const QByteArray &bytes);
// A journal's JSON text with its checksum made anew.
QByteArray SealJournal(const QByteArray &json);
// Whether the host did anything in the game: played or took out a tile,
// changed a score, or moved on a round. Only such a game is worth resuming.
bool JournalEarned(const JournalRecord &record);

// What a journal left behind offers the next start.
struct ResumeOffer {
    enum Kind {
        Nothing, // no journal, a damaged one (set aside), or a game with nothing in it
        Gone,    // its set changed or is gone: text tells the host, once
        Resume,  // text asks the host whether to resume record
    } kind = Nothing;
    QString text;
    JournalRecord record;
};
// A set file's fingerprint; empty when it cannot be read.
QString SetFingerprint(const QString &file);
// The game's state as a journal records it.
JournalRecord CaptureJournal(const BoardGame &game);

// Keeps the journal file of the game it watches.
class GameJournal : public QObject {
    Q_OBJECT
public:
    // The journal at path; by default in the user's data folder.
    explicit GameJournal(QString path = defaultPath(), QObject *parent = nullptr);
    static QString defaultPath();
    const QString &path() const { return path_; }

    // Writes the journal after every change of this game (once for all the
    // changes one event makes), and removes it when the game ends normally.
    void watch(BoardGame &game);
    // Keeps the phones' room too (nullptr: phones are off).
    void watchRoom(const PlayersRoom *room);

    bool exists() const;
    // The journal left behind; nothing when there is none or it is damaged.
    std::optional<JournalRecord> read() const;
    // What the journal left behind offers; a damaged one is set aside, and
    // one that offers nothing (or only the message that its set is gone)
    // is removed.
    ResumeOffer offer();
    void remove();
    // Renames a damaged journal out of the way, keeping it for a look; the
    // new name back.
    QString setAside();

    // Writes the watched game's state at once.
    void writeNow();

signals:
    // A write failed: the game goes on, unjournaled.
    void writeFailed(const QString &description);

private:
    void changed();

    QString path_;
    QPointer<BoardGame> game_;
    QPointer<const PlayersRoom> room_;
    bool pending_ = false;
};
