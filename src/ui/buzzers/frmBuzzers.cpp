#include "frmBuzzers.h"

#include "game/BuzzerInputs.h"
#include "game/BuzzIn.h"
#include "game/GameRules.h"
#include "game/GameState.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace {

const char *const kStyle = R"(
QWidget#frmBuzzers { background: #0c1c5c; }
QLabel { color: white; }
QLabel#lblStatus { color: #ffcc33; font-weight: bold; }
QPushButton { background: #1d3aa8; color: white; border: 1px solid #6d86e8; border-radius: 4px; padding: 4px 10px; }
QPushButton:disabled { background: #14224f; color: #6b7aa8; border-color: #2a3a70; }
)";

} // namespace

frmBuzzers::frmBuzzers(BuzzerInputs &inputs, const GameState &state, QWidget *parent)
    : QWidget(parent, Qt::Window), inputs_(inputs), state_(state)
{
    setObjectName(QStringLiteral("frmBuzzers"));
    setWindowTitle(tr("Buzzers"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QLatin1String(kStyle) + QStringLiteral("QWidget { font-family: Arial; font-size: 11pt; }"));
    auto *layout = new QGridLayout(this);
    auto *intro = new QLabel(tr("Press Learn beside a team, then press that team's buzzer: a key of a "
                                "buzzer box or of the keyboard, or a button of a joystick or game "
                                "controller. The game's own keys (the digits, BackSpace, Space, + and "
                                "−) cannot be buzzers."),
                             this);
    intro->setWordWrap(true);
    layout->addWidget(intro, 0, 0, 1, 4);
    lblStatus = new QLabel(this);
    lblStatus->setObjectName(QStringLiteral("lblStatus"));
    lblStatus->setWordWrap(true);
    layout->addWidget(lblStatus, 1, 0, 1, 4);
    for (int t = 0; t < 10; ++t) {
        lblTeam[size_t(t)] = new QLabel(this);
        lblBuzzer[size_t(t)] = new QLabel(this);
        lblBuzzer[size_t(t)]->setObjectName(QStringLiteral("lblBuzzer(%1)").arg(t));
        cmdLearn[size_t(t)] = new QPushButton(tr("Learn"), this);
        cmdLearn[size_t(t)]->setObjectName(QStringLiteral("cmdLearn(%1)").arg(t));
        cmdClear[size_t(t)] = new QPushButton(tr("Clear"), this);
        cmdClear[size_t(t)]->setObjectName(QStringLiteral("cmdClear(%1)").arg(t));
        // The buttons never take the focus: a buzzer box's key must reach
        // the learning, not press a button.
        for (QPushButton *b : {cmdLearn[size_t(t)], cmdClear[size_t(t)]})
            b->setFocusPolicy(Qt::NoFocus);
        connect(cmdLearn[size_t(t)], &QPushButton::clicked, this, [this, t] {
            refusal_.clear();
            inputs_.learn(inputs_.learning() == t ? -1 : t);
        });
        connect(cmdClear[size_t(t)], &QPushButton::clicked, this, [this, t] { inputs_.forget(t); });
        layout->addWidget(lblTeam[size_t(t)], 2 + t, 0);
        layout->addWidget(lblBuzzer[size_t(t)], 2 + t, 1);
        layout->addWidget(cmdLearn[size_t(t)], 2 + t, 2);
        layout->addWidget(cmdClear[size_t(t)], 2 + t, 3);
    }
    layout->setColumnStretch(1, 1);
    lblJoysticks = new QLabel(this);
    lblJoysticks->setObjectName(QStringLiteral("lblJoysticks"));
    lblJoysticks->setWordWrap(true);
    layout->addWidget(lblJoysticks, 12, 0, 1, 4);
    auto *close = new QPushButton(tr("Close"), this);
    close->setFocusPolicy(Qt::NoFocus);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    layout->addWidget(close, 13, 3);
    connect(&inputs_, &BuzzerInputs::changed, this, &frmBuzzers::refresh);
    connect(&inputs_, &BuzzerInputs::refused, this, [this](const QString &why) {
        refusal_ = why;
        refresh();
    });
    resize(620, 560);
    refresh();
}

void frmBuzzers::refresh()
{
    const int learning = inputs_.learning();
    lblStatus->setText(learning >= 0 ? (refusal_.isEmpty() ? QString() : refusal_ + QLatin1Char(' ')) +
                                           tr("Press %1's buzzer now (Escape: stop).")
                                               .arg(TeamName(learning, state_.TeamNames[size_t(learning)]))
                                     : (inputs_.settings().buzzIn ? tr("Buzz-in is on.") : tr("Buzz-in is off.")));
    for (int t = 0; t < 10; ++t) {
        lblTeam[size_t(t)]->setText(TeamName(t, state_.TeamNames[size_t(t)]));
        lblTeam[size_t(t)]->setStyleSheet(QStringLiteral("color: %1; font-weight: bold;").arg(TeamColor(t).name()));
        const BuzzerInput &b = inputs_.settings().teams[size_t(t)];
        lblBuzzer[size_t(t)]->setText(t == learning ? tr("waiting for a press…")
                                      : b.kind == BuzzerInput::None ? tr("none") : b.describe());
        cmdLearn[size_t(t)]->setText(t == learning ? tr("Stop") : tr("Learn"));
        cmdClear[size_t(t)]->setEnabled(b.kind != BuzzerInput::None);
    }
    const QStringList joysticks = inputs_.joysticks();
    lblJoysticks->setText(!inputs_.joysticksAvailable() && !inputs_.joysticksWhy().isEmpty()
                              ? tr("Joysticks cannot be read: %1.").arg(inputs_.joysticksWhy())
                          : joysticks.isEmpty() ? tr("No joystick or game controller is plugged in.")
                                                : tr("Plugged in: %1").arg(joysticks.join(QStringLiteral(", "))));
}

void frmBuzzers::closeEvent(QCloseEvent *event)
{
    inputs_.learn(-1);
    event->accept();
}
