#include "app/Storyboard.h"

#include "exchange/ExportViewController.h"
#include "exchange/ImportViewController.h"
#include "platform/kit/Storyboard.h"
#include "screens/entry/AddViewController.h"
#include "screens/entry/EditViewController.h"
#include "screens/entry/NotesViewController.h"
#include "screens/entry/ZoomViewController.h"
#include "screens/feedback/RateShareTableViewController.h"
#include "screens/list/MainListTableViewController.h"
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
}
} // namespace AppStoryboard
