#include "ScriptedMsgBox.h"

ScriptedMsgBox::ScriptedMsgBox()
{
    installMsgBoxHandler(this);
}

ScriptedMsgBox::~ScriptedMsgBox()
{
    installMsgBoxHandler(nullptr);
}

MsgBoxResult ScriptedMsgBox::show(const QString &text, int style, const QString &caption, QWidget *owner)
{
    shown.append({text, style, caption, owner});
    if (whileShown)
        whileShown(shown.last());
    if (!answers.isEmpty())
        return answers.takeFirst();
    switch (style & MsgBoxStyle::ButtonsMask) {
    case MsgBoxStyle::YesNo:
    case MsgBoxStyle::YesNoCancel: return MsgBoxResult::Yes;
    case MsgBoxStyle::RetryCancel: return MsgBoxResult::Retry;
    case MsgBoxStyle::AbortRetryIgnore: return MsgBoxResult::Abort;
    default: return MsgBoxResult::OK;
    }
}
