// The help screen: five how-to-play topics, one shown at a time.
#pragma once

#include <QList>
#include <QWidget>

class CaptionControl;
class QPlainTextEdit;
class QPushButton;

class frmHowToPlay : public QWidget {
    Q_OBJECT
public:
    explicit frmHowToPlay(QWidget *parent = nullptr);

    CaptionControl *vseButtons = nullptr;
    QList<QPushButton *> optHelp;
    QPlainTextEdit *txtPlay = nullptr;

    // Shows topic Index (0..4); any other index changes nothing.
    void optHelp_Click(int Index);

signals:
    // The screen is closing: the home screen comes back.
    void unloaded();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
};
