// What every test through the home screen needs: a program folder and a
// documents folder of its own, scripted boxes and dialogs, the fake clock
// (and the fake sound library when asked), no journal left from another
// test; the home screen opened, games started and ended the host's way.
#pragma once

#include "FakeClock.h"
#include "FakeSoundControl.h"
#include "RunMode.h"
#include "ScriptedFileDialog.h"
#include "ScriptedMsgBox.h"
#include "TestFolder.h"
#include "TestSets.h"

#include "game/GameJournal.h"
#include "game/GameState.h"
#include "platform/ModuleFileName.h"
#include "platform/SpecialFolders.h"
#include "shell/Libraries.h"
#include "shell/basDetectDevEnv.h"
#include "ui/board/frmMain.h"
#include "ui/console/frmConsole.h"
#include "ui/controls/CommandButton.h"
#include "ui/select/frmSelect.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QListWidget>
#include <QPointer>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

inline const Qt::KeyboardModifiers kAllThreeKeys = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;

inline void sendKey(QWidget *w, int key, Qt::KeyboardModifiers m = Qt::NoModifier, quint32 scanCode = 0)
{
    QKeyEvent e(QEvent::KeyPress, key, m, scanCode, 0, 0);
    QCoreApplication::sendEvent(w, &e);
}

class HomeFixture {
protected:
    std::unique_ptr<TestFolder> program_;
    std::unique_ptr<QTemporaryDir> documents_;
    std::unique_ptr<FakeClock> clock_;
    std::unique_ptr<ScriptedMsgBox> boxes_;
    std::unique_ptr<ScriptedFileDialog> dialogs_;
    std::unique_ptr<FakeSoundControl> sound_;
    QPointer<frmSelect> home_;
    GameState state_;
    Libraries libraries_;

    void setUp(quint32 seed = 1, bool sound = false)
    {
        QFile::remove(GameJournal::defaultPath());
        state_ = GameState{};
        program_ = std::make_unique<TestFolder>();
        documents_ = std::make_unique<QTemporaryDir>();
        SpecialFolders::overridePath(SpecialFolders::kDocuments, documents_->path());
        // The dialogs make a missing desktop folder: never the real one.
        SpecialFolders::overridePath(SpecialFolders::kDesktop, documents_->filePath(QStringLiteral("Desktop")));
        clock_ = std::make_unique<FakeClock>(seed);
        boxes_ = std::make_unique<ScriptedMsgBox>();
        dialogs_ = std::make_unique<ScriptedFileDialog>();
        if (sound) {
            sound_ = std::make_unique<FakeSoundControl>(libraries_);
            clock_->onAdvance = [this](int ms) { sound_->advance(ms); };
        }
    }
    void tearDown()
    {
        closeAll();
        sound_.reset();
        dialogs_.reset();
        boxes_.reset();
        clock_.reset();
        SpecialFolders::overridePath(SpecialFolders::kDocuments, QString());
        SpecialFolders::overridePath(SpecialFolders::kDesktop, QString());
        documents_.reset();
        program_.reset();
        libraries_.ShutdownLibraries();
        ModuleFileName::overridePath(QString());
        basDetectDevEnv::ForgetRunMode();
        ForceGameMode(false);
        QFile::remove(GameJournal::defaultPath());
    }
    // The screens gone without a word, as a crash leaves them.
    void closeAll()
    {
        if (home_)
            delete home_->board();
        delete home_.data();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QString docs() const { return documents_->path() + QLatin1Char('/'); }
    void writeDoc(const QString &name, const QByteArray &bytes) { writeFile(docs() + name, bytes); }

    frmSelect *openHome(bool show = true)
    {
        home_ = new frmSelect(state_, libraries_);
        if (show)
            home_->show();
        return home_;
    }
    frmMain *board() const { return home_ ? home_->board() : nullptr; }
    frmConsole *console() const { return home_ ? home_->console() : nullptr; }
    // Picks a set and the teams, and presses Start Game.
    void startGame(int teams, int row = 0)
    {
        if (!home_)
            openHome();
        home_->cmbScore->setCurrentIndex(teams);
        home_->lstQuestions->setCurrentRow(row);
        home_->cmdStart->click();
    }
    // Ends a game the host's way and lets the board go.
    void quitGame()
    {
        sendKey(board(), Qt::Key_Q, kAllThreeKeys);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    template <class T = QPushButton>
    T *on(QWidget *form, const QString &name) const
    {
        T *w = form->findChild<T *>(name);
        if (!w)
            qFatal("no %s", qPrintable(name));
        return w;
    }
};
