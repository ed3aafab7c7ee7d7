#include "platform/kit/TableViewDelegate.h"

#include "platform/kit/Elide.h"
#include "platform/kit/TableViewModel.h"

#include <QLayout>
#include <QPainter>

QSize TableDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const {
    int section = 0, row = 0;
    const int kind = table_->model_->locate(index.row(), section, row);
    if (kind != 1)
        return QSize(100, TableModel::HeaderHeight);
    return QSize(100, table_->source_ ? table_->source_->heightForRow(table_, {section, row}) : 44);
}

void TableDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
    TableViewDataSource* source = table_->source_;
    if (!source)
        return;
    int section = 0, row = 0;
    const int kind = table_->model_->locate(index.row(), section, row);
    if (kind == 0 || kind == 2) {
        const auto& sec = table_->model_->sections_[std::size_t(section)];
        QFont f = option.font;
        f.setPointSizeF(table_->headerPoints_);
        painter->save();
        painter->setFont(f);
        painter->setPen(option.palette.color(QPalette::WindowText));
        painter->drawText(option.rect, Qt::AlignCenter,
                          kind == 0 ? sec.headerTitle : sec.footerTitle);
        painter->restore();
        return;
    }
    ++table_->cellsRequested_;
    TableViewCell* cell = source->cellForRow(table_, {section, row});
    if (!cell)
        return;
    const QRect r = option.rect.adjusted(4, 3, -4, -3);
    int shift = 0;
    if (table_->revealed_ == index.row()) {
        const auto actions = source->trailingSwipeActions(table_, {section, row});
        shift = TableView::kActionWidth * int(actions.size());
        int x = r.right() - shift + 1;
        painter->save();
        for (const SwipeAction& a : actions) {
            const QRect button(x, r.top(), TableView::kActionWidth, r.height());
            painter->fillRect(button, a.destructive ? QColor(220, 40, 40) : QColor(120, 120, 120));
            painter->setPen(Qt::white);
            painter->drawText(button, Qt::AlignCenter, a.title);
            x += TableView::kActionWidth;
        }
        painter->restore();
    }
    // Long texts get the row's width and end with an ellipsis instead of running off it.
    Elide::letLabelsShrink(cell);
    if (cell->layout())
        cell->layout()->activate();
    cell->resize(r.size());
    if (cell->isHidden())
        cell->show(); // activates its layout; it never reaches the screen
    if (cell->layout())
        cell->layout()->activate();
    const Elide::FittedLabels fitted(cell);
    // Rendered through a pixmap: rendering a widget straight onto the painter of another
    // widget's paint event picks up that widget's offset in the window a second time.
    const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
    QPixmap image(r.size() * ratio);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    cell->render(&image, QPoint(), QRegion(),
                 QWidget::DrawWindowBackground | QWidget::DrawChildren);
    painter->save();
    painter->setClipRect(QRect(r.left(), r.top(), r.width() - shift, r.height()));
    painter->drawPixmap(r.left() - shift, r.top(), image);
    painter->restore();
    if (table_->keyboardMark_ && (option.state & QStyle::State_HasFocus))
        paintKeyboardMark(painter, option, r);
}

void TableDelegate::paintKeyboardMark(QPainter* painter, const QStyleOptionViewItem& option,
                                      const QRect& r) {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(option.palette.color(QPalette::Highlight), 3));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(r).adjusted(1.5, 1.5, -1.5, -1.5), 10, 10);
    painter->restore();
}
