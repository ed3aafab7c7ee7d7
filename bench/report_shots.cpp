// Grabs the print screen of a breakdown list and writes that list's PDF report, for looking at
// them: report_shots DATA_DIR OUT_DIR WIDTH [COUNTRY]
#include "ShotWindow.h"
#include "platform/kit/NavigationController.h"
#include "platform/kit/TabBarController.h"
#include "screens/groups/BreakdownTableViewController.h"
#include "screens/groups/GroupTableViewController.h"
#include "screens/groups/PrintCoinsViewController.h"

#include <QApplication>
#include <QScrollBar>

#include <cstdio>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc < 4)
        return 2;
    const QString out = QString::fromLocal8Bit(argv[2]);
    const int width = QString::fromLocal8Bit(argv[3]).toInt();
    const QString country = argc > 4 ? QString::fromLocal8Bit(argv[4]) : "United States";
    const QString suffix = QStringLiteral("-%1").arg(width);
    ShotWindow shots(QString::fromLocal8Bit(argv[1]), width);
    auto* menu = shots.menu;
    Window& window = shots.window;
    auto shot = [&](const QString& name) {
        settle(150);
        window.grab().save(out + "/" + name + suffix + ".png");
    };

    menu->performSegue(QStringLiteral("TabBarController"));
    auto* tabs = static_cast<TabBarController*>(window.navigationController()->topViewController());
    tabs->setSelectedIndex(1);
    auto* countries =
        static_cast<GroupTableViewController*>(tabs->tab(1)->viewControllers().value(0));
    settle(100);
    int row = int(countries->ValueList.indexOf(country));
    if (row < 0) {
        std::fprintf(stderr, "no country %s among %s\n", qPrintable(country),
                     qPrintable(countries->ValueList.join(", ")));
        return 1;
    }
    countries->tableView->selectRow({0, row});
    auto* breakdown = static_cast<BreakdownTableViewController*>(tabs->tab(1)->topViewController());
    settle(100);
    breakdown->ShareCoinButtonClicked();
    settle(100);
    breakdown->PrintButtonClicked();
    auto* print = static_cast<PrintCoinsViewController*>(tabs->tab(1)->topViewController());
    shot("print-empty");
    print->CreateFileClick();
    shot("print");
    print->FileTextView->verticalScrollBar()->setValue(
        print->FileTextView->verticalScrollBar()->maximum() / 2);
    shot("print-scrolled");
    return 0;
}
