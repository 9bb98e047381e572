// Draws a question-set entry as two aligned columns: the file name, and
// after it, where the tab stands, the description.
#pragma once

#include <QFont>
#include <QStyledItemDelegate>

class QAbstractItemView;

class QuestionListDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    // Watches the list's model: the widest file name is measured once for
    // every change of the list, not for every row painted.
    explicit QuestionListDelegate(QAbstractItemView *view);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    // The widest file name of the list as filled, measured in this font
    // (the view's); holds until the list or the font changes.
    void setWidestName(const QFont &font, int width);

    // Where the description column starts: after the widest file name of
    // the list, but at most half the width.
    static int descriptionColumn(const QFont &font, const QAbstractItemModel *model, int width);

private:
    int column(const QFont &font, const QAbstractItemModel *model, int width) const;

    mutable int widest_ = -1; // -1: to be measured
    mutable QFont measuredIn_;
};
