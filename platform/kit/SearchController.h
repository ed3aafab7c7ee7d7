#pragma once
// A search field for the top of a table: reports every text change to its updater.
#include <QLineEdit>
#include <functional>

class SearchController : public QLineEdit {
    Q_OBJECT
public:
    explicit SearchController(QWidget* parent = nullptr);
    // Called after every change of the text, with the controller.
    std::function<void(SearchController*)> searchResultsUpdater;
    bool isActive() const { return active_; }
    void setActive(bool active);
    // Ends the search: no focus, not active (the text stays, as the list shows it).
    void dismiss(bool animated = false);
    bool obscuresBackgroundDuringPresentation = false;
    bool hidesNavigationBarDuringPresentation = false;
    // Becomes the table's header view with the placeholder, reporting to `updater`; the list
    // stays undimmed and the bar shown while searching.
    void placeAbove(class TableView* table, const QString& placeholder,
                    std::function<void(SearchController*)> updater);

protected:
    void focusInEvent(QFocusEvent* event) override;
    // Escape empties the field as its clear button does.
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool active_ = false;
};
