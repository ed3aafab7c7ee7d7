#pragma once
// How a TableView draws its rows: each row through the data source's cell, rendered into the
// row's place, with its revealed swipe actions beside it; headers and footers as centred titles.
#include "platform/kit/TableView.h"

#include <QStyledItemDelegate>

class TableDelegate : public QStyledItemDelegate {
public:
    explicit TableDelegate(TableView* table)
        : QStyledItemDelegate(table)
        , table_(table) {}
    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    // The row the arrow keys are on: a ring in the highlight colour around the cell.
    static void paintKeyboardMark(QPainter* painter, const QStyleOptionViewItem& option,
                                  const QRect& r);

    TableView* table_;
};
