// Grabs the group tables and a breakdown list to PNG files for looking at them:
// groups_shots DATA_DIR OUT_DIR WIDTH [dark]
#include "ShotWindow.h"
#include "platform/kit/Appearance.h"
#include "platform/kit/NavigationController.h"
#include "platform/kit/TabBarController.h"
#include "screens/groups/BreakdownTableViewController.h"
#include "screens/groups/GroupTableViewController.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc < 4)
        return 2;
    const QString out = QString::fromLocal8Bit(argv[2]);
    const int width = QString::fromLocal8Bit(argv[3]).toInt();
    const bool dark = argc > 4;
    if (dark)
        Appearance::setDark(true);
    const QString suffix = QStringLiteral("-%1%2").arg(width).arg(dark ? "-dark" : "");
    ShotWindow shots(QString::fromLocal8Bit(argv[1]), width);
    auto* menu = shots.menu;
    Window& window = shots.window;
    auto shot = [&](const char* name) {
        settle(150);
        window.grab().save(out + "/" + name + suffix + ".png");
    };

    menu->performSegue(QStringLiteral("TabBarController"));
    auto* tabs = static_cast<TabBarController*>(window.navigationController()->topViewController());
    const char* names[] = {"groups-denomination", "groups-country", "groups-year"};
    for (int tab = 0; tab < 3; ++tab) {
        tabs->setSelectedIndex(tab);
        shot(names[tab]);
    }
    tabs->setSelectedIndex(0);
    auto* denominations =
        static_cast<GroupTableViewController*>(tabs->tab(0)->viewControllers().value(0));
    denominations->searchController->setText(QStringLiteral("cent"));
    shot("groups-search");
    // The group with the most coins.
    int largest = 0;
    for (int row = 1; row < denominations->FilteredValueList.size(); ++row)
        if (denominations->countOf(denominations->FilteredValueList[row]) >
            denominations->countOf(denominations->FilteredValueList[largest]))
            largest = row;
    denominations->tableView->selectRow({0, largest});
    auto* breakdown = static_cast<BreakdownTableViewController*>(tabs->tab(0)->topViewController());
    shot("breakdown");
    breakdown->searchController->setText(QStringLiteral("19"));
    shot("breakdown-search");
    return 0;
}
