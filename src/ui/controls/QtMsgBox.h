// Message boxes as Qt shows them: the handler the game installs at start-up.
#pragma once

#include "platform/MsgBox.h"

class QtMsgBox final : public MsgBoxHandler {
public:
    MsgBoxResult show(const QString &text, int style, const QString &caption, QWidget *owner) override;
};
