#include "CommandButton.h"

#include <QStyleOptionButton>
#include <QStylePainter>

CommandButton::CommandButton(const QString &caption, QWidget *parent) : QPushButton(caption, parent) {}

void CommandButton::paintEvent(QPaintEvent *)
{
    QStylePainter p(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const QString caption = option.text;
    option.text.clear();
    p.drawControl(QStyle::CE_PushButton, option);
    const QRect inside = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this).adjusted(2, 0, -2, 0);
    p.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
    p.drawText(inside, Qt::AlignCenter | Qt::TextWordWrap, caption);
}
