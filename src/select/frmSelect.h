// The home screen, from which every game starts.
#pragma once

#include <QWidget>

class frmSelect : public QWidget {
    Q_OBJECT
public:
    explicit frmSelect(QWidget *parent = nullptr);

protected:
    void closeEvent(QCloseEvent *event) override;
};
