// Grabs the screens to PNG files for looking at them: shots DATA_DIR OUT_DIR [dark]
#include "Settle.h"
#include "app/AppDelegate.h"
#include "app/AppStoryboard.h"
#include "app/LaunchOptions.h"
#include "platform/fakes/Fakes.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/Appearance.h"
#include "platform/kit/NavigationController.h"
#include "platform/kit/Window.h"
#include "screens/entry/AddViewController.h"
#include "screens/entry/EditViewController.h"
#include "screens/entry/ZoomViewController.h"
#include "screens/exchange/ExportViewController.h"
#include "screens/exchange/ImportExportViewController.h"
#include "screens/exchange/ImportViewController.h"
#include "screens/list/MainListTableViewController.h"
#include "screens/menu/MainMenuViewController.h"
#include "screens/valuation/ValuationViewController.h"

#include <QFile>
#include <QFocusEvent>
#include <QPainter>

#include <QApplication>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc < 3)
        return 2;
    useDataDirectory(QString::fromLocal8Bit(argv[1]));
    const QString out = QString::fromLocal8Bit(argv[2]);
    const QString suffix = argc > 3 ? QStringLiteral("-dark") : QString();
    if (argc > 3)
        Appearance::setDark(true);
    AppDelegate delegate;
    Fakes fakes = Fakes::install();
    AppStoryboard::install();
    auto* menu = new MainMenuViewController;
    Window window(menu);
    applyShotSize(window);
    window.show();
    settle(100);
    window.grab().save(out + "/menu-closed" + suffix + ".png");
    menu->HandleButtonClick();
    settle(400);
    window.grab().save(out + "/menu-open" + suffix + ".png");

    menu->performSegue("ImportExport");
    auto* nav = window.navigationController();
    nav->topViewController()->performSegue("ImportCoins");
    auto* import = static_cast<ImportViewController*>(nav->topViewController());
    fakes.documentPicker->next = QStringLiteral(PELVANE_SOURCE_DIR "/samples/Pelvane-sample.csv");
    auto alertShown = [] {
        while (!AlertController::current())
            settle(10);
    };
    import->LoadFile();
    alertShown();
    settle(100);
    window.grab().save(out + "/import-loaded" + suffix + ".png");
    AlertController::current()->triggerAction("OK");
    // A few lines per step, so that the grab catches the merge under way.
    import->linesPerStep = 4;
    import->ImportTextFile();
    QApplication::processEvents();
    QApplication::processEvents();
    window.grab().save(out + "/import-progress" + suffix + ".png");
    alertShown();
    settle(100);
    window.grab().save(out + "/import-done" + suffix + ".png");
    AlertController::current()->triggerAction("OK");

    // A backup of the imported collection, then the question a restore of it asks.
    menu->performSegue("ImportExport");
    auto* exchange = static_cast<ImportExportViewController*>(nav->topViewController());
    const QString backup = out + "/shots-backup.sqlite";
    fakes.documentPicker->next = backup;
    exchange->BackUpCollection();
    alertShown();
    AlertController::current()->triggerAction("OK");
    fakes.documentPicker->next = backup;
    exchange->RestoreFromBackup();
    alertShown();
    settle(100);
    window.grab().save(out + "/restore" + suffix + ".png");
    AlertController::current()->triggerAction("Cancel");
    QFile::remove(backup);
    nav->popToRootViewController(false);

    menu->performSegue("ImportExport");
    nav->topViewController()->performSegue("ExportCoins");
    auto* exporter = static_cast<ExportViewController*>(nav->topViewController());
    exporter->CreateUpdateFile();
    settle(300);
    window.grab().save(out + "/export-built" + suffix + ".png");
    settle(1000);
    window.grab().save(out + "/export-alert" + suffix + ".png");
    AlertController::current()->triggerAction("OK");
    nav->popToRootViewController(false);

    auto shot = [&](const char* name) {
        settle(150);
        window.grab().save(out + "/" + name + suffix + ".png");
    };
    menu->performSegue("ListCoins");
    auto* list = static_cast<MainListTableViewController*>(nav->topViewController());
    list->chooseSort("By Year");
    shot("list");
    list->chooseSort("By Name");
    list->searchController->setText("Cent");
    shot("list-search");
    list->searchController->clear();

    list->performSegue("AddCoin");
    auto* add = static_cast<AddViewController*>(nav->topViewController());
    add->DenominationTextField->setText("Half Dollar");
    add->YearTextField->setText("1964");
    QFocusEvent focus(QEvent::FocusIn, Qt::MouseFocusReason);
    QApplication::sendEvent(add->GradeNumberTextField, &focus);
    {
        // The picker is a popup window of its own: drawn onto the grab where it stands.
        settle(150);
        QPixmap composed = window.grab();
        QPainter painter(&composed);
        painter.drawPixmap(add->GradePickerView->pos() - window.mapToGlobal(QPoint(0, 0)),
                           add->GradePickerView->grab());
        painter.end();
        composed.save(out + "/add-picker" + suffix + ".png");
    }
    add->GradePickerView->close();
    nav->popViewController(false);

    list->tableView->selectRow({0, 0});
    auto* edit = static_cast<EditViewController*>(nav->topViewController());
    shot("edit");
    edit->NotesButton->click();
    shot("notes");
    nav->popViewController(false);
    edit->TapFrontImage();
    static_cast<ZoomViewController*>(nav->topViewController())->pinchedView(1.3);
    shot("zoom");
    nav->popToRootViewController(false);
    menu->performSegue("RateShare");
    shot("rate-share");

    // Valuation at phone and desktop widths, every coin with its own picture.
    nav->popToRootViewController(false);
    menu->performSegue("CoinValuation");
    auto* valuation = static_cast<ValuationViewController*>(nav->topViewController());
    shot("valuation-open");
    valuation->ValueTableView->selectRow({0, 2});
    valuation->NewValueTextField->setText("12.50");
    shot("valuation");
    window.resize(1280, 800);
    shot("valuation-wide");
    window.resize(390, 844);
    return 0;
}
