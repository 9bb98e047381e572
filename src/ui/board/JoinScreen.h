// The phones' join screen over the board: a QR code of the players' page,
// its address in large print and the room's code, for the whole class to
// read from the back of the room. A press or J hides it again.
#pragma once

#include "players/QrCode.h"

#include <QWidget>

class JoinScreen : public QWidget {
    Q_OBJECT
public:
    explicit JoinScreen(QWidget *parent);

    void set(const QString &address, const QString &roomCode);
    void setJoined(int players);
    QString address() const { return address_; }
    QString roomCode() const { return code_; }

signals:
    void pressed();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    QString address_, code_;
    QrCode qr_;
    int joined_ = 0;
};

// The final's reveal on the answer screen: a team's name in its colour,
// its response, its wager, and whether it was right.
class RevealPanel : public QWidget {
    Q_OBJECT
public:
    explicit RevealPanel(QWidget *parent);
    void show(int team, const QString &name, const QString &response, qint64 wager, bool right);
    using QWidget::show;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int team_ = 0;
    QString name_, response_;
    qint64 wager_ = 0;
    bool right_ = false;
};
