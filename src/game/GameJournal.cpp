#include "GameJournal.h"

#include "BoardGame.h"
#include "GameRules.h"
#include "GameState.h"
#include "platform/WriteFileReplacing.h"
#include "questions/GameReads.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

#include <cmath>

#include <zlib.h>

namespace {

const QString kFormat = QStringLiteral("quizzarr-journal");
const QString kChecksum = QStringLiteral("crc32");
constexpr int kVersion = 1;
// A journal is a few kilobytes; anything much larger is not ours.
constexpr qint64 kLargest = 1 << 20;
// Texts longer than a question set's values cannot be ours either.
constexpr int kLongestText = 4000;

template <size_t N>
QJsonArray texts(const std::array<QString, N> &a)
{
    QJsonArray out;
    for (const QString &s : a)
        out.append(s);
    return out;
}

template <size_t N>
bool readTexts(const QJsonValue &v, std::array<QString, N> &a)
{
    const QJsonArray arr = v.toArray();
    if (!v.isArray() || arr.size() != qsizetype(N))
        return false;
    for (size_t i = 0; i < N; ++i) {
        if (!arr[qsizetype(i)].isString() || arr[qsizetype(i)].toString().size() > kLongestText)
            return false;
        a[i] = arr[qsizetype(i)].toString();
    }
    return true;
}

// A whole number in [low, high], or nothing.
std::optional<qint64> number(const QJsonValue &v, qint64 low, qint64 high)
{
    if (!v.isDouble())
        return std::nullopt;
    // In range first: converting a number like 1e300 would be undefined.
    const double d = v.toDouble();
    if (!std::isfinite(d) || d < double(low) || d > double(high) || d != std::floor(d))
        return std::nullopt;
    return qint64(d);
}

// CRC-32 of the object's content without its checksum, in hex: the same
// for the same values however the file's blanks were laid out.
QString checksum(QJsonObject o)
{
    o.remove(kChecksum);
    const QByteArray content = QJsonDocument(o).toJson(QJsonDocument::Compact);
    const uLong crc = crc32(crc32(0L, Z_NULL, 0), reinterpret_cast<const Bytef *>(content.constData()), uInt(content.size()));
    return QString::number(quint32(crc), 16).rightJustified(8, QLatin1Char('0'));
}

// Every tile is out of play or shows its own row's value in the round; the
// final's board is empty.
bool tilesAgree(const JournalRecord &r)
{
    for (int i = 0; i < Tiles::Count; ++i) {
        const QString &caption = r.tileCaption[size_t(i)];
        if (!caption.isEmpty() && (r.round > 2 || caption != Tiles::caption(i, r.round)))
            return false;
    }
    return true;
}

// Scores start at 0 and change only through their history.
bool scoresAgree(const JournalRecord &r)
{
    std::array<quint32, 10> sums{};
    for (const auto &[team, amount] : r.history)
        sums[size_t(team)] += quint32(amount);
    for (size_t i = 0; i < sums.size(); ++i) {
        if (qint32(sums[i]) != r.scores[i])
            return false;
    }
    return true;
}

bool readNumbers(const QJsonObject &o, JournalRecord &r)
{
    const auto round = number(o[QStringLiteral("round")], 1, 3);
    const auto teams = number(o[QStringLiteral("teams")], 0, 10);
    const auto dd1 = number(o[QStringLiteral("dailyDouble1")], 0, 29);
    const auto dd2 = number(o[QStringLiteral("dailyDouble2")], 0, 29);
    if (!round || !teams || !dd1 || !dd2)
        return false;
    r.round = qint16(*round);
    r.teams = qint16(*teams);
    r.dailyDouble1 = qint16(*dd1);
    r.dailyDouble2 = qint16(*dd2);
    const QJsonArray scores = o[QStringLiteral("scores")].toArray();
    if (scores.size() != 10)
        return false;
    for (int i = 0; i < 10; ++i) {
        const auto s = number(scores[i], INT32_MIN, INT32_MAX);
        if (!s)
            return false;
        r.scores[size_t(i)] = qint32(*s);
    }
    for (const QJsonValue &change : o[QStringLiteral("history")].toArray()) {
        const QJsonArray pair = change.toArray();
        const auto team = number(pair.at(0), 0, qMax<qint64>(0, r.teams - 1));
        const auto amount = number(pair.at(1), INT32_MIN, INT32_MAX);
        if (pair.size() != 2 || !team || !amount || r.teams == 0)
            return false;
        r.history.emplace_back(int(*team), qint32(*amount));
    }
    return o[QStringLiteral("history")].isArray();
}

// The phones' room, when there is one: a code of four capitals, a port, and
// at most a room's players, each with a token, a team and a name.
bool readPhones(const QJsonValue &v, JournalRecord &r)
{
    if (v.isUndefined())
        return true;
    const QJsonObject o = v.toObject();
    const QString room = o[QStringLiteral("room")].toString();
    const auto port = number(o[QStringLiteral("port")], 1, 65535);
    const QJsonArray players = o[QStringLiteral("players")].toArray();
    if (!v.isObject() || room.size() != 4 || !port || players.size() > PlayersRoom::kMostPlayers)
        return false;
    r.room = room;
    r.port = quint16(*port);
    for (const QJsonValue &p : players) {
        const QString token = p[QStringLiteral("token")].toString(), name = p[QStringLiteral("name")].toString();
        const auto team = number(p[QStringLiteral("team")], 0, 9);
        if (token.size() != 32 || !team || name.isEmpty() || name.size() > 40)
            return false;
        r.players.append({token, int(*team), name});
    }
    return true;
}

} // namespace

QByteArray WriteJournal(const JournalRecord &r)
{
    QJsonArray scores, history;
    for (qint32 s : r.scores)
        scores.append(s);
    for (const auto &[team, amount] : r.history)
        history.append(QJsonArray{team, amount});
    const QJsonObject o{
        {QStringLiteral("format"), kFormat},
        {QStringLiteral("version"), kVersion},
        {QStringLiteral("questionFile"), r.questionFile},
        {QStringLiteral("fingerprint"), r.fingerprint},
        {QStringLiteral("description"), r.description},
        {QStringLiteral("round"), r.round},
        {QStringLiteral("teams"), r.teams},
        {QStringLiteral("dailyDouble1"), r.dailyDouble1},
        {QStringLiteral("dailyDouble2"), r.dailyDouble2},
        {QStringLiteral("tiles"), texts(r.tileCaption)},
        {QStringLiteral("headers"), texts(r.headerCaption)},
        {QStringLiteral("hiddenHeaders"), texts(r.headerTag)},
        {QStringLiteral("scores"), scores},
        {QStringLiteral("names"), texts(r.names)},
        {QStringLiteral("history"), history},
    };
    QJsonObject written = o;
    if (!r.room.isEmpty()) {
        QJsonArray players;
        for (const PhonePlayer &p : r.players)
            players.append(QJsonObject{{QStringLiteral("token"), p.token}, {QStringLiteral("team"), p.team},
                                       {QStringLiteral("name"), p.name}});
        written.insert(QStringLiteral("phones"), QJsonObject{{QStringLiteral("room"), r.room},
                                                            {QStringLiteral("port"), r.port},
                                                            {QStringLiteral("players"), players}});
    }
    return SealJournal(QJsonDocument(written).toJson(QJsonDocument::Compact));
}

QByteArray SealJournal(const QByteArray &json)
{
    QJsonObject o = QJsonDocument::fromJson(json).object();
    o.insert(kChecksum, checksum(o));
    return QJsonDocument(o).toJson(QJsonDocument::Indented);
}

std::optional<JournalRecord> ReadJournal(const QByteArray &bytes)
{
    if (bytes.size() > kLargest)
        return std::nullopt;
    QJsonParseError error{};
    const QJsonDocument doc = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError || !doc.isObject())
        return std::nullopt;
    const QJsonObject o = doc.object();
    if (o[QStringLiteral("format")].toString() != kFormat || o[QStringLiteral("version")].toInt() != kVersion ||
        o[kChecksum].toString() != checksum(o))
        return std::nullopt;
    JournalRecord r;
    for (auto [key, field] : {std::pair{"questionFile", &r.questionFile}, std::pair{"fingerprint", &r.fingerprint},
                              std::pair{"description", &r.description}}) {
        const QJsonValue v = o[QLatin1String(key)];
        if (!v.isString() || v.toString().size() > kLongestText)
            return std::nullopt;
        *field = v.toString();
    }
    if (r.questionFile.isEmpty() || !readNumbers(o, r) || !readTexts(o[QStringLiteral("tiles")], r.tileCaption) ||
        !readTexts(o[QStringLiteral("headers")], r.headerCaption) ||
        !readTexts(o[QStringLiteral("hiddenHeaders")], r.headerTag) || !readTexts(o[QStringLiteral("names")], r.names))
        return std::nullopt;
    if (!tilesAgree(r) || !scoresAgree(r) || !readPhones(o[QStringLiteral("phones")], r))
        return std::nullopt;
    return r;
}

bool JournalEarned(const JournalRecord &r)
{
    if (r.round > 1 || !r.history.empty())
        return true;
    // A tile out of play under a title (shown, or kept by an exhausted
    // column) was played or taken out; an empty column's tiles never were.
    for (int i = 0; i < Tiles::Count; ++i) {
        const size_t column = size_t(Tiles::column(i));
        if (r.tileCaption[size_t(i)].isEmpty() && !(r.headerCaption[column].isEmpty() && r.headerTag[column].isEmpty()))
            return true;
    }
    return false;
}

QString SetFingerprint(const QString &file)
{
    QFile f(file);
    if (!QFileInfo(file).isFile() || !f.open(QIODevice::ReadOnly))
        return {};
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!hash.addData(&f))
        return {};
    return QString::fromLatin1(hash.result().toHex());
}

JournalRecord CaptureJournal(const BoardGame &game)
{
    const BoardState &s = game.state();
    const GameState &g = game.settings();
    JournalRecord r;
    r.questionFile = g.QuestionFile;
    r.fingerprint = SetFingerprint(g.QuestionFile);
    r.description = GameReads::Description(g.QuestionFile);
    r.round = qint16(qBound(1, int(g.Round), 3));
    r.teams = s.Teams;
    r.dailyDouble1 = g.DailyDouble1;
    r.dailyDouble2 = g.DailyDouble2;
    r.tileCaption = s.tileCaption;
    r.headerCaption = s.headerCaption;
    r.headerTag = s.headerTag;
    r.scores = g.Scores;
    r.names = g.TeamNames;
    r.history = s.scoreHistory;
    return r;
}

namespace {

void addRoom(JournalRecord &r, const PlayersRoom *room)
{
    if (!room)
        return;
    r.room = room->code();
    r.port = room->port();
    r.players = room->players();
}

} // namespace

GameJournal::GameJournal(QString path, QObject *parent) : QObject(parent), path_(std::move(path)) {}

QString GameJournal::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/game-journal.json");
}

void GameJournal::watch(BoardGame &game)
{
    if (game_)
        disconnect(game_, nullptr, this, nullptr);
    game_ = &game;
    for (auto signal : {&BoardGame::tileChanged, &BoardGame::scoreChanged, &BoardGame::teamNameChanged})
        connect(&game, signal, this, &GameJournal::changed);
    for (auto signal : {&BoardGame::roundChanged, &BoardGame::tilesDoneChanged, &BoardGame::teamsChanged})
        connect(&game, signal, this, &GameJournal::changed);
    connect(&game, &BoardGame::gameEnded, this, [this] {
        pending_ = false;
        game_ = nullptr;
        remove();
    });
}

void GameJournal::watchRoom(const PlayersRoom *room)
{
    if (room_)
        disconnect(room_, nullptr, this, nullptr);
    room_ = room;
    if (room)
        connect(room, &PlayersRoom::changed, this, &GameJournal::changed);
    changed();
}

void GameJournal::changed()
{
    // One write for all the changes of one event: a new round changes
    // thirty tiles at once.
    if (pending_)
        return;
    pending_ = true;
    QMetaObject::invokeMethod(this, &GameJournal::writeNow, Qt::QueuedConnection);
}

void GameJournal::writeNow()
{
    pending_ = false;
    if (!game_ || game_->settings().Round > 3)
        return;
    QDir().mkpath(QFileInfo(path_).absolutePath());
    JournalRecord record = CaptureJournal(*game_);
    addRoom(record, room_);
    if (const FileError e = WriteFileReplacing(path_, WriteJournal(record)))
        emit writeFailed(e.description);
}

bool GameJournal::exists() const
{
    return QFileInfo(path_).isFile();
}

std::optional<JournalRecord> GameJournal::read() const
{
    QFile f(path_);
    if (!f.open(QIODevice::ReadOnly) || f.size() > kLargest)
        return std::nullopt;
    return ReadJournal(f.read(kLargest + 1));
}

ResumeOffer GameJournal::offer()
{
    ResumeOffer offer;
    if (!exists())
        return offer;
    const std::optional<JournalRecord> record = read();
    if (!record) {
        // Damaged or not ours: out of the way, and the game starts as ever.
        setAside();
        return offer;
    }
    if (!JournalEarned(*record)) {
        remove();
        return offer;
    }
    const QString fingerprint = SetFingerprint(record->questionFile);
    if (fingerprint.isEmpty() || fingerprint != record->fingerprint) {
        remove();
        offer.kind = ResumeOffer::Gone;
        offer.text = tr("The question set %1 has changed or is gone since the game was interrupted, so the game "
                        "cannot be resumed.")
                         .arg(record->questionFile);
        return offer;
    }
    offer.kind = ResumeOffer::Resume;
    offer.record = *record;
    offer.text = tr("Resume the interrupted game of %1?\r\n\r\n%2")
                     .arg(record->description, record->round >= 3 ? tr("The final") : tr("Round %1").arg(record->round));
    for (int team = 0; team < record->teams; ++team)
        offer.text += QStringLiteral("\r\n") + TeamName(team, record->names[size_t(team)]) + QStringLiteral(": $ ") +
                      FormatScore(record->scores[size_t(team)]);
    return offer;
}

void GameJournal::remove()
{
    QFile::remove(path_);
}

QString GameJournal::setAside()
{
    QString aside = path_ + QStringLiteral(".damaged");
    for (int n = 2; QFileInfo::exists(aside) && n < 1000; ++n)
        aside = path_ + QStringLiteral(".damaged-%1").arg(n);
    if (!QFile::rename(path_, aside))
        QFile::remove(path_); // never ask about it again
    return aside;
}
