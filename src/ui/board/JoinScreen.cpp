#include "JoinScreen.h"

#include "game/BuzzIn.h"
#include "game/GameRules.h"
#include "ui/controls/FormLook.h"

#include <QPainter>

namespace {

const QColor kGold(255, 204, 51);

// Text in a box, with the shadow the board's captions have.
void shadowed(QPainter &p, const QRectF &box, const QString &text, const QColor &color, int flags)
{
    const qreal shadow = qMax<qreal>(1, p.fontMetrics().height() / 16.0);
    p.setPen(QColor(0, 0, 0, 200));
    p.drawText(box.translated(shadow, shadow), flags, text);
    p.setPen(color);
    p.drawText(box, flags, text);
}

// The largest size (down to 8 points) at which text fits the width.
QFont fitted(qreal points, const QString &text, qreal width)
{
    QFont font = ArialFont(points, true);
    while (QFontMetricsF(font).horizontalAdvance(text) > width && font.pointSizeF() > 8)
        font.setPointSizeF(font.pointSizeF() * 0.92);
    return font;
}

} // namespace

JoinScreen::JoinScreen(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("JoinScreen"));
    hide();
}

void JoinScreen::set(const QString &address, const QString &roomCode)
{
    address_ = address;
    code_ = roomCode;
    qr_ = MakeQrCode(address.toUtf8());
    update();
}

void JoinScreen::setJoined(int players)
{
    joined_ = players;
    update();
}

void JoinScreen::mousePressEvent(QMouseEvent *)
{
    emit pressed();
}

void JoinScreen::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(rect(), QColor(6, 14, 52, 240));
    const qreal h = height(), w = width(), unit = qMin(h, w * 0.75) / 20.0;
    // The code on the left, as large as the height allows, in a white frame
    // four modules wide (the quiet zone readers need).
    const qreal side = qMin(h * 0.72, w * 0.42);
    const QRectF frame(w * 0.06, (h - side) / 2, side, side);
    p.fillRect(frame, Qt::white);
    if (qr_.size > 0) {
        const qreal module = side / (qr_.size + 8);
        p.setPen(Qt::NoPen);
        p.setBrush(Qt::black);
        for (int y = 0; y < qr_.size; ++y) {
            for (int x = 0; x < qr_.size; ++x) {
                if (qr_.at(x, y))
                    p.drawRect(QRectF(frame.left() + (x + 4) * module, frame.top() + (y + 4) * module, module + 0.5, module + 0.5));
            }
        }
    }
    const QRectF text(frame.right() + w * 0.05, frame.top(), w - frame.right() - w * 0.09, side);
    const QString title = tr("Play on your phone");
    p.setFont(fitted(unit * 1.1, title, text.width()));
    shadowed(p, QRectF(text.left(), text.top(), text.width(), text.height() * 0.16), title,
             kGold, Qt::AlignLeft | Qt::AlignVCenter);
    p.setFont(ArialFont(unit * 0.55, false));
    shadowed(p, QRectF(text.left(), text.top() + text.height() * 0.18, text.width(), text.height() * 0.1),
             tr("Scan the code, or open:"), Qt::white, Qt::AlignLeft | Qt::AlignVCenter);
    p.setFont(fitted(unit * 0.9, address_, text.width()));
    shadowed(p, QRectF(text.left(), text.top() + text.height() * 0.28, text.width(), text.height() * 0.14), address_,
             Qt::white, Qt::AlignLeft | Qt::AlignVCenter);
    p.setFont(ArialFont(unit * 0.55, false));
    shadowed(p, QRectF(text.left(), text.top() + text.height() * 0.5, text.width(), text.height() * 0.1),
             tr("Room code:"), Qt::white, Qt::AlignLeft | Qt::AlignVCenter);
    QFont code = fitted(unit * 2.6, code_, text.width());
    code.setLetterSpacing(QFont::PercentageSpacing, 115);
    p.setFont(code);
    shadowed(p, QRectF(text.left(), text.top() + text.height() * 0.6, text.width(), text.height() * 0.26), code_, kGold,
             Qt::AlignLeft | Qt::AlignVCenter);
    p.setFont(ArialFont(unit * 0.5, false));
    shadowed(p, QRectF(text.left(), text.top() + text.height() * 0.88, text.width(), text.height() * 0.12),
             joined_ == 1 ? tr("1 player has joined") : tr("%1 players have joined").arg(joined_),
             Qt::white, Qt::AlignLeft | Qt::AlignVCenter);
}

RevealPanel::RevealPanel(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("RevealPanel"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void RevealPanel::show(int team, const QString &name, const QString &response, qint64 wager, bool right)
{
    team_ = team;
    name_ = name;
    response_ = response;
    wager_ = wager;
    right_ = right;
    QWidget::show();
    raise();
    repaint();
}

void RevealPanel::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(TeamColor(team_), height() / 60.0));
    p.setBrush(QColor(6, 14, 52, 250));
    const qreal r = height() / 20.0;
    p.drawRoundedRect(QRectF(rect()).adjusted(r / 2, r / 2, -r / 2, -r / 2), r, r);
    const qreal w = width() * 0.9, x = width() * 0.05, h = height();
    p.setFont(fitted(h * 0.13, name_, w));
    shadowed(p, QRectF(x, h * 0.06, w, h * 0.24), name_, TeamColor(team_), Qt::AlignCenter);
    const QString said = response_.isEmpty() ? tr("(no response)") : tr("“%1”").arg(response_);
    p.setFont(ArialFont(h * 0.07, true));
    shadowed(p, QRectF(x, h * 0.32, w, h * 0.34), said, Qt::white, Qt::AlignCenter | Qt::TextWordWrap);
    p.setFont(ArialFont(h * 0.08, true));
    shadowed(p, QRectF(x, h * 0.68, w * 0.5, h * 0.24), QStringLiteral("$ ") + FormatScore(qint32(wager_)), kGold,
             Qt::AlignCenter);
    shadowed(p, QRectF(x + w * 0.5, h * 0.68, w * 0.5, h * 0.24), right_ ? tr("Right!") : tr("Wrong"),
             right_ ? QColor(120, 255, 140) : QColor(255, 110, 110), Qt::AlignCenter);
}
