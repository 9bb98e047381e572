#include "GameJournal.h"

#include "BoardGame.h"
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

namespace {

const QString kFormat = QStringLiteral("quizzarr-journal");
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

bool isTileCaption(const QString &caption)
{
    if (caption.isEmpty())
        return true;
    bool ok = false;
    return caption.startsWith(QLatin1Char('$')) && caption.mid(1).toInt(&ok) > 0 && ok;
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
    if (o[QStringLiteral("format")].toString() != kFormat || o[QStringLiteral("version")].toInt() != kVersion)
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
    for (const QString &caption : r.tileCaption) {
        if (!isTileCaption(caption))
            return std::nullopt;
    }
    return r;
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
    if (const FileError e = WriteFileReplacing(path_, WriteJournal(CaptureJournal(*game_))))
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
