#include "app/Storyboard.h"

#include "exchange/ExportViewController.h"
#include "exchange/ImportViewController.h"
#include "platform/kit/Storyboard.h"
#include "platform/kit/TabBarController.h"
#include "screens/entry/AddViewController.h"
#include "screens/entry/EditViewController.h"
#include "screens/entry/NotesViewController.h"
#include "screens/entry/ZoomViewController.h"
#include "screens/feedback/RateShareTableViewController.h"
#include "screens/groups/CountryBreakdownTableViewController.h"
#include "screens/groups/CountryGroupTableViewController.h"
#include "screens/groups/DenominationBreakdownTableViewController.h"
#include "screens/groups/DenominationGroupTableViewController.h"
#include "screens/groups/YearBreakdownTableViewController.h"
#include "screens/groups/YearGroupTableViewController.h"
#include "screens/list/MainListTableViewController.h"

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
    push("TabBarController", [] {
        auto* tabs = new TabBarController;
        tabs->setViewControllers({new DenominationGroupTableViewController,
                                  new CountryGroupTableViewController,
                                  new YearGroupTableViewController},
                                 {"Denomination", "Country", "Year"});
        return tabs;
    });
    push("showDenominationBreakdown", [] { return new DenominationBreakdownTableViewController; });
    push("showCountryBreakdown", [] { return new CountryBreakdownTableViewController; });
    push("showYearBreakdown", [] { return new YearBreakdownTableViewController; });
    push("Grouped", [] { return new EditViewController; });
}
} // namespace AppStoryboard
