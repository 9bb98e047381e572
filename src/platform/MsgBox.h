// Message boxes, as the game's screens use them: a text, a button set with
// an icon, a caption; the answer is the button pressed. Tests install a
// handler that records the boxes and answers them from a script.
#pragma once

#include <QString>

class QWidget;

namespace MsgBoxStyle {
enum : int {
    OKOnly = 0,
    OKCancel = 1,
    AbortRetryIgnore = 2,
    YesNoCancel = 3,
    YesNo = 4,
    RetryCancel = 5,
    Critical = 16,
    Question = 32,
    Exclamation = 48,
    Information = 64,
};
constexpr int ButtonsMask = 0x0f;
constexpr int IconMask = 0x70;
}

enum class MsgBoxResult : int { OK = 1, Cancel = 2, Abort = 3, Retry = 4, Ignore = 5, Yes = 6, No = 7 };

// The caption of boxes that give none of their own.
QString applicationTitle();

class MsgBoxHandler {
public:
    virtual ~MsgBoxHandler() = default;
    // owner: the window the box belongs to; nullptr: the active one.
    virtual MsgBoxResult show(const QString &text, int style, const QString &caption, QWidget *owner) = 0;
};

// Shows a box (modal) and returns the button pressed. An empty caption
// shows the application title. The box belongs to owner, when given (the
// host's console asks on the host's screen, not the class's).
MsgBoxResult MsgBox(const QString &text, int style = MsgBoxStyle::OKOnly, const QString &caption = QString(),
                    QWidget *owner = nullptr);

// Installs a handler (not owned). The game installs Qt's boxes at start-up;
// without a handler every box answers with its first button.
void installMsgBoxHandler(MsgBoxHandler *handler);
