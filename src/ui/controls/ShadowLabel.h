// A one-line label of light text with a dark shadow, sized to its text
// whenever its caption or font changes:
// the team names and scores, and the category and value on the answer
// screen. Presses pass through it to the control beneath.
#pragma once

#include <QColor>
#include <QWidget>

class ShadowLabel : public QWidget {
    Q_OBJECT
public:
    explicit ShadowLabel(QWidget *parent = nullptr);

    QString caption() const { return caption_; }
    void setCaption(const QString &caption);
    void setFontSize(qreal points);
    QColor color() const { return color_; }
    void setColor(const QColor &color);
    // The width the caption needs in the current font.
    int captionWidth() const;
    // Sized to the caption: its width, and one line of the font.
    void fitSize();

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString caption_;
    QColor color_ = Qt::white;
};
