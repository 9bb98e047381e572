#include "MsgBox.h"

namespace {

MsgBoxHandler *installed = nullptr;

// The first button of a set: what a host pressing Enter would choose.
MsgBoxResult firstButton(int style)
{
    switch (style & MsgBoxStyle::ButtonsMask) {
    case MsgBoxStyle::AbortRetryIgnore: return MsgBoxResult::Abort;
    case MsgBoxStyle::YesNoCancel:
    case MsgBoxStyle::YesNo: return MsgBoxResult::Yes;
    case MsgBoxStyle::RetryCancel: return MsgBoxResult::Retry;
    default: return MsgBoxResult::OK;
    }
}

} // namespace

QString applicationTitle()
{
    return QStringLiteral("PLOV(tm) Quizzarr!");
}

MsgBoxResult MsgBox(const QString &text, int style, const QString &caption, QWidget *owner)
{
    // The rules may ask before any screen exists to show a box (a tool, a
    // test without a script): the first button stands.
    if (!installed)
        return firstButton(style);
    return installed->show(text, style, caption.isEmpty() ? applicationTitle() : caption, owner);
}

void installMsgBoxHandler(MsgBoxHandler *handler)
{
    installed = handler;
}
