// A stage for the real-browser test (browser_players.py): the players'
// server on loopback, following a game of three teams on a recording board,
// moved on by commands on its input and telling what the phones did.
//
//   prints:  ready PORT ROOM | first TEAM | wager TEAM AMOUNT | response TEAM TEXT
//   reads:   clue (a clue, its buzzers open) | final (the final's category)
//            | finalclue (its clue) | lock (its response) | quit

#include "FakeSoundControl.h"
#include "RecordingBoardView.h"
#include "TestSets.h"

#include "game/BoardGame.h"
#include "game/BuzzIn.h"
#include "game/GameState.h"
#include "game/PlayersRoom.h"
#include "game/TeamAnswers.h"
#include "players/PlayersServer.h"
#include "shell/Libraries.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTemporaryDir>
#include <QTextStream>

#include <cstdio>
#include <unistd.h>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QTemporaryDir dir;
    GameState settings;
    Libraries libraries;
    settings.QuestionFile = writeFile(dir.filePath(QStringLiteral("game.QZ2")),
                                      setText({"A", "B", "C", "D", "E", "F"}, {}, "Seas"));
    RecordingBoardView view;
    BoardGame game(view, settings, libraries);
    view.game = &game;
    BuzzIn buzzIn(game);
    buzzIn.setEnabled(true);
    TeamAnswers answers(game);
    game.setTeams(3);
    game.start();
    PlayersRoom room;
    PlayersServer server(room, settings);
    const quint16 port = server.start(QHostAddress::LocalHost);
    server.attach(&game, &buzzIn, &answers);
    QTextStream out(stdout);
    const auto say = [&](const QString &line) {
        out << line << Qt::endl;
    };
    say(QStringLiteral("ready %1 %2").arg(port).arg(room.code()));
    QObject::connect(&buzzIn, &BuzzIn::turn, [&](int team) { say(QStringLiteral("first %1").arg(team)); });
    QObject::connect(&answers, &TeamAnswers::changed, [&] {
        for (int t = 0; t < 3; ++t) {
            const TeamAnswers::Answer &a = answers.answer(t);
            if (a.wager)
                say(QStringLiteral("wager %1 %2").arg(t).arg(*a.wager));
            if (a.response)
                say(QStringLiteral("response %1 %2").arg(t).arg(*a.response));
        }
    });
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, [&] {
        char line[256] = {};
        if (!std::fgets(line, sizeof line, stdin)) {
            app.quit();
            return;
        }
        const QString command = QString::fromLatin1(line).trimmed();
        if (command == QStringLiteral("clue")) {
            int tile = 0;
            while (tile == settings.DailyDouble1 || tile == settings.DailyDouble2)
                ++tile;
            game.TilePress(tile, true, false);
            if (!buzzIn.isOpen())
                buzzIn.toggleOpen();
        } else if (command == QStringLiteral("final")) {
            for (int i = 0; i < 2 && game.openClue().open; ++i)
                game.AnswerScreenPress();
            game.KeyDown(QLatin1Char('N'), -1, 7);
            game.AnswerScreenPress();
        } else if (command == QStringLiteral("finalclue") || command == QStringLiteral("lock")) {
            game.AnswerScreenPress();
        } else if (command == QStringLiteral("quit")) {
            app.quit();
        }
        say(QStringLiteral("done ") + command);
    });
    return app.exec();
}
