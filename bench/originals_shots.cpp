// Grabs the edit screen and the zoom of a coin with photo-like originals (a landscape front, a
// portrait back) to PNG files for looking at them: originals_shots OUT_DIR [WIDTH]
#include "OriginalPhotos.h"
#include "ShotWindow.h"
#include "platform/kit/NavigationController.h"
#include "screens/Application.h"
#include "screens/entry/EditViewController.h"
#include "screens/entry/ZoomViewController.h"
#include "screens/list/MainListTableViewController.h"

#include <QApplication>
#include <QTemporaryDir>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc < 2)
        return 2;
    const QString out = QString::fromLocal8Bit(argv[1]);
    QTemporaryDir dir;
    ShotWindow shots(dir.path(), argc > 2 ? QString::fromLocal8Bit(argv[2]).toInt() : 400);
    ManagedObjectContext& ctx = *Application::viewContext();
    auto coin = ctx.insert<Coins>();
    coin->setDenomination(QStringLiteral("1 Dollar"));
    coin->setYear(1964);
    coin->setQuantity(1);
    coin->setCountry(QStringLiteral("Canada"));
    coin->setFrontImage(OriginalPhotos::kept(ctx, OriginalPhotos::photo({4000, 3000}, 1)));
    coin->setBackImage(OriginalPhotos::kept(ctx, OriginalPhotos::photo({2000, 3000}, 2)));
    if (!ctx.save().ok())
        return 1;
    auto shot = [&](const char* name) {
        settle(1500);
        shots.window.grab().save(out + "/" + name + ".png");
    };
    NavigationController* nav = shots.window.navigationController();
    shots.menu->performSegue(QStringLiteral("ListCoins"));
    settle(100);
    static_cast<MainListTableViewController*>(nav->topViewController())
        ->tableView->selectRow({0, 0});
    auto* edit = static_cast<EditViewController*>(nav->topViewController());
    shot("originals-edit");
    edit->TapFrontImage();
    auto* zoom = static_cast<ZoomViewController*>(nav->topViewController());
    shot("originals-zoom");
    zoom->pinchedView(6);
    zoom->draggedView({-900, -700});
    shot("originals-zoom-in");
    return 0;
}
