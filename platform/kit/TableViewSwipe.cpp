// Rows answer presses, drags and long presses: a tap selects, a left drag reveals the swipe
// actions, a long press offers them in a menu.
#include "platform/kit/TableView.h"

#include <QListView>
#include <QMouseEvent>
#include <QTimer>

namespace {
constexpr int kSwipeThreshold = 30;
} // namespace

// Presses, drags and long presses on the rows: tap selects, a left drag reveals the actions.
class SwipeFilter : public QObject {
public:
    explicit SwipeFilter(TableView* table)
        : QObject(table)
        , table_(table) {
        longPress_.setSingleShot(true);
        longPress_.setInterval(500);
        connect(&longPress_, &QTimer::timeout, this, [this] {
            moved_ = true; // the release after a long press is no tap
            table_->showActionsMenu(pressRow_,
                                    table_->listView()->viewport()->mapToGlobal(pressPos_));
        });
    }
    bool eventFilter(QObject*, QEvent* event) override {
        QListView* list = table_->listView();
        switch (event->type()) {
        case QEvent::MouseButtonPress: {
            auto* e = static_cast<QMouseEvent*>(event);
            pressPos_ = e->position().toPoint();
            pressRow_ = list->indexAt(pressPos_).row();
            moved_ = false;
            if (e->button() == Qt::RightButton) {
                table_->showActionsMenu(pressRow_, e->globalPosition().toPoint());
                return true;
            }
            longPress_.start();
            return true;
        }
        case QEvent::MouseMove: {
            auto* e = static_cast<QMouseEvent*>(event);
            const QPoint d = e->position().toPoint() - pressPos_;
            if (d.manhattanLength() > 8) {
                longPress_.stop();
                moved_ = true;
            }
            if (d.x() < -kSwipeThreshold && qAbs(d.y()) < kSwipeThreshold && pressRow_ >= 0)
                table_->setRevealedRow(pressRow_);
            else if (d.x() > kSwipeThreshold)
                table_->setRevealedRow(-1);
            return true;
        }
        case QEvent::MouseButtonRelease: {
            longPress_.stop();
            auto* e = static_cast<QMouseEvent*>(event);
            if (e->button() != Qt::LeftButton || moved_)
                return true;
            const QPoint p = e->position().toPoint();
            const int row = list->indexAt(p).row();
            if (table_->revealedRow() >= 0) {
                if (row == table_->revealedRow())
                    clickAction(row, p);
                table_->setRevealedRow(-1);
                return true;
            }
            bool isRow = false;
            const IndexPath path = table_->pathForListRow(row, &isRow);
            if (row >= 0 && isRow)
                table_->selectRow(path);
            return true;
        }
        default:
            return false;
        }
    }

private:
    void clickAction(int row, QPoint p) {
        bool isRow = false;
        const IndexPath path = table_->pathForListRow(row, &isRow);
        if (!isRow || !table_->dataSource())
            return;
        const auto actions = table_->dataSource()->trailingSwipeActions(table_, path);
        const QRect rect =
            table_->listView()->visualRect(table_->listView()->model()->index(row, 0));
        const int start = rect.right() - 4 - TableView::kActionWidth * int(actions.size());
        if (p.x() <= start)
            return;
        const int i = (p.x() - start) / TableView::kActionWidth;
        if (i >= 0 && i < actions.size())
            table_->triggerSwipeAction(path, actions[i].title);
    }
    TableView* table_;
    QTimer longPress_;
    QPoint pressPos_;
    int pressRow_ = -1;
    bool moved_ = false;
};

QObject* TableView::makeSwipeFilter() {
    return new SwipeFilter(this);
}
