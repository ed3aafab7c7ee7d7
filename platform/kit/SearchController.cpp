#include "platform/kit/SearchController.h"

#include "platform/kit/TableView.h"

SearchController::SearchController(QWidget* parent)
    : QLineEdit(parent) {
    setClearButtonEnabled(true);
    setObjectName(QStringLiteral("SearchBar"));
    setMinimumHeight(34);
    connect(this, &QLineEdit::textChanged, this, [this] {
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

void SearchController::placeAbove(TableView* table, const QString& placeholder,
                                  std::function<void(SearchController*)> updater) {
    searchResultsUpdater = std::move(updater);
    hidesNavigationBarDuringPresentation = false;
    obscuresBackgroundDuringPresentation = false;
    setPlaceholderText(placeholder);
    table->setTableHeaderView(this);
}
