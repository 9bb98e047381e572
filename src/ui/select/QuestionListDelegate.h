// Draws a question-set entry as two aligned columns: the file name, and
// after it, where the tab stands, the description.
#pragma once

#include <QStyledItemDelegate>

class QuestionListDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    // Where the description column starts: after the widest file name of
    // the list, but at most half the width.
    static int descriptionColumn(const QFont &font, const QAbstractItemModel *model, int width);
};
