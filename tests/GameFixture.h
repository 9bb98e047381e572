// What every test of a game needs: a set on disk, the settings, the
// libraries with the fake sound library, the fake clock and scripted
// boxes, in the game's own mode (the three-second lock on). startRules()
// adds a game on a recording board, set up as the board sets it up.
#pragma once

#include "FakeClock.h"
#include "FakeSoundControl.h"
#include "RecordingBoardView.h"
#include "RunMode.h"
#include "ScriptedMsgBox.h"
#include "TestSets.h"

#include "game/BoardGame.h"
#include "game/GameState.h"
#include "shell/Libraries.h"

#include <QTemporaryDir>

#include <memory>

class GameFixture {
protected:
    QTemporaryDir dir_;
    GameState settings_;
    Libraries libraries_;
    std::unique_ptr<FakeClock> clock_;
    std::unique_ptr<ScriptedMsgBox> boxes_;
    std::unique_ptr<FakeSoundControl> sound_;
    std::unique_ptr<RecordingBoardView> view_;
    std::unique_ptr<BoardGame> game_;

    void setUp(quint32 seed)
    {
        settings_ = GameState{};
        clock_ = std::make_unique<FakeClock>(seed);
        boxes_ = std::make_unique<ScriptedMsgBox>();
        sound_ = std::make_unique<FakeSoundControl>(libraries_);
        clock_->onAdvance = [this](int ms) { sound_->advance(ms); };
        ForceGameMode(true);
    }
    void tearDown()
    {
        game_.reset();
        view_.reset();
        sound_.reset();
        boxes_.reset();
        clock_.reset();
        ForceGameMode(false);
    }

    QString writeSet(const QByteArray &set)
    {
        return settings_.QuestionFile = writeFile(dir_.filePath(QStringLiteral("game.QZ2")), set);
    }
    // A game as the board makes it after the home screen's checks (its load
    // has started the sound library); not yet started when told so, for
    // watchers that must see the start.
    BoardGame &startRules(const QByteArray &set, int teams, bool start = true)
    {
        libraries_.hSoundLib->InitSound(0);
        writeSet(set);
        game_.reset();
        view_ = std::make_unique<RecordingBoardView>();
        game_ = std::make_unique<BoardGame>(*view_, settings_, libraries_);
        view_->game = game_.get();
        game_->setTeams(teams);
        if (start)
            game_->start();
        return *game_;
    }

    bool isDailyDouble(int tile) const { return tile == settings_.DailyDouble1 || tile == settings_.DailyDouble2; }
    // The first tile of a column that is not a daily double.
    int plainTile(int column = 0) const
    {
        int tile = column;
        while (isDailyDouble(tile))
            tile += 6;
        return tile;
    }
};
