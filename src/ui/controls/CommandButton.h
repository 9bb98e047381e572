// A push button whose caption wraps onto several lines when the button is
// narrower than its text, as the screens' buttons always did.
#pragma once

#include <QPushButton>

class CommandButton : public QPushButton {
    Q_OBJECT
public:
    explicit CommandButton(const QString &caption, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};
