#include "screens/reference/ReferenceTableViewController.h"

#include "model/ManagedObjectContext.h"
#include "model/PrintedFetch.h"
#include "platform/core/Console.h"
#include "platform/core/Fatal.h"
#include "platform/kit/Appearance.h"
#include "platform/kit/TextTableViewCell.h"
#include "screens/Application.h"
#include "screens/ProcessState.h"
#include "screens/reference/EditReferenceViewController.h"

#include <QScopeGuard>
#include <QVBoxLayout>
#include <algorithm>

namespace {
const char* const kSource = "Pelvane/ReferenceTableViewController";
}

ReferenceTableViewController::ReferenceTableViewController(const ReferenceListKind& kind,
                                                           QWidget* parent)
    : ViewController(parent)
    , context(Application::viewContext())
    , searchController(new SearchController(this))
    , tableView(new TableView(this))
    , kind_(kind)
    , attribute_(Model::entity(kind.entity)->indexOf(kind.attribute)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(tableView);
    tableView->listView()->setAccessibleName(ReferenceKinds::tr(kind.title));
    tableView->registerCell(QStringLiteral("Cell"), [] { return new TextTableViewCell; });
    registerUnwindAction(kind.unwind, [this](StoryboardSegue& s) { unwindToTableView(s); });
}

void ReferenceTableViewController::viewDidLoad() {
    setTitle(ReferenceKinds::tr(kind_.title));
    searchController->searchResultsUpdater = [this](SearchController* s) {
        updateSearchResults(s);
    };
    searchController->hidesNavigationBarDuringPresentation = false;
    searchController->obscuresBackgroundDuringPresentation = false;
    tableView->setTableHeaderView(searchController);
    searchController->setPlaceholderText(ReferenceKinds::tr(kind_.placeholder));
    searchController->setAccessibleName(ReferenceKinds::tr(kind_.placeholder));
    SortAsc = true;
    tableView->setDataSource(this);
    after(0, [this] { fetch(); });
    navigationItem().rightItems = {{tr("Add"), [this] { performSegue(kind_.addSegue); }, nullptr,
                                    QStringLiteral("AddButton"), QStringLiteral("plus")},
                                   {tr("Sort"), [this] { SortButtonTapped(); }, nullptr,
                                    QStringLiteral("SortButton"),
                                    QStringLiteral("arrow.up.arrow.down")}};
    updateNavigationBar();
    DarkMode = Appearance::isDark();
}

void ReferenceTableViewController::viewDidDisappear(bool) {
    searchController->setActive(false);
}

QString ReferenceTableViewController::valueOf(const ObjectPtr& record) const {
    return record->value(attribute_).toString();
}

void ReferenceTableViewController::fetch() {
    List.clear();
    FilteredList.clear();
    FetchRequest request(kind_.entity);
    request.returnsObjectsAsFaults = false;
    request.sortDescriptors = {{kind_.attribute, SortAsc.value_or(true)}};
    const QList<ObjectPtr> fetched = fetchOrPrint(*context, request).valueOr({});
    if (fetched.size() > 32767)
        fatalError(QStringLiteral("A count above 32767 does not fit in 16 bits"), kSource,
                   __LINE__);
    List = fetched;
    FilteredList = fetched;
    Count = qint16(fetched.size());
    reloadTable();
}

void ReferenceTableViewController::updateSearchResults(SearchController* search) {
    const QString text = search->text();
    if (text.isEmpty()) {
        FilteredList = List;
    } else {
        const QString wanted = text.toLower();
        FilteredList.clear();
        for (const ObjectPtr& record : List)
            if (record->hasValue(attribute_) && valueOf(record).toLower().contains(wanted))
                FilteredList.append(record);
    }
    reloadTable();
}

void ReferenceTableViewController::SortButtonTapped() {
    if (!SortAsc)
        return;
    // The new order is shown from its first row, whichever way it is reloaded.
    const auto toTop = qScopeGuard([this] { tableView->scrollToTop(); });
    SortAsc = !*SortAsc;
    if (!searching()) {
        fetch();
        return;
    }
    for (const ObjectPtr& record : FilteredList)
        if (!record->hasValue(attribute_))
            fatalError(QStringLiteral("A stored reference value is missing"), kSource, __LINE__);
    // Deliberately the opposite of the fetch: ascending now means a descending display.
    const bool descending = *SortAsc;
    std::stable_sort(FilteredList.begin(), FilteredList.end(),
                     [this, descending](const ObjectPtr& a, const ObjectPtr& b) {
                         return descending ? valueOf(b) < valueOf(a) : valueOf(a) < valueOf(b);
                     });
    reloadTable();
}

void ReferenceTableViewController::unwindToTableView(StoryboardSegue&) {
    fetch();
}

bool ReferenceTableViewController::searching() const {
    return !searchController->text().isEmpty();
}

QList<ObjectPtr>& ReferenceTableViewController::listInUse() {
    return searching() ? FilteredList : List;
}

int ReferenceTableViewController::recordIndex(int row) const {
    // Hidden rows are few (none, normally): step over those at or before the row.
    int index = row;
    for (int hidden : hiddenRows_)
        if (hidden <= index)
            ++index;
    return index;
}

void ReferenceTableViewController::reloadTable() {
    hiddenRows_.clear();
    tableView->reloadData();
}

int ReferenceTableViewController::numberOfRows(TableView*, int) {
    return int(listInUse().size() - hiddenRows_.size());
}

TableViewCell* ReferenceTableViewController::cellForRow(TableView* table, IndexPath path) {
    auto* cell = static_cast<TextTableViewCell*>(table->dequeueReusableCell("Cell"));
    cell->setDarkMode(DarkMode);
    const ObjectPtr& record = listInUse().at(recordIndex(path.row));
    // A record without a value shows an empty row (the label is reused, so it is cleared).
    cell->textLabel->setText(record->hasValue(attribute_) ? valueOf(record) : QString());
    return cell;
}

QString ReferenceTableViewController::accessibleTextForRow(TableView*, IndexPath path) {
    const ObjectPtr& record = listInUse().at(recordIndex(path.row));
    return record->hasValue(attribute_) ? valueOf(record) : QString();
}

void ReferenceTableViewController::didSelectRow(TableView* table, IndexPath path) {
    const ObjectPtr record = listInUse().at(recordIndex(path.row));
    if (!record->hasValue(attribute_))
        fatalError(QStringLiteral("A stored reference value is missing"), kSource, __LINE__);
    *kind_.selection = valueOf(record);
    selectedRow_ = path.row;
    table->deselectRow(path);
    performSegue(kind_.editSegue, this);
}

void ReferenceTableViewController::prepareForSegue(StoryboardSegue& segue, QObject*) {
    // The coin edit screen, opened later, returns nowhere when a reference list came last.
    CalledFromList = QStringLiteral("Master");
    if (segue.identifier != kind_.editSegue)
        return;
    if (auto* edit = dynamic_cast<EditReferenceViewController*>(segue.destination))
        edit->detailItem = listInUse().at(recordIndex(selectedRow_));
}

QList<SwipeAction> ReferenceTableViewController::trailingSwipeActions(TableView*, IndexPath) {
    return {{tr("delete"), true, [this](IndexPath path) {
                 QList<ObjectPtr>& list = listInUse();
                 const int index = recordIndex(path.row);
                 context->deleteObject(list.at(index));
                 Application::delegate().saveContext();
                 // The other list keeps the record until the next fetch; so does Count.
                 list.removeAt(index);
                 hiddenRows_.clear();
                 tableView->deleteRows({path});
             }}};
}

void ReferenceTableViewController::commitEditingStyle(TableView* table, EditingStyle style,
                                                      IndexPath path) {
    if (style != EditingStyle::Delete || path.row < 0 || path.row >= numberOfRows(table, 0))
        return;
    hiddenRows_.append(recordIndex(path.row));
    std::sort(hiddenRows_.begin(), hiddenRows_.end());
    table->deleteRows({path});
}
