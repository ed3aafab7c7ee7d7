#include "app/AppDelegate.h"
#include "app/CommandLine.h"
#include "app/Storyboard.h"
#include "exchange/CommandLine.h"
#include "platform/kit/Appearance.h"
#include "platform/kit/Window.h"
#include "screens/menu/MainMenuViewController.h"

#include <QApplication>
#include <QTimer>

#include <cstdio>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Pelvane"));
    QApplication::setOrganizationName(QStringLiteral("Pelvane"));

    const LaunchOptions options = parseLaunchOptions(QApplication::arguments());
    if (!options.error.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(options.error));
        return 2;
    }
    if (!options.dataDir.isEmpty())
        useDataDirectory(options.dataDir);

    AppDelegate delegate;
    delegate.didFinishLaunching();
    if (!options.exportFile.isEmpty())
        return Exchange::runExport(*delegate.persistentContainer().viewContext(),
                                   options.exportFile);
    if (!options.importFile.isEmpty())
        return Exchange::runImport(*delegate.persistentContainer().viewContext(),
                                   options.importFile);
    if (options.dark)
        Appearance::setDark(true);
    AppStoryboard::install();

    auto* menu = new MainMenuViewController;
    Window window(menu);
    window.show();
    if (options.openMenu)
        menu->HandleButtonClick();
    if (!options.grabFile.isEmpty()) {
        QTimer::singleShot(700, &window, [&window, file = options.grabFile] {
            window.grab().save(file);
            QApplication::quit();
        });
    }
    return QApplication::exec();
}
