// Main-list figures on a collection of 32,000 coins with pictures: opening the list, one
// search keystroke for a text key and a numeric key, a sort choice. One figure per line.
#include "BenchProgram.h"
#include "platform/kit/NavigationController.h"
#include "screens/list/MainListTableViewController.h"

using namespace BenchCollection;

int main(int argc, char** argv) {
    const int n = 32000;
    Program program(argc, argv, n);
    Window& window = *program.window;
    MainMenuViewController* menu = program.menu;

    // Open: the fetch of every coin, then the first paint of the window.
    QElapsedTimer t;
    t.start();
    menu->performSegue(QStringLiteral("ListCoins"));
    QApplication::processEvents(); // the list lays its rows out on the next turn
    auto* list = static_cast<MainListTableViewController*>(
        window.navigationController()->topViewController());
    const int drawnByEvents = list->tableView->cellsRequested();
    window.repaint();
    const double open = ms(t);
    if (list->CoinList.size() != n)
        return 1;
    print("list: open 32,000 coins (fetch + first paint)", open, "ms", "<= 200 ms");
    print("list: rows drawn by the first paint", drawnByEvents, "", "visible");
    print("list: rows drawn by the next paint", list->tableView->cellsRequested() - drawnByEvents,
          "", "visible");

    auto keystrokes = [&](const QString& sort, const QString& typed) {
        list->chooseSort(sort);
        list->searchController->setActive(true);
        list->searchController->clear();
        window.repaint();
        double worst = 0;
        for (int i = 1; i <= typed.size(); ++i) {
            QElapsedTimer k;
            k.start();
            list->searchController->setText(typed.left(i));
            const double filtered = ms(k);
            QApplication::processEvents();
            const double laidOut = ms(k);
            window.repaint();
            worst = std::max(worst, ms(k));
            if (qEnvironmentVariableIsSet("PELVANE_BENCH_DETAIL"))
                std::printf("  %s: filter %.1f, layout %.1f, paint %.1f ms\n",
                            qPrintable(typed.left(i)), filtered, laidOut - filtered,
                            ms(k) - laidOut);
        }
        list->searchController->clear();
        list->searchController->setActive(false);
        return worst;
    };
    print("list: slowest keystroke, text key (\"1 Cent\")", keystrokes("By Name", "1 Cent"), "ms",
          "<= 16 ms");
    print("list: slowest keystroke, numeric key (\"1964\")", keystrokes("By Year", "1964"), "ms",
          "<= 16 ms");

    const int drawnBefore = list->tableView->cellsRequested();
    t.restart();
    list->chooseSort(QStringLiteral("By Value"));
    const double fetched = ms(t);
    QApplication::processEvents();
    const double laidOut = ms(t);
    window.repaint();
    if (qEnvironmentVariableIsSet("PELVANE_BENCH_DETAIL"))
        std::printf("  sort: fetch %.1f, layout %.1f, paint %.1f ms\n", fetched, laidOut - fetched,
                    ms(t) - laidOut);
    print("list: sort by value (fetch + paint)", ms(t), "ms", "<= 200 ms");
    print("list: rows drawn by that paint", list->tableView->cellsRequested() - drawnBefore, "",
          "visible");
    return 0;
}
