// Message boxes for tests: every box is recorded, and answered from a
// script (or with its first button when the script has run out).
#pragma once

#include "platform/MsgBox.h"

#include <QList>
#include <QString>

#include <functional>

struct ShownBox {
    QString text;
    int style = 0;
    QString caption;
    QWidget *owner = nullptr;
};

class ScriptedMsgBox final : public MsgBoxHandler {
public:
    // Installs itself; uninstalls on destruction.
    ScriptedMsgBox();
    ~ScriptedMsgBox() override;

    MsgBoxResult show(const QString &text, int style, const QString &caption, QWidget *owner) override;

    QList<ShownBox> shown;
    QList<MsgBoxResult> answers;
    // Runs while a box is "up", as a host's action would.
    std::function<void(const ShownBox &)> whileShown;
};
