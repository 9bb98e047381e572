#include "frmConsole.h"

#include "game/BoardGame.h"
#include "game/BuzzIn.h"
#include "game/BuzzerInputs.h"
#include "game/GameRules.h"
#include "game/GameState.h"
#include "platform/MsgBox.h"
#include "questions/GameReads.h"
#include "ui/board/frmMain.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QScreen>
#include <QSpinBox>
#include <QStackedWidget>
#include <QStyle>
#include <QTimer>

namespace {

constexpr int kTickMs = 250;

// Deep blue like the board, gold for money, the daily doubles in red: for
// the host's eyes only.
const char *const kStyle = R"(
QWidget#frmConsole { background: #0c1c5c; }
QLabel { color: white; }
QLabel#lblRound, QLabel#lblFinalAnswers { color: #ffcc33; font-weight: bold; }
QLabel#lblClue { background: #13247a; border-radius: 6px; padding: 8px; }
QLabel#lblResponse { background: #0a3d1f; border-radius: 6px; padding: 8px; color: #c8ffd4; }
QLabel#lblWait { color: #ffcc33; font-weight: bold; }
QPushButton { background: #1d3aa8; color: white; border: 1px solid #6d86e8; border-radius: 4px; padding: 4px; }
QPushButton:disabled { background: #14224f; color: #6b7aa8; border-color: #2a3a70; }
QPushButton[tile="out"] { background: #101a40; color: #4a5a88; border-color: #1c2a5c; }
QPushButton[tile="double"] { background: #8a1020; color: #ffcc33; border-color: #ff5060; font-weight: bold; }
QPushButton[tile="in"] { color: #ffcc33; font-weight: bold; }
QPushButton#cmdNext { background: #2d8a3e; font-weight: bold; }
QPushButton#cmdNext:disabled { background: #1b3d24; }
QPushButton#cmdRight { background: #2d8a3e; font-weight: bold; }
QPushButton#cmdWrong { background: #a8283a; font-weight: bold; }
QPushButton#cmdRight:disabled, QPushButton#cmdWrong:disabled { background: #14224f; }
QCheckBox { color: white; }
QLabel#lblBuzzers { color: #ffcc33; font-weight: bold; }
QLineEdit, QSpinBox { background: white; color: black; border-radius: 3px; padding: 2px; }
)";

QPushButton *named(QPushButton *button, const QString &name)
{
    button->setObjectName(name);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

QString indexed(const char *array, int i)
{
    return QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(i);
}

// What the next press on the answer screen does, by its step.
QString nextStep(const OpenClue &clue)
{
    if (!clue.open)
        return QCoreApplication::translate("frmConsole", "No clue open");
    switch (clue.step) {
    case ClueStep::Wait: return QCoreApplication::translate("frmConsole", "Wait");
    case ClueStep::FinalCategory: return QCoreApplication::translate("frmConsole", "Show the final category");
    case ClueStep::FinalClue: return QCoreApplication::translate("frmConsole", "Show the final clue");
    case ClueStep::DailyDouble: return QCoreApplication::translate("frmConsole", "Show the clue");
    case ClueStep::Clue: return QCoreApplication::translate("frmConsole", "Reveal the response");
    case ClueStep::Response: break;
    }
    return QCoreApplication::translate("frmConsole", "Close the clue");
}

// The seconds a host waits for: the think music, else the lock.
QString secondsLeft(const OpenClue &clue)
{
    if (clue.thinkSecondsLeft > 0)
        return QCoreApplication::translate("frmConsole", "Think music: %1 s left").arg(clue.thinkSecondsLeft);
    if (clue.lockSecondsLeft > 0)
        return QCoreApplication::translate("frmConsole", "Locked: %1 s").arg(clue.lockSecondsLeft);
    return QString();
}

} // namespace

frmConsole::frmConsole(GameState &state, QWidget *parent) : QWidget(parent), state_(state)
{
    setObjectName(QStringLiteral("frmConsole"));
    setWindowTitle(tr("Host's console"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QLatin1String(kStyle));
    createControls();
    tmrRefresh = new QTimer(this);
    tmrRefresh->setInterval(kTickMs);
    connect(tmrRefresh, &QTimer::timeout, this, &frmConsole::refresh);
    resize(1024, 640);
    refresh();
}

void frmConsole::createControls()
{
    auto *top = new QGridLayout(this);
    lblRound = new QLabel(this);
    lblRound->setObjectName(QStringLiteral("lblRound"));
    cmdEndRound = named(new QPushButton(tr("End round"), this), QStringLiteral("cmdEndRound"));
    cmdEndGame = named(new QPushButton(tr("End game"), this), QStringLiteral("cmdEndGame"));
    cmdSwitch = named(new QPushButton(tr("Switch screens"), this), QStringLiteral("cmdSwitch"));
    connect(cmdEndRound, &QPushButton::clicked, this, [this] {
        if (confirm(tr("End this round now? The tiles left in it will not be played.")))
            act([](BoardGame &g) { g.KeyDown(QLatin1Char('N'), -1, 7); });
    });
    connect(cmdEndGame, &QPushButton::clicked, this, [this] {
        if (confirm(tr("End the game now, without the standings?")))
            act([](BoardGame &g) { g.KeyDown(QLatin1Char('Q'), -1, 7); });
    });
    connect(cmdSwitch, &QPushButton::clicked, this, &frmConsole::switchScreens);
    auto *bar = new QHBoxLayout;
    bar->addWidget(lblRound, 1);
    bar->addWidget(cmdEndRound);
    bar->addWidget(cmdEndGame);
    bar->addWidget(cmdSwitch);
    top->addLayout(bar, 0, 0, 1, 2);
    // The board in miniature; in the final, whose board is empty, the
    // teams' wagers and responses in its place.
    stkBoard = new QStackedWidget(this);
    stkBoard->addWidget(createBoardGrid());
    top->addWidget(stkBoard, 1, 0);
    top->addWidget(createCluePanel(), 1, 1);
    stkBoard->addWidget(createAnswersPanel());
    top->addWidget(createTeamPanel(), 2, 0, 1, 2);
    top->setColumnStretch(0, 3);
    top->setColumnStretch(1, 2);
    top->setRowStretch(1, 1);
}

QWidget *frmConsole::createBoardGrid()
{
    auto *grid = new QWidget(this);
    auto *layout = new QGridLayout(grid);
    layout->setSpacing(4);
    for (int c = 0; c < 6; ++c) {
        cmdHeader[size_t(c)] = named(new QPushButton(grid), indexed("cmdHeader", c));
        cmdHeader[size_t(c)]->setToolTip(tr("Parade the titles"));
        connect(cmdHeader[size_t(c)], &QPushButton::clicked, this, [this] { act([](BoardGame &g) { g.HeaderPress(); }); });
        layout->addWidget(cmdHeader[size_t(c)], 0, c);
    }
    for (int i = 0; i < 30; ++i) {
        QPushButton *tile = named(new QPushButton(grid), indexed("cmdTile", i));
        tile->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        connect(tile, &QPushButton::clicked, this, [this, i] { pressTile(i); });
        layout->addWidget(tile, 1 + Tiles::row(i), Tiles::column(i));
        cmdTile[size_t(i)] = tile;
    }
    return grid;
}

QWidget *frmConsole::createCluePanel()
{
    auto *panel = new QWidget(this);
    auto *layout = new QVBoxLayout(panel);
    lblCategory = new QLabel(panel);
    lblCategory->setObjectName(QStringLiteral("lblCategory"));
    lblClue = new QLabel(panel);
    lblClue->setObjectName(QStringLiteral("lblClue"));
    lblResponse = new QLabel(panel);
    lblResponse->setObjectName(QStringLiteral("lblResponse"));
    for (QLabel *l : {lblCategory, lblClue, lblResponse})
        l->setWordWrap(true);
    lblWait = new QLabel(panel);
    lblWait->setObjectName(QStringLiteral("lblWait"));
    cmdNext = named(new QPushButton(panel), QStringLiteral("cmdNext"));
    cmdNext->setMinimumHeight(48);
    connect(cmdNext, &QPushButton::clicked, this, [this] { act([](BoardGame &g) { g.AnswerScreenPress(); }); });
    layout->addWidget(lblCategory);
    layout->addWidget(lblClue, 2);
    layout->addWidget(lblResponse, 1);
    layout->addWidget(lblWait);
    layout->addWidget(cmdNext);
    layout->addWidget(createBuzzPanel());
    layout->addWidget(createDailyDoublePanel());
    layout->addWidget(createPhonesPanel());
    return panel;
}

QWidget *frmConsole::createBuzzPanel()
{
    auto *panel = new QWidget(this);
    auto *layout = new QGridLayout(panel);
    layout->setContentsMargins(0, 4, 0, 0);
    chkBuzzIn = new QCheckBox(tr("Buzz in"), panel);
    chkBuzzIn->setObjectName(QStringLiteral("chkBuzzIn"));
    chkBuzzIn->setFocusPolicy(Qt::NoFocus);
    cmdBuzzers = named(new QPushButton(tr("Buzzers…"), panel), QStringLiteral("cmdBuzzers"));
    lblBuzzers = new QLabel(panel);
    lblBuzzers->setObjectName(QStringLiteral("lblBuzzers"));
    cmdOpenBuzzers = named(new QPushButton(panel), QStringLiteral("cmdOpenBuzzers"));
    lblOrder = new QLabel(panel);
    lblOrder->setObjectName(QStringLiteral("lblOrder"));
    lblOrder->setWordWrap(true);
    lblOrder->setTextFormat(Qt::RichText);
    cmdRight = named(new QPushButton(panel), QStringLiteral("cmdRight"));
    cmdWrong = named(new QPushButton(panel), QStringLiteral("cmdWrong"));
    connect(chkBuzzIn, &QCheckBox::toggled, this, [this](bool on) {
        if (buzzers_)
            buzzers_->setBuzzIn(on);
    });
    connect(cmdBuzzers, &QPushButton::clicked, this, [this] {
        if (openBuzzersWindow_)
            openBuzzersWindow_();
    });
    const auto judge = [this](bool (BuzzIn::*how)()) {
        return [this, how] {
            if (board_)
                board_->run([this, how](BoardGame &) { (board_->buzzIn().*how)(); });
            refresh();
        };
    };
    connect(cmdOpenBuzzers, &QPushButton::clicked, this, [this] {
        if (board_)
            board_->buzzIn().toggleOpen();
    });
    connect(cmdRight, &QPushButton::clicked, this, judge(&BuzzIn::judgeRight));
    connect(cmdWrong, &QPushButton::clicked, this, judge(&BuzzIn::judgeWrong));
    layout->addWidget(chkBuzzIn, 0, 0);
    layout->addWidget(cmdBuzzers, 0, 1);
    layout->addWidget(lblBuzzers, 0, 2);
    layout->addWidget(cmdOpenBuzzers, 0, 3);
    layout->addWidget(lblOrder, 1, 0, 1, 4);
    layout->addWidget(cmdRight, 2, 0, 1, 2);
    layout->addWidget(cmdWrong, 2, 2, 1, 2);
    layout->setColumnStretch(2, 1);
    return panel;
}

void frmConsole::setBuzzers(BuzzerInputs *inputs, std::function<void()> openWindow)
{
    buzzers_ = inputs;
    openBuzzersWindow_ = std::move(openWindow);
    if (inputs)
        connect(inputs, &BuzzerInputs::changed, this, &frmConsole::refresh);
    refresh();
}

void frmConsole::refreshBuzz()
{
    const bool on = buzzers_ && buzzers_->settings().buzzIn;
    if (chkBuzzIn->isChecked() != on) {
        const QSignalBlocker quiet(chkBuzzIn);
        chkBuzzIn->setChecked(on);
    }
    chkBuzzIn->setEnabled(buzzers_);
    cmdBuzzers->setEnabled(buzzers_);
    BuzzIn *buzz = board_ ? &board_->buzzIn() : nullptr;
    const bool live = on && buzz && buzz->takesBuzzes();
    lblBuzzers->setText(!on ? tr("Buzzers off")
                        : !live ? QString()
                        : buzz->isOpen() ? tr("Buzzers OPEN") : tr("Buzzers closed"));
    cmdOpenBuzzers->setText(live && buzz->isOpen() ? tr("Close (Space)") : tr("Open (Space)"));
    cmdOpenBuzzers->setEnabled(live);
    QStringList lines;
    if (live) {
        const QList<BuzzIn::Entry> &order = buzz->order();
        for (qsizetype i = 0; i < order.size(); ++i) {
            const int team = order[i].team;
            QString line = QStringLiteral("<span style=\"color:%1\">%2</span>")
                               .arg(TeamColor(team).name(), TeamName(team, state_.TeamNames[size_t(team)]).toHtmlEscaped());
            if (i > 0)
                line += tr(" +%1 s").arg(QLocale().toString(double(order[i].ms - order[0].ms) / 1000.0, 'f', 2));
            if (buzz->out(team))
                line += tr(" (wrong)");
            lines << QString::number(i + 1) + QStringLiteral(". ") + line;
        }
        QStringList early;
        for (int t = 0; t < board_->game().state().Teams; ++t) {
            if (buzz->earlyUntil(t) > 0 && !std::any_of(order.begin(), order.end(), [t](const BuzzIn::Entry &e) { return e.team == t; }))
                early << TeamName(t, state_.TeamNames[size_t(t)]).toHtmlEscaped();
        }
        if (!early.isEmpty())
            lines << tr("Too early: %1").arg(early.join(QStringLiteral(", ")));
    }
    lblOrder->setText(lines.join(QStringLiteral("<br>")));
    const std::optional<int> turn = live ? buzz->hasTurn() : std::nullopt;
    const QString name = turn ? TeamName(*turn, state_.TeamNames[size_t(*turn)]) : QString();
    cmdRight->setText(turn ? tr("Right (+): %1").arg(name) : tr("Right (+)"));
    cmdWrong->setText(turn ? tr("Wrong (−): %1").arg(name) : tr("Wrong (−)"));
    cmdRight->setEnabled(bool(turn));
    cmdWrong->setEnabled(bool(turn));
    cmdRight->setVisible(on);
    cmdWrong->setVisible(on);
    cmdOpenBuzzers->setVisible(on);
    lblOrder->setVisible(on);
}

QWidget *frmConsole::createTeamPanel()
{
    auto *panel = new QWidget(this);
    auto *layout = new QGridLayout(panel);
    layout->setHorizontalSpacing(8);
    auto *amountRow = new QHBoxLayout;
    spnAmount = new QSpinBox(panel);
    spnAmount->setObjectName(QStringLiteral("spnAmount"));
    spnAmount->setRange(0, 9'999'999);
    spnAmount->setSingleStep(100);
    spnAmount->setPrefix(QStringLiteral("$ "));
    spnAmount->setMinimumWidth(140);
    spnAmount->setButtonSymbols(QAbstractSpinBox::NoButtons); // typed, or the value of the tile
    cmdUndo = named(new QPushButton(tr("Undo last score"), panel), QStringLiteral("cmdUndo"));
    connect(cmdUndo, &QPushButton::clicked, this, [this] { act([](BoardGame &g) { g.undoScore(); }); });
    amountRow->addWidget(new QLabel(tr("Amount to give (+) or take (−):"), panel));
    amountRow->addWidget(spnAmount);
    amountRow->addSpacing(24);
    amountRow->addWidget(cmdUndo);
    amountRow->addStretch(1);
    layout->addLayout(amountRow, 0, 0, 1, 10);
    for (int i = 0; i < 10; ++i) {
        // Two columns of five teams; the second column only from team 6.
        const int row = 1 + i % 5, col = (i / 5) * 5;
        txtName[size_t(i)] = new QLineEdit(panel);
        txtName[size_t(i)]->setObjectName(indexed("txtName", i));
        txtName[size_t(i)]->setMaxLength(20);
        txtName[size_t(i)]->setPlaceholderText(TeamName(i, QString()));
        txtName[size_t(i)]->setText(state_.TeamNames[size_t(i)]);
        connect(txtName[size_t(i)], &QLineEdit::textEdited, this, [this, i] { nameTeam(i); });
        lblScore[size_t(i)] = new QLabel(panel);
        lblScore[size_t(i)]->setObjectName(indexed("lblScore", i));
        lblScore[size_t(i)]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        lblScore[size_t(i)]->setMinimumWidth(120);
        cmdPlus[size_t(i)] = named(new QPushButton(QStringLiteral("+"), panel), indexed("cmdPlus", i));
        cmdMinus[size_t(i)] = named(new QPushButton(QStringLiteral("\u2212"), panel), indexed("cmdMinus", i));
        connect(cmdPlus[size_t(i)], &QPushButton::clicked, this, [this, i] {
            const int amount = spnAmount->value();
            act([i, amount](BoardGame &g) { g.addToScore(i, amount); });
        });
        connect(cmdMinus[size_t(i)], &QPushButton::clicked, this, [this, i] {
            const int amount = spnAmount->value();
            act([i, amount](BoardGame &g) { g.addToScore(i, -amount); });
        });
        for (QPushButton *b : {cmdPlus[size_t(i)], cmdMinus[size_t(i)]})
            b->setMinimumWidth(56);
        layout->addWidget(txtName[size_t(i)], row, col);
        layout->addWidget(lblScore[size_t(i)], row, col + 1);
        layout->addWidget(cmdPlus[size_t(i)], row, col + 2);
        layout->addWidget(cmdMinus[size_t(i)], row, col + 3);
    }
    for (int col : {0, 5})
        layout->setColumnStretch(col, 2);
    layout->setColumnStretch(9, 1);
    layout->setColumnMinimumWidth(4, 24);
    return panel;
}

void frmConsole::attach(frmMain *board)
{
    if (board_) {
        disconnect(&board_->game(), nullptr, this, nullptr);
        disconnect(&board_->buzzIn(), nullptr, this, nullptr);
    }
    board_ = board;
    valueShown_ = -1;
    if (board) {
        BoardGame &game = board->game();
        for (auto signal : {&BoardGame::openClueChanged, &BoardGame::teamsChanged, &BoardGame::roundChanged,
                            &BoardGame::tilesDoneChanged})
            connect(&game, signal, this, &frmConsole::refresh);
        for (auto signal : {&BoardGame::tileChanged, &BoardGame::headerChanged, &BoardGame::scoreChanged,
                            &BoardGame::teamNameChanged})
            connect(&game, signal, this, &frmConsole::refresh);
        connect(&game, &BoardGame::thinkTimeStarted, this, &frmConsole::refresh);
        connect(&game, &BoardGame::gameEnded, this, [this] { attach(nullptr); });
        connect(&board->buzzIn(), &BuzzIn::changed, this, &frmConsole::refresh);
        connect(board, &frmMain::unloaded, this, [this] { attach(nullptr); });
        tmrRefresh->start();
    } else {
        tmrRefresh->stop();
    }
    refresh();
}

bool frmConsole::confirm(const QString &question)
{
    // Nothing undoes these; a slip of the mouse must not end a game.
    return MsgBox(tr("%1 This cannot be undone.").arg(question), MsgBoxStyle::YesNo | MsgBoxStyle::Question,
                  QString(), this) == MsgBoxResult::Yes;
}

void frmConsole::act(const std::function<void(BoardGame &)> &action)
{
    if (board_)
        board_->run(action);
    refresh();
}

void frmConsole::pressTile(int tile)
{
    // SHIFT+CTRL+ALT on the console's tile is the board's special press.
    const Qt::KeyboardModifiers m = QGuiApplication::keyboardModifiers();
    const bool allThree = (m & Qt::ShiftModifier) && (m & Qt::ControlModifier) && (m & Qt::AltModifier);
    act([tile, allThree](BoardGame &g) { g.TilePress(tile, true, allThree); });
}

void frmConsole::nameTeam(int team)
{
    const QString name = txtName[size_t(team)]->text().trimmed();
    if (board_)
        board_->game().setTeamName(team, name);
    else
        state_.TeamNames[size_t(team)] = name;
}

void frmConsole::switchScreens()
{
    if (!board_)
        return;
    QScreen *boardScreen = board_->screen(), *mine = screen();
    if (!boardScreen || !mine || boardScreen == mine)
        return;
    board_->moveToScreen(mine);
    showOn(boardScreen);
}

void frmConsole::showOn(QScreen *target)
{
    if (!target)
        return;
    // Maximized on that screen: the window manager keeps its panels free.
    showNormal();
    setScreen(target);
    setGeometry(target->availableGeometry());
    showMaximized();
    raise();
    activateWindow();
}

void frmConsole::refresh()
{
    const BoardGame *game = board_ ? &board_->game() : nullptr;
    for (QWidget *w : {static_cast<QWidget *>(cmdEndRound), static_cast<QWidget *>(cmdEndGame),
                       static_cast<QWidget *>(cmdUndo), static_cast<QWidget *>(spnAmount)})
        w->setEnabled(game);
    cmdSwitch->setEnabled(game && QGuiApplication::screens().size() > 1);
    if (!game) {
        lblRound->setText(tr("No game running: name the teams, then start a game on the home screen."));
        for (QPushButton *b : cmdHeader)
            b->setText(QString()), b->setEnabled(false);
        for (QPushButton *b : cmdTile)
            b->setText(QString()), b->setEnabled(false);
        lblCategory->clear();
        lblClue->clear();
        lblResponse->clear();
        lblWait->clear();
        cmdNext->setText(nextStep(OpenClue()));
        cmdNext->setEnabled(false);
    } else {
        const int round = game->settings().Round;
        lblRound->setText((round >= 3 ? tr("Final") : tr("Round %1").arg(round)) +
                          QStringLiteral("  \u2014  ") + GameReads::Description(game->settings().QuestionFile));
        refreshGrid(*game);
        refreshClue(*game);
    }
    refreshTeams(game);
    refreshBuzz();
    refreshPhones();
    refreshAnswers();
}

void frmConsole::refreshGrid(const BoardGame &game)
{
    const BoardState &s = game.state();
    const GameState &g = game.settings();
    for (int c = 0; c < 6; ++c) {
        const QString &shown = s.headerCaption[size_t(c)];
        // "&" would mark a shortcut: "Oceans & Seas" shows as written.
        QString title = shown.isEmpty() ? s.headerTag[size_t(c)] : shown;
        cmdHeader[size_t(c)]->setText(title.replace(QLatin1Char('&'), QStringLiteral("&&")));
        // The board's headers lie under an open clue.
        cmdHeader[size_t(c)]->setEnabled(!shown.isEmpty() && !s.openTile);
    }
    const bool ordinary = g.Round == 1 || g.Round == 2;
    for (int i = 0; i < 30; ++i) {
        QPushButton *tile = cmdTile[size_t(i)];
        const bool inPlay = !s.tileCaption[size_t(i)].isEmpty();
        const bool daily = ordinary && (i == g.DailyDouble1 || i == g.DailyDouble2);
        const char *kind = !inPlay ? "out" : daily ? "double" : "in";
        tile->setText(ordinary ? (daily ? QStringLiteral("\u2605 ") : QString()) + Tiles::caption(i, g.Round)
                               : QString());
        tile->setEnabled(true); // a blank tile moves a scored game on
        if (tile->property("tile").toByteArray() != kind) {
            tile->setProperty("tile", QByteArray(kind));
            tile->style()->unpolish(tile);
            tile->style()->polish(tile);
        }
    }
}

void frmConsole::refreshClue(const BoardGame &game)
{
    const OpenClue clue = game.openClue();
    if (clue.open) {
        const QString value = clue.final ? tr("Final") : QStringLiteral("$") + QString::number(clue.value);
        lblCategory->setText(clue.category + QStringLiteral("  \u2014  ") + value +
                             (clue.dailyDouble ? tr("  (daily double)") : QString()));
        lblClue->setText(clue.clue);
        lblResponse->setText(tr("Response: %1").arg(clue.response));
    } else {
        lblCategory->setText(tr("Choose a value on the board below."));
        lblClue->clear();
        lblResponse->clear();
    }
    lblWait->setText(clue.open ? secondsLeft(clue) : QString());
    cmdNext->setText(nextStep(clue));
    cmdNext->setEnabled(clue.open && clue.step != ClueStep::Wait);
    const qint16 current = game.state().CurrentValue;
    if (current != valueShown_) {
        valueShown_ = current;
        spnAmount->setValue(current);
    }
}

void frmConsole::refreshTeams(const BoardGame *game)
{
    const int teams = game ? game->state().Teams : 10;
    for (int i = 0; i < 10; ++i) {
        const bool used = i < teams;
        txtName[size_t(i)]->setVisible(used);
        if (!txtName[size_t(i)]->hasFocus() && txtName[size_t(i)]->text() != state_.TeamNames[size_t(i)])
            txtName[size_t(i)]->setText(state_.TeamNames[size_t(i)]);
        lblScore[size_t(i)]->setVisible(used && game);
        cmdPlus[size_t(i)]->setVisible(used && game);
        cmdMinus[size_t(i)]->setVisible(used && game);
        if (game)
            lblScore[size_t(i)]->setText(QStringLiteral("$ ") + FormatScore(state_.Scores[size_t(i)]));
    }
}

void frmConsole::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    // Read at arm's length from a laptop: the text grows with the window,
    // the clue most of all.
    const int points = qBound(9, height() / 56, 28);
    if (points == fontPoints_)
        return;
    fontPoints_ = points;
    setStyleSheet(QLatin1String(kStyle) + QStringLiteral("QWidget { font-family: Arial; font-size: %1pt; }"
                                                         "QLabel#lblClue { font-size: %2pt; }"
                                                         "QLabel#lblResponse { font-size: %3pt; }")
                                              .arg(points).arg(points * 3 / 2).arg(points * 5 / 4));
}
