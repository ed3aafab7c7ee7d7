#include "screens/groups/GroupTableViewController.h"

#include "platform/core/Console.h"
#include "platform/core/Fatal.h"
#include "platform/kit/Appearance.h"
#include "screens/Application.h"
#include "screens/ProcessState.h"
#include "screens/groups/BreakdownTableViewController.h"
#include "screens/groups/CountryGroupTableViewController.h"
#include "screens/groups/DenominationGroupTableViewController.h"
#include "screens/groups/YearGroupTableViewController.h"

#include <QHBoxLayout>
#include <QScopeGuard>
#include <QSet>
#include <QVBoxLayout>
#include <algorithm>

// The differences among the three group screens, side by side.
using Kind = GroupTableViewController::Kind;
const Kind& Kind::denomination() {
    static const Kind k{
        .searchPlaceholder =
            QT_TRANSLATE_NOOP("GroupTableViewController", "Sort and Search By Denomination"),
        .listName = QT_TRANSLATE_NOOP("GroupTableViewController", "Groups by denomination"),
        .countPredicate = "denomination = %@",
        .pluralHeader = QT_TRANSLATE_N_NOOP("GroupTableViewController", "%n Denominations"),
        .singularHeader = QT_TRANSLATE_NOOP("GroupTableViewController", "0 Denomination"),
        .select = [](const QString& v) { SelectedDenomination = v; },
        .groupValue = [](const QString& v) { return v; },
        .breakdownSegue = "showDenominationBreakdown",
        .makeCell = []() -> GroupTableViewCell* { return new DenominationgroupTableViewCell; }};
    return k;
}
const Kind& Kind::country() {
    static const Kind k{
        // As written, though it searches countries.
        .searchPlaceholder =
            QT_TRANSLATE_NOOP("GroupTableViewController", "Search By Denomination"),
        .listName = QT_TRANSLATE_NOOP("GroupTableViewController", "Groups by country"),
        .countPredicate = "country = %@",
        .pluralHeader = QT_TRANSLATE_N_NOOP("GroupTableViewController", "%n Countries"),
        .singularHeader = QT_TRANSLATE_NOOP("GroupTableViewController", "0 Country"),
        .select = [](const QString& v) { SelectedCountry = v; },
        .groupValue = [](const QString& v) { return v; },
        .breakdownSegue = "showCountryBreakdown",
        .makeCell = []() -> GroupTableViewCell* { return new CountryGroupTableViewCell; }};
    return k;
}
const Kind& Kind::year() {
    static const Kind k{.searchPlaceholder = QT_TRANSLATE_NOOP("GroupTableViewController",
                                                               "Sort and Search By Year"),
                        .listName = QT_TRANSLATE_NOOP("GroupTableViewController", "Groups by year"),
                        .countPredicate = "year = %@", // with the year's decimal text
                        .pluralHeader = QT_TRANSLATE_N_NOOP("GroupTableViewController", "%n Years"),
                        .singularHeader = QT_TRANSLATE_NOOP("GroupTableViewController", "0 Year"),
                        .select = [](const QString& v) { SelectedYear = v.toShort(); },
                        // as the 16-bit year stored above reads back
                        .groupValue = [](const QString& v) { return QString::number(v.toShort()); },
                        .breakdownSegue = "showYearBreakdown",
                        .makeCell = []() -> GroupTableViewCell* { return new YearTableViewCell; }};
    return k;
}

GroupTableViewCell::GroupTableViewCell(QWidget* parent)
    : TableViewCell(parent)
    , ValueLabel(new QLabel(this))
    , CountLabel(new QLabel(this)) {
    setObjectName(QStringLiteral("GroupCell"));
    Styling::round(this, 10, 2, Qt::black, Styling::rowColor());
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(16, 4, 16, 4);
    QFont bold = ValueLabel->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.2);
    ValueLabel->setFont(bold);
    row->addWidget(ValueLabel, 1);
    row->addWidget(CountLabel);
    setDarkMode(false);
}

void GroupTableViewCell::setDarkMode(bool dark) {
    const QString css = QStringLiteral("border: none; padding: 0px; background: transparent;") +
                        (dark ? QStringLiteral(" color: black;") : QString());
    ValueLabel->setStyleSheet(css);
    CountLabel->setStyleSheet(css);
}

GroupTableViewController::GroupTableViewController(const Kind& kind, QWidget* parent)
    : ViewController(parent)
    , searchController(new SearchController(this))
    , tableView(new TableView(this))
    , kind_(kind)
    , countKey_(Predicate::format(kind.countPredicate, QString()).terms().front().key) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(tableView);
    tableView->listView()->setAccessibleName(tr(kind.listName));
    tableView->registerCell(QStringLiteral("Cell"), [&kind] { return kind.makeCell(); });
    context = Application::viewContext();
}

void GroupTableViewController::viewDidLoad() {
    searchController->placeAbove(
        tableView, tr(kind_.searchPlaceholder),
        [this](SearchController* s) { updateSearchResultsForSearchController(s); });
    searchController->setAccessibleName(tr(kind_.searchPlaceholder));
    SortAsc = true;
    tableView->setDataSource(this);
    load();
    navigationItem().leftItems = {
        {tr("‹ Back"), [this] { UnwindSegue(); }, nullptr, QStringLiteral("BackButton")}};
    navigationItem().rightItems = {{tr("Sort"), [this] { SortButtonTapped(); }, nullptr,
                                    QStringLiteral("SortButton"),
                                    QStringLiteral("arrow.up.arrow.down")}};
    updateNavigationBar();
    DarkMode = Appearance::isDark();
}

void GroupTableViewController::sortInDirection(QStringList& list, bool ascending) {
    // Values are texts, also on the year screen: 999 sorts after 1000.
    std::sort(list.begin(), list.end(), [](const QString& a, const QString& b) {
        return PredicateDetail::compareText(a, b) < 0;
    });
    if (!ascending)
        std::reverse(list.begin(), list.end());
}

void GroupTableViewController::load() {
    // The values and their counts come from one grouped count on the store's index, never from
    // reading every coin: what the screen shows is the same. CardList and NumberOfCoins, kept
    // but never shown, stay empty.
    CardList.clear();
    refreshCounts();
    QStringList found = counts_.keys();
    sortInDirection(found, true);
    NumberOfValues = 0;
    // "Already listed" is asked once per value: a set beside the list answers it.
    QSet<QString> listed(ValueList.begin(), ValueList.end());
    for (const QString& value : std::as_const(found)) {
        // The empty text is never the first value counted, but is a group like any other.
        if (NumberOfValues == 0 && !value.isEmpty()) {
            ValueName = value;
            if (!listed.contains(value)) {
                listed.insert(value);
                ValueList.append(value);
                ++NumberOfValues;
            }
        }
        if (!listed.contains(value)) {
            listed.insert(value);
            ValueList.append(value);
            ValueName = value;
            ++NumberOfValues;
        }
    }
    sortInDirection(ValueList, SortAsc.value_or(true));
    searchKeys_.clear();
    tableView->reloadData();
}

void GroupTableViewController::refreshCounts() {
    if (countsAt_ == context->changeCount())
        return;
    // A failed count is printed as a failed fetch is, and goes on with nothing counted.
    const Result<QHash<QString, qint64>> counted =
        context->countBy(FetchRequest(QStringLiteral("Coins")), countKey_);
    if (!counted.ok())
        Console::print(QStringLiteral("Could not fetch. %1").arg(counted.error().description()));
    counts_ = counted.valueOr({});
    countsAt_ = context->changeCount();
}

void GroupTableViewController::SortButtonTapped() {
    if (!SortAsc)
        return;
    // The new order is shown from its first row, whichever way it is reloaded.
    const auto toTop = qScopeGuard([this] { tableView->scrollToTop(); });
    SortAsc = !*SortAsc;
    SortAscending = *SortAsc;
    if (!searching()) {
        load();
        return;
    }
    // Only the rows shown are reordered; the whole list keeps its order until the next load.
    sortInDirection(FilteredValueList, *SortAsc);
    tableView->reloadData();
}

void GroupTableViewController::UnwindSegue() {
    performUnwind(QStringLiteral("unwindToMenu"));
}

void GroupTableViewController::updateSearchResultsForSearchController(SearchController* search) {
    const QString text = search->text();
    if (text.isEmpty()) {
        FilteredValueList = ValueList;
    } else {
        if (searchKeys_.size() != ValueList.size()) {
            searchKeys_.clear();
            searchKeys_.reserve(ValueList.size());
            for (const QString& value : std::as_const(ValueList))
                searchKeys_.append(value.toLower());
        }
        const QString wanted = text.toLower();
        FilteredValueList.clear();
        for (qsizetype i = 0; i < ValueList.size(); ++i)
            if (!searchKeys_[i].isEmpty() && searchKeys_[i].contains(wanted))
                FilteredValueList.append(ValueList[i]);
    }
    tableView->reloadData();
}

int GroupTableViewController::numberOfRows(TableView*, int) {
    return int(listInUse().size());
}

QString GroupTableViewController::titleForHeader(TableView*, int) {
    const int n = int(ValueList.size());
    return n != 0 ? tr(kind_.pluralHeader, nullptr, n) : tr(kind_.singularHeader);
}

qint16 GroupTableViewController::countOf(const QString& value) {
    // One grouped count serves every row until the store changes.
    refreshCounts();
    const qint64 n = counts_.value(value);
    if (n > 32767)
        fatalError(QStringLiteral("A count above 32767 does not fit in 16 bits"),
                   "Pelvane/GroupTableViewController", __LINE__);
    return qint16(n);
}

TableViewCell* GroupTableViewController::cellForRow(TableView* table, IndexPath path) {
    auto* cell = static_cast<GroupTableViewCell*>(table->dequeueReusableCell("Cell"));
    cell->setDarkMode(DarkMode);
    const QString& value = listInUse().at(path.row);
    cell->ValueLabel->setText(value);
    cell->CountLabel->setText(QString::number(countOf(value)));
    return cell;
}

QString GroupTableViewController::accessibleTextForRow(TableView*, IndexPath path) {
    const QString& value = listInUse().at(path.row);
    const int n = countOf(value);
    // As the row reads: the value, then its number of coin records.
    const QString count = n == 1 ? tr("1 coin") : tr("%n coins", nullptr, n);
    return tr("%1, %2").arg(value.isEmpty() ? tr("(no value)") : value, count);
}

void GroupTableViewController::prepareForSegue(StoryboardSegue& segue, QObject*) {
    if (auto* breakdown = dynamic_cast<BreakdownTableViewController*>(segue.destination))
        breakdown->setGroup(kind_.groupValue(tapped_));
}

void GroupTableViewController::didSelectRow(TableView* table, IndexPath path) {
    tapped_ = listInUse().at(path.row);
    kind_.select(tapped_);
    table->deselectRow(path);
    if (Storyboard::hasSegue(kind_.breakdownSegue))
        performSegue(kind_.breakdownSegue, this);
}
