#include "platform/kit/PickerView.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

PickerView::PickerView(QWidget* parent)
    : QWidget(parent, Qt::Popup)
    , list_(new QListWidget(this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(list_);
    list_->setAccessibleName(tr("Choices"));
    QFont f = list_->font();
    f.setPointSizeF(16);
    f.setBold(true);
    list_->setFont(f);
    connect(list_, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* item) { pick(list_->row(item)); });
    // Enter picks the row the arrow keys or typing went to (a click may activate as well).
    connect(list_, &QListWidget::activated, this, [this](const QModelIndex& index) {
        if (isOpen())
            pick(index.row());
    });
    list_->installEventFilter(this);
    hide();
}

bool PickerView::eventFilter(QObject* watched, QEvent* event) {
    if (watched != list_ || event->type() != QEvent::KeyPress)
        return false;
    auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_Tab && key->key() != Qt::Key_Backtab)
        return false;
    close();
    if (field_) {
        QKeyEvent tab(QEvent::KeyPress, key->key(), key->modifiers());
        QApplication::sendEvent(field_, &tab);
    }
    return true;
}

QStringList PickerView::titles() const {
    QStringList out;
    const int n = source_ ? source_->numberOfRows(const_cast<PickerView*>(this)) : 0;
    for (int i = 0; i < n; ++i)
        out << source_->titleForRow(const_cast<PickerView*>(this), i);
    return out;
}

void PickerView::openFor(QWidget* field) {
    field_ = field;
    list_->clear();
    for (const QString& t : titles()) {
        auto* item = new QListWidgetItem(t, list_);
        item->setTextAlignment(Qt::AlignCenter);
    }
    const QPoint below = field->mapToGlobal(QPoint(0, field->height()));
    setGeometry(below.x(), below.y(), std::max(field->width(), 200), 216);
    show();
    // The keyboard starts on the field's value, or on the first row.
    const auto* edit = qobject_cast<QLineEdit*>(field);
    const QList<QListWidgetItem*> same =
        edit ? list_->findItems(edit->text(), Qt::MatchExactly) : QList<QListWidgetItem*>();
    list_->setCurrentRow(same.isEmpty() ? 0 : list_->row(same.first()));
    list_->setFocus(Qt::PopupFocusReason);
}

void PickerView::close() {
    hide();
}

bool PickerView::isOpen() const {
    return !isHidden();
}

void PickerView::pick(int row) {
    if (source_ && row >= 0 && row < source_->numberOfRows(this))
        source_->didSelectRow(this, row);
    hide();
}
