// The console's part for phones: turning them on, the join screen, the
// players who joined, a daily double's wager and the final's wagers and
// responses with the host's judgement and the reveal.

#include "frmConsole.h"

#include "game/BoardGame.h"
#include "game/BuzzIn.h"
#include "game/GameRules.h"
#include "game/GameState.h"
#include "game/TeamAnswers.h"
#include "players/Phones.h"
#include "ui/board/frmMain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>

namespace {

QPushButton *button(const QString &text, const QString &name, QWidget *parent)
{
    auto *b = new QPushButton(text, parent);
    b->setObjectName(name);
    b->setFocusPolicy(Qt::NoFocus);
    return b;
}

} // namespace

QWidget *frmConsole::createPhonesPanel()
{
    auto *panel = new QWidget(this);
    auto *layout = new QGridLayout(panel);
    layout->setContentsMargins(0, 4, 0, 0);
    chkPhones = new QCheckBox(tr("Phones"), panel);
    chkPhones->setObjectName(QStringLiteral("chkPhones"));
    chkPhones->setFocusPolicy(Qt::NoFocus);
    connect(chkPhones, &QCheckBox::clicked, this, [this](bool on) {
        if (turnPhonesOn_)
            turnPhonesOn_(on);
        refresh();
    });
    cmdJoinScreen = button(tr("Join screen (J)"), QStringLiteral("cmdJoinScreen"), panel);
    connect(cmdJoinScreen, &QPushButton::clicked, this, [this] {
        if (board_)
            board_->showJoinScreen(!board_->joinScreenShown());
    });
    lblRoom = new QLabel(panel);
    lblRoom->setObjectName(QStringLiteral("lblRoom"));
    lstPlayers = new QListWidget(panel);
    lstPlayers->setObjectName(QStringLiteral("lstPlayers"));
    lstPlayers->setMaximumHeight(72);
    cmdRemovePlayer = button(tr("Remove player"), QStringLiteral("cmdRemovePlayer"), panel);
    connect(cmdRemovePlayer, &QPushButton::clicked, this, [this] {
        const QListWidgetItem *item = lstPlayers->currentItem();
        if (item && phones_ && phones_->server())
            phones_->server()->removePlayer(item->data(Qt::UserRole).toString());
        refresh();
    });
    layout->addWidget(chkPhones, 0, 0);
    layout->addWidget(cmdJoinScreen, 0, 1);
    layout->addWidget(lblRoom, 0, 2);
    layout->addWidget(lstPlayers, 1, 0, 1, 3);
    layout->addWidget(cmdRemovePlayer, 2, 2, Qt::AlignRight);
    layout->setColumnStretch(2, 1);
    return panel;
}

void frmConsole::setPhones(Phones *phones, std::function<void(bool)> turnOn)
{
    phones_ = phones;
    turnPhonesOn_ = std::move(turnOn);
    if (phones)
        connect(phones, &Phones::changed, this, &frmConsole::refresh);
    refresh();
}

void frmConsole::refreshPhones()
{
    const bool on = phones_ && phones_->isOn();
    chkPhones->setEnabled(phones_);
    if (chkPhones->isChecked() != on)
        chkPhones->setChecked(on);
    cmdJoinScreen->setVisible(on);
    cmdJoinScreen->setEnabled(board_);
    lblRoom->setVisible(on);
    // The list while no clue is open: during one the host has other cares.
    const bool between = !board_ || !board_->game().openClue().open;
    lstPlayers->setVisible(on && between);
    cmdRemovePlayer->setVisible(on && between);
    if (!on)
        return;
    lblRoom->setText(tr("Room %1 — %2").arg(phones_->room()->code(), phones_->address()));
    // The list as it is, keeping the host's choice.
    QStringList rows;
    const QList<PhonePlayer> &players = phones_->room()->players();
    for (const PhonePlayer &p : players)
        rows << TeamName(p.team, state_.TeamNames[size_t(p.team)]) + QStringLiteral(": ") + p.name;
    QStringList shown;
    for (int i = 0; i < lstPlayers->count(); ++i)
        shown << lstPlayers->item(i)->text();
    if (shown != rows) {
        const QString chosen = lstPlayers->currentItem() ? lstPlayers->currentItem()->data(Qt::UserRole).toString() : QString();
        lstPlayers->clear();
        for (qsizetype i = 0; i < players.size(); ++i) {
            auto *item = new QListWidgetItem(rows[i], lstPlayers);
            item->setData(Qt::UserRole, players[i].token);
            if (players[i].token == chosen)
                lstPlayers->setCurrentItem(item);
        }
    }
    cmdRemovePlayer->setEnabled(lstPlayers->currentItem());
}

QWidget *frmConsole::createDailyDoublePanel()
{
    pnlDailyDouble = new QWidget(this);
    auto *layout = new QHBoxLayout(pnlDailyDouble);
    layout->setContentsMargins(0, 4, 0, 0);
    lblDailyDouble = new QLabel(tr("Daily double for:"), pnlDailyDouble);
    cmbDailyDouble = new QComboBox(pnlDailyDouble);
    cmbDailyDouble->setObjectName(QStringLiteral("cmbDailyDouble"));
    cmbDailyDouble->setFocusPolicy(Qt::NoFocus);
    connect(cmbDailyDouble, &QComboBox::activated, this, [this](int index) {
        if (board_)
            board_->answers().setDailyDoubleTeam(index > 0 ? std::optional<int>(index - 1) : std::nullopt);
    });
    layout->addWidget(lblDailyDouble);
    layout->addWidget(cmbDailyDouble, 1);
    return pnlDailyDouble;
}

QWidget *frmConsole::createAnswersPanel()
{
    pnlAnswers = new QWidget(this);
    auto *layout = new QGridLayout(pnlAnswers);
    auto *title = new QLabel(tr("The final: each team's wager and response"), pnlAnswers);
    title->setObjectName(QStringLiteral("lblFinalAnswers"));
    layout->addWidget(title, 0, 0, 1, 3);
    for (int t = 0; t < 10; ++t) {
        lblAnswer[size_t(t)] = new QLabel(pnlAnswers);
        lblAnswer[size_t(t)]->setTextFormat(Qt::PlainText); // what a phone typed is text, never markup
        lblAnswer[size_t(t)]->setWordWrap(true);
        lblAnswer[size_t(t)]->setObjectName(QStringLiteral("lblAnswer(%1)").arg(t));
        cmdAnswerRight[size_t(t)] = button(tr("Right"), QStringLiteral("cmdAnswerRight(%1)").arg(t), pnlAnswers);
        cmdAnswerWrong[size_t(t)] = button(tr("Wrong"), QStringLiteral("cmdAnswerWrong(%1)").arg(t), pnlAnswers);
        for (bool right : {true, false}) {
            connect(right ? cmdAnswerRight[size_t(t)] : cmdAnswerWrong[size_t(t)], &QPushButton::clicked, this, [this, t, right] {
                if (board_)
                    board_->answers().judge(t, right);
                refresh();
            });
        }
        layout->addWidget(lblAnswer[size_t(t)], 1 + t, 0);
        layout->addWidget(cmdAnswerRight[size_t(t)], 1 + t, 1);
        layout->addWidget(cmdAnswerWrong[size_t(t)], 1 + t, 2);
    }
    cmdReveal = button(tr("Reveal the next team"), QStringLiteral("cmdReveal"), pnlAnswers);
    connect(cmdReveal, &QPushButton::clicked, this, [this] {
        if (board_)
            board_->run([this](BoardGame &) { board_->answers().revealNext(); });
        refresh();
    });
    layout->addWidget(cmdReveal, 11, 0, 1, 3);
    layout->setColumnStretch(0, 1);
    layout->setRowStretch(12, 1);
    return pnlAnswers;
}

void frmConsole::refreshAnswers()
{
    TeamAnswers *answers = board_ ? &board_->answers() : nullptr;
    const OpenClue clue = board_ ? board_->game().openClue() : OpenClue();
    const bool daily = answers && clue.open && clue.dailyDouble;
    const bool final = answers && clue.open && clue.final && clue.step != ClueStep::FinalCategory;
    pnlDailyDouble->setVisible(daily);
    stkBoard->setCurrentWidget(final ? pnlAnswers : stkBoard->widget(0));
    if (!daily && !final)
        return;
    const int teams = board_->game().state().Teams;
    if (daily) {
        QStringList items{tr("(choose the team)")};
        for (int t = 0; t < teams; ++t)
            items << TeamName(t, state_.TeamNames[size_t(t)]);
        if (cmbDailyDouble->count() != items.size() || cmbDailyDouble->itemText(1) != items.value(1)) {
            cmbDailyDouble->clear();
            cmbDailyDouble->addItems(items);
        }
        const std::optional<int> team = answers->dailyDoubleTeam();
        cmbDailyDouble->setCurrentIndex(team ? *team + 1 : 0);
        // A wager from the team's phone becomes the amount to give or take.
        const std::optional<qint64> wager = team ? answers->answer(*team).wager : std::nullopt;
        lblDailyDouble->setText(wager ? tr("Daily double for (wager $ %1):").arg(FormatScore(qint32(*wager)))
                                      : tr("Daily double for:"));
        if (wager && *wager != wagerShown_)
            spnAmount->setValue(int(*wager));
        wagerShown_ = wager.value_or(-1);
    }
    for (int t = 0; t < 10; ++t) {
        const bool row = final && t < teams;
        lblAnswer[size_t(t)]->setVisible(row);
        cmdAnswerRight[size_t(t)]->setVisible(row);
        cmdAnswerWrong[size_t(t)]->setVisible(row);
        if (!row)
            continue;
        const TeamAnswers::Answer &a = answers->answer(t);
        QString text = TeamName(t, state_.TeamNames[size_t(t)]) + QStringLiteral(": ") +
                       (a.wager ? QStringLiteral("$ ") + FormatScore(qint32(*a.wager)) : tr("no wager"));
        if (a.response)
            text += tr(" — “%1”").arg(*a.response);
        if (a.right)
            text += *a.right ? QStringLiteral("  \u2714") : QStringLiteral("  \u2718");
        if (a.revealed)
            text += tr(" (shown)");
        lblAnswer[size_t(t)]->setText(text);
        cmdAnswerRight[size_t(t)]->setEnabled(a.wager && !a.revealed);
        cmdAnswerWrong[size_t(t)]->setEnabled(a.wager && !a.revealed);
    }
    cmdReveal->setVisible(final);
    cmdReveal->setEnabled(answers->canReveal());
}
