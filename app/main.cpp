#include "app/AppDelegate.h"
#include "app/CommandLine.h"

#include <QApplication>

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
    return 0;
}
