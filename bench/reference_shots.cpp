// Grabs the reference-list screens to PNG files for looking at them: reference_shots OUT_DIR
// [dark]. Runs on a fresh collection of its own, so the lists hold the values a first launch
// puts in.
#include "BenchProgram.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/Appearance.h"
#include "screens/reference/ReferenceListScreens.h"
#include "screens/reference/ReferenceValueScreens.h"

#include <QTemporaryDir>

using BenchProgram::settle;

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc < 2)
        return 2;
    const QString out = QString::fromLocal8Bit(argv[1]);
    const bool dark = argc > 2;
    const QString suffix = dark ? QStringLiteral("-dark") : QString();
    Appearance::setDark(dark);
    QTemporaryDir dir;
    BenchProgram::Running program(dir.path());
    MainMenuViewController* menu = program.menu;
    Window& window = program.window;
    applyShotSize(window);
    settle(100);
    auto shot = [&](const char* name) {
        settle(150);
        window.grab().save(out + "/" + name + suffix + ".png");
    };
    NavigationController* nav = program.nav();

    menu->performSegue("ReferenceLists");
    shot("reference-hub");
    nav->topViewController()->performSegue("GradeNumberList");
    auto* grades = static_cast<GradeNumberTableViewController*>(nav->topViewController());
    shot("reference-grades");
    grades->searchController->setText("ms/pf-6");
    grades->SortButtonTapped();
    grades->tableView->setRevealedRow(1);
    shot("reference-grades-search");
    grades->searchController->clear();

    grades->performSegue("AddGradeNumber");
    auto* add = static_cast<AddGradeNumberViewController*>(nav->topViewController());
    add->GradeTextField->setText("VF-3");
    shot("reference-add");
    add->GradeTextField->setText("VF-35");
    add->SaveGenre();
    shot("reference-add-duplicate");
    AlertController::current()->triggerAction("OK");
    nav->popViewController(false);

    grades->tableView->selectRow({0, 3});
    shot("reference-edit");
    nav->popToRootViewController(false);
    menu->performSegue("ReferenceLists");
    nav->topViewController()->performSegue("EdgeList");
    shot("reference-edges");
    return 0;
}
