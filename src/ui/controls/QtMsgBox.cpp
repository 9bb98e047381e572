// The real message boxes, installed at start-up.
#include "QtMsgBox.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

#include <utility>
#include <vector>

namespace {

using Buttons = std::vector<std::pair<QMessageBox::StandardButton, MsgBoxResult>>;

Buttons buttonsFor(int style)
{
    using B = QMessageBox;
    using R = MsgBoxResult;
    switch (style & MsgBoxStyle::ButtonsMask) {
    case MsgBoxStyle::OKCancel: return {{B::Ok, R::OK}, {B::Cancel, R::Cancel}};
    case MsgBoxStyle::AbortRetryIgnore: return {{B::Abort, R::Abort}, {B::Retry, R::Retry}, {B::Ignore, R::Ignore}};
    case MsgBoxStyle::YesNoCancel: return {{B::Yes, R::Yes}, {B::No, R::No}, {B::Cancel, R::Cancel}};
    case MsgBoxStyle::YesNo: return {{B::Yes, R::Yes}, {B::No, R::No}};
    case MsgBoxStyle::RetryCancel: return {{B::Retry, R::Retry}, {B::Cancel, R::Cancel}};
    default: return {{B::Ok, R::OK}};
    }
}

QMessageBox::Icon iconFor(int style)
{
    switch (style & MsgBoxStyle::IconMask) {
    case MsgBoxStyle::Critical: return QMessageBox::Critical;
    case MsgBoxStyle::Question: return QMessageBox::Question;
    case MsgBoxStyle::Exclamation: return QMessageBox::Warning;
    case MsgBoxStyle::Information: return QMessageBox::Information;
    default: return QMessageBox::NoIcon;
    }
}

// Answer to a box closed without a button (Escape, the window's close box):
// the safe choice, as a host would expect.
MsgBoxResult escapeAnswer(const Buttons &buttons)
{
    for (const auto &[button, result] : buttons) {
        if (result == MsgBoxResult::Cancel || result == MsgBoxResult::No)
            return result;
    }
    return buttons.front().second;
}

// Boxes are read by a whole room, often from a projector: the text grows
// with the screen.
QFont readableFont()
{
    QFont font(QStringLiteral("Arial"));
    const QScreen *screen = QGuiApplication::primaryScreen();
    const int height = screen ? screen->size().height() : 768;
    font.setPointSizeF(qBound(12.0, height / 48.0, 48.0));
    return font;
}


} // namespace

MsgBoxResult QtMsgBox::show(const QString &text, int style, const QString &caption, QWidget *owner)
{
    const Buttons buttons = buttonsFor(style);
    QMessageBox box(iconFor(style), caption, text, QMessageBox::NoButton,
                    owner ? owner : QApplication::activeWindow());
    box.setFont(readableFont());
    for (const auto &[button, result] : buttons)
        box.addButton(button);
    box.setDefaultButton(buttons.front().first);
    box.exec();
    const QAbstractButton *clicked = box.clickedButton();
    for (const auto &[button, result] : buttons) {
        if (clicked && clicked == box.button(button))
            return result;
    }
    return escapeAnswer(buttons);
}
