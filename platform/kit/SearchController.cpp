#include "platform/kit/SearchController.h"

#include "platform/kit/Symbols.h"
#include "platform/kit/TableView.h"

#include <QAction>
#include <QKeyEvent>

SearchController::SearchController(QWidget* parent)
    : QLineEdit(parent) {
    // The clear button shows a symbol of our own: the style's stock icon is looked up in the
    // desktop's icon themes, which made the first search screen tens of milliseconds slower.
    QAction* clearAction = addAction(Symbols::icon(QStringLiteral("xmark.circle.fill"), 16,
                                                   palette().color(QPalette::PlaceholderText)),
                                     TrailingPosition);
    clearAction->setObjectName(QStringLiteral("ClearButton"));
    clearAction->setText(tr("Clear Search"));
    clearAction->setVisible(false);
    connect(clearAction, &QAction::triggered, this, [this] {
        clear();
        emit textEdited(text());
    });
    setObjectName(QStringLiteral("SearchBar"));
    setMinimumHeight(34);
    setAccessibleName(tr("Search"));
    connect(this, &QLineEdit::textChanged, this, [this, clearAction] {
        clearAction->setVisible(!text().isEmpty());
        if (!text().isEmpty())
            active_ = true;
        if (searchResultsUpdater)
            searchResultsUpdater(this);
    });
}

void SearchController::setActive(bool active) {
    active_ = active;
    if (!active)
        clearFocus();
    if (searchResultsUpdater)
        searchResultsUpdater(this);
}

void SearchController::dismiss(bool) {
    setActive(false);
}

void SearchController::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (!active_)
        setActive(true); // the updater hears of the search starting, before any keystroke
}

void SearchController::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier && !text().isEmpty())
        if (auto* clearAction = findChild<QAction*>(QStringLiteral("ClearButton"))) {
            clearAction->trigger();
            event->accept();
            return;
        }
    QLineEdit::keyPressEvent(event);
}

void SearchController::placeAbove(TableView* table, const QString& placeholder,
                                  std::function<void(SearchController*)> updater) {
    searchResultsUpdater = std::move(updater);
    hidesNavigationBarDuringPresentation = false;
    obscuresBackgroundDuringPresentation = false;
    setPlaceholderText(placeholder);
    if (!placeholder.isEmpty())
        setAccessibleName(placeholder);
    table->setTableHeaderView(this);
}
