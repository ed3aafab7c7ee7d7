// The list's keyboard: arrows move a current row, Enter opens it, Delete offers the swipe
// actions, typing and Ctrl+F go to the search field.
#include "platform/kit/TableView.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QScrollBar>
#include <QTableView>
#include <QTimer>

bool TableView::focusSearchField() {
    auto* field = qobject_cast<QLineEdit*>(header_);
    if (!field || !field->isVisible())
        return false;
    field->setFocus(Qt::ShortcutFocusReason);
    return true;
}

std::optional<IndexPath> TableView::currentRow() const {
    if (rowsView() != list_) {
        const QModelIndex current = rowsView()->currentIndex();
        return current.isValid() ? std::optional(gridPath(current.row())) : std::nullopt;
    }
    bool isRow = false;
    const QModelIndex current = list_->currentIndex();
    const IndexPath path = pathForListRow(current.row(), &isRow);
    return current.isValid() && isRow ? std::optional(path) : std::nullopt;
}

bool TableView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == list_->viewport() && event->type() == QEvent::MouseButtonPress)
        keyboardMark_ = false;
    if (grid_ && watched == grid_ && event->type() == QEvent::Hide)
        gridScrolled_ = grid_->verticalScrollBar()->value();
    // Shown again (the return from a screen opened from it), the table stands where it was.
    // Its layout on showing may move it, so it is put back once that is done as well.
    if (grid_ && watched == grid_ && event->type() == QEvent::Show && gridScrolled_ >= 0) {
        const int scrolled = std::exchange(gridScrolled_, -1);
        grid_->verticalScrollBar()->setValue(scrolled);
        QTimer::singleShot(
            0, grid_, [grid = grid_, scrolled] { grid->verticalScrollBar()->setValue(scrolled); });
    }
    if ((watched == list_ || (watched == grid_ && grid_)) && event->type() == QEvent::KeyPress)
        return handleListKey(static_cast<QKeyEvent*>(event));
    return false;
}

bool TableView::handleListKey(QKeyEvent* event) {
    const Qt::KeyboardModifiers commandKeys =
        Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        keyboardMark_ = true;
        list_->viewport()->update();
        return false; // the list moves its current row itself
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (const auto path = currentRow())
            selectRow(*path);
        return true;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        if (const auto path = currentRow()) {
            QAbstractItemView* view = rowsView();
            const QRect rect = view->visualRect(view->currentIndex());
            showActionsMenuFor(*path, view->viewport()->mapToGlobal(rect.center()));
        }
        return true;
    default:
        break;
    }
    // Typing goes on in the search field, as if it had been typed there.
    const QString text = event->text();
    if (!text.isEmpty() && text.at(0).isPrint() && !(event->modifiers() & commandKeys) &&
        focusSearchField()) {
        QApplication::sendEvent(header_, event);
        return true;
    }
    return false;
}

void TableView::keyPressEvent(QKeyEvent* event) {
    // From the search field: Escape (after it emptied the field) and Down go to the rows.
    const bool fromSearch = header_ && header_->hasFocus();
    if (fromSearch && (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Down) &&
        event->modifiers() == Qt::NoModifier && list_->model()->rowCount() > 0) {
        keyboardMark_ = event->key() == Qt::Key_Down;
        QAbstractItemView* view = rowsView();
        view->setFocus(Qt::OtherFocusReason);
        if (view != list_ && !view->currentIndex().isValid() && numberOfRows(0) > 0)
            setCurrentRow({0, 0});
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
}

void TableView::showActionsMenu(int row, QPoint globalPos) {
    bool isRow = false;
    const IndexPath path = pathForListRow(row, &isRow);
    if (row < 0 || !isRow)
        return;
    showActionsMenuFor(path, globalPos);
}

void TableView::showActionsMenuFor(IndexPath path, QPoint globalPos) {
    if (!source_)
        return;
    const auto actions = source_->trailingSwipeActions(this, path);
    if (actions.isEmpty())
        return;
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const SwipeAction& a : actions) {
        const QString title = a.title;
        menu->addAction(title, this, [this, path, title] { triggerSwipeAction(path, title); });
    }
    // Enter takes the first action at once when the menu was opened from the keyboard.
    if (rowsView()->hasFocus())
        menu->setActiveAction(menu->actions().value(0));
    menu->popup(globalPos);
}
