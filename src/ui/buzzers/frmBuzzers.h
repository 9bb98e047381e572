// The "Buzzers" window: learns each team's buzzer, a key of a buzzer box
// (or of the keyboard) or a joystick's button, one team at a time, and
// shows what each team has and which joysticks are plugged in.
#pragma once

#include <QPointer>
#include <QWidget>

#include <array>

struct GameState;
class BuzzerInputs;
class QLabel;
class QPushButton;

class frmBuzzers : public QWidget {
    Q_OBJECT
public:
    frmBuzzers(BuzzerInputs &inputs, const GameState &state, QWidget *parent = nullptr);

    // Shows every team's buzzer and the state of the learning as they are.
    void refresh();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    BuzzerInputs &inputs_;
    const GameState &state_;
    QLabel *lblStatus = nullptr;
    QLabel *lblJoysticks = nullptr;
    std::array<QLabel *, 10> lblTeam{};
    std::array<QLabel *, 10> lblBuzzer{};
    std::array<QPushButton *, 10> cmdLearn{};
    std::array<QPushButton *, 10> cmdClear{};
    QString refusal_;
};
