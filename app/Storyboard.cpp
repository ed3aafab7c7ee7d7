#include "app/Storyboard.h"

#include "exchange/ExportViewController.h"
#include "exchange/ImportViewController.h"
#include "platform/kit/Storyboard.h"

namespace AppStoryboard {
void install() {
    Storyboard::clear();
    Storyboard::registerSegue("ImportExport", SegueKind::Push,
                              [] { return new ImportExportViewController; });
    Storyboard::registerSegue("ExportCoins", SegueKind::Push,
                              [] { return new ExportViewController; });
    Storyboard::registerSegue("ImportCoins", SegueKind::Push,
                              [] { return new ImportViewController; });
}
} // namespace AppStoryboard
