#include "QuestionListDelegate.h"

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QApplication>
#include <QFontMetrics>
#include <QPainter>

namespace {

int widestName(const QFontMetrics &fm, const QAbstractItemModel *model)
{
    int widest = 0;
    for (int row = 0; row < model->rowCount(); ++row) {
        const QString text = model->index(row, 0).data().toString();
        widest = qMax(widest, fm.horizontalAdvance(text.section(QLatin1Char('\t'), 0, 0)));
    }
    return widest;
}

} // namespace

QuestionListDelegate::QuestionListDelegate(QAbstractItemView *view) : QStyledItemDelegate(view)
{
    QAbstractItemModel *model = view->model();
    const auto forget = [this] { widest_ = -1; };
    for (auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(model, signal, this, forget);
    connect(model, &QAbstractItemModel::modelReset, this, forget);
    connect(model, &QAbstractItemModel::dataChanged, this, forget);
    connect(model, &QAbstractItemModel::layoutChanged, this, forget);
}

void QuestionListDelegate::setWidestName(const QFont &font, int width)
{
    widest_ = width;
    measuredIn_ = font;
}

int QuestionListDelegate::descriptionColumn(const QFont &font, const QAbstractItemModel *model, int width)
{
    const QFontMetrics fm(font);
    return qMin(widestName(fm, model) + fm.horizontalAdvance(QStringLiteral("MM")), width / 2);
}

int QuestionListDelegate::column(const QFont &font, const QAbstractItemModel *model, int width) const
{
    const QFontMetrics fm(font);
    if (widest_ < 0 || font != measuredIn_) {
        widest_ = widestName(fm, model);
        measuredIn_ = font;
    }
    return qMin(widest_ + fm.horizontalAdvance(QStringLiteral("MM")), width / 2);
}

void QuestionListDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const
{
    QStyleOptionViewItem plain = option;
    initStyleOption(&plain, index);
    const QString text = plain.text;
    plain.text.clear();
    const QWidget *view = option.widget;
    QStyle *style = view ? view->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &plain, painter, view);

    const QRect area = option.rect.adjusted(4, 0, -4, 0);
    const int column = this->column(option.font, index.model(), area.width());
    const QPalette::ColorRole role = option.state & QStyle::State_Selected ? QPalette::HighlightedText : QPalette::Text;
    painter->save();
    painter->setPen(option.palette.color(role));
    const QFontMetrics fm(option.font);
    const QString name = text.section(QLatin1Char('\t'), 0, 0);
    const QString description = text.section(QLatin1Char('\t'), 1);
    const QRect nameBox(area.left(), area.top(), column - 4, area.height());
    const QRect descriptionBox(area.left() + column, area.top(), area.width() - column, area.height());
    painter->drawText(nameBox, Qt::AlignVCenter | Qt::AlignLeft, fm.elidedText(name, Qt::ElideRight, nameBox.width()));
    painter->drawText(descriptionBox, Qt::AlignVCenter | Qt::AlignLeft,
                      fm.elidedText(description, Qt::ElideRight, descriptionBox.width()));
    painter->restore();
}
