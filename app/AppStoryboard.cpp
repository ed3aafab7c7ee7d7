#include "app/AppStoryboard.h"

#include <QCoreApplication>

#include "platform/kit/Storyboard.h"
#include "platform/kit/TabBarController.h"
#include "screens/entry/AddViewController.h"
#include "screens/entry/EditViewController.h"
#include "screens/entry/NotesViewController.h"
#include "screens/entry/ZoomViewController.h"
#include "screens/exchange/ExportViewController.h"
#include "screens/exchange/ImportExportViewController.h"
#include "screens/exchange/ImportViewController.h"
#include "screens/feedback/RateShareTableViewController.h"
#include "screens/groups/CountryBreakdownTableViewController.h"
#include "screens/groups/CountryGroupTableViewController.h"
#include "screens/groups/DenominationBreakdownTableViewController.h"
#include "screens/groups/DenominationGroupTableViewController.h"
#include "screens/groups/PrintCoinsViewController.h"
#include "screens/groups/YearBreakdownTableViewController.h"
#include "screens/groups/YearGroupTableViewController.h"
#include "screens/journal/RecentChangesViewController.h"
#include "screens/journal/RecentlyDeletedViewController.h"
#include "screens/list/MainListTableViewController.h"
#include "screens/overview/OverviewViewController.h"
#include "screens/reference/ReferenceListScreens.h"
#include "screens/reference/ReferenceListViewController.h"
#include "screens/reference/ReferenceValueScreens.h"
#include "screens/statistics/CoinHistoryViewController.h"
#include "screens/statistics/StatisticsViewController.h"
#include "screens/valuation/ValuationViewController.h"

namespace AppStoryboard {
void install() {
    Storyboard::clear();
    auto push = [](const char* identifier, Storyboard::Factory factory) {
        Storyboard::registerSegue(QString::fromLatin1(identifier), SegueKind::Push,
                                  std::move(factory));
    };
    push("ListCoins", [] { return new MainListTableViewController; });
    push("AddCoin", [] { return new AddViewController; });
    push("showDetails", [] { return new EditViewController; });
    push("Notes", [] { return new NotesViewController; });
    push("Zoom", [] { return new ZoomViewController; });
    push("RateShare", [] { return new RateShareTableViewController; });
    push("ImportExport", [] { return new ImportExportViewController; });
    push("ExportCoins", [] { return new ExportViewController; });
    push("ImportCoins", [] { return new ImportViewController; });
    push("CoinValuation", [] { return new ValuationViewController; });
    push("Overview", [] { return new OverviewViewController; });
    // Reference lists: the hub, its three lists, their add screens and edit screens. Each list
    // owns the unwind its add and edit screens return by ("unwindToGradeTableView", ...).
    push("ReferenceLists", [] { return new ReferenceListViewController; });
    push("GradeNumberList", [] { return new GradeNumberTableViewController; });
    push("StrikeCharacterList", [] { return new StrikeCharacterTableViewController; });
    push("EdgeList", [] { return new EdgeTableViewController; });
    push("AddGradeNumber", [] { return new AddGradeNumberViewController; });
    push("AddStrikeCharacter", [] { return new AddStrikeCharacterViewController; });
    push("AddEdge", [] { return new AddEdgeViewController; });
    push("showGrade", [] { return new EditGradeNumberViewController; });
    push("showStrike", [] { return new EditStrikeCharacterViewController; });
    push("showEdge", [] { return new EditEdgeViewController; });
    push("TabBarController", [] {
        auto* tabs = new TabBarController;
        tabs->setViewControllers({new DenominationGroupTableViewController,
                                  new CountryGroupTableViewController,
                                  new YearGroupTableViewController},
                                 {QCoreApplication::translate("AppStoryboard", "Denomination"),
                                  QCoreApplication::translate("AppStoryboard", "Country"),
                                  QCoreApplication::translate("AppStoryboard", "Year")});
        return tabs;
    });
    push("showDenominationBreakdown", [] { return new DenominationBreakdownTableViewController; });
    push("showCountryBreakdown", [] { return new CountryBreakdownTableViewController; });
    push("showYearBreakdown", [] { return new YearBreakdownTableViewController; });
    push("Grouped", [] { return new EditViewController; });
    push("PrintCoins", [] { return new PrintCoinsViewController; });
    push("Statistics", [] { return new StatisticsViewController; });
    push("History", [] { return new CoinHistoryViewController; });
    push("RecentChanges", [] { return new RecentChangesViewController; });
    push("RecentlyDeleted", [] { return new RecentlyDeletedViewController; });
}
} // namespace AppStoryboard
