#pragma once
// One reference list (grades, strike characters or edges): the values of its record type,
// a search field, a sort toggle, swipe-to-delete, a row tap that opens the edit screen and an
// add button. The three lists differ only by their ReferenceListKind.
#include "model/ManagedObject.h"
#include "platform/kit/SearchController.h"
#include "platform/kit/TableView.h"
#include "platform/kit/ViewController.h"
#include "screens/reference/ReferenceKinds.h"

#include <optional>

class ManagedObjectContext;

class ReferenceTableViewController : public ViewController, public TableViewDataSource {
    Q_OBJECT
public:
    ReferenceTableViewController(const ReferenceListKind& kind, QWidget* parent = nullptr);
    const ReferenceListKind& kind() const { return kind_; }

    void viewDidLoad() override;
    void viewDidDisappear(bool animated) override;
    void prepareForSegue(StoryboardSegue& segue, QObject* sender) override;

    // Every record of the entity into both lists, in the direction SortAsc holds.
    void fetch();
    void updateSearchResults(SearchController* search);
    void SortButtonTapped();
    // The add and edit screens return here.
    void unwindToTableView(StoryboardSegue& segue);

    enum class EditingStyle { None, Delete, Insert };
    // Only the display loses the row: no record goes, no list changes. Deleting is the swipe
    // action's.
    void commitEditingStyle(TableView* table, EditingStyle style, IndexPath path);
    bool canEditRow(TableView*, IndexPath) { return true; }

    int numberOfRows(TableView*, int section) override;
    TableViewCell* cellForRow(TableView* table, IndexPath path) override;
    QString accessibleTextForRow(TableView*, IndexPath path) override;
    void didSelectRow(TableView* table, IndexPath path) override;
    QList<SwipeAction> trailingSwipeActions(TableView* table, IndexPath path) override;

    // The controller's state; each list reaches these by its own names (ListOfGrades, ...).
    ManagedObjectContext* context;
    ManagedObjectContext* managedObjectContext = nullptr; // kept unused
    SearchController* searchController;
    TableView* tableView;
    QList<ObjectPtr> List;
    QList<ObjectPtr> FilteredList;
    std::optional<bool> SortAsc;
    qint16 Count = 0;
    bool DarkMode = false;

private:
    // The search text decides the list: the full one when it is empty, the filtered one else.
    bool searching() const;
    QList<ObjectPtr>& listInUse();
    // The position in the list in use of a displayed row.
    int recordIndex(int row) const;
    void reloadTable();
    QString valueOf(const ObjectPtr& record) const;

    const ReferenceListKind& kind_;
    int attribute_;
    int selectedRow_ = -1;
    // Rows taken off the display only (commitEditingStyle), as positions in the list in use,
    // until the table is next reloaded.
    QList<int> hiddenRows_;
};
