#pragma once
// The running program on a freshly built benchmark collection: the menu in a window, with
// fakes for what leaves the machine, as the screen benchmarks start it.
#include "BenchCollection.h"
#include "app/AppDelegate.h"
#include "app/CommandLine.h"
#include "app/Storyboard.h"
#include "platform/fakes/Fakes.h"
#include "platform/kit/Window.h"
#include "screens/menu/MainMenuViewController.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

namespace BenchCollection {

inline double ms(const QElapsedTimer& t) {
    return double(t.nsecsElapsed()) / 1e6;
}

// Owns the application object too, started on the offscreen platform.
struct Program {
    Program(int& argc, char** argv, int coins)
        : app(offscreen(argc), argv) {
        build(dir.path(), coins);
        useDataDirectory(dir.path());
        delegate = std::make_unique<AppDelegate>();
        Fakes::install();
        AppStoryboard::install();
        menu = new MainMenuViewController;
        window = std::make_unique<Window>(menu);
        window->show();
        QApplication::processEvents();
    }
    static int& offscreen(int& argc) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return argc;
    }
    QApplication app;
    QTemporaryDir dir;
    std::unique_ptr<AppDelegate> delegate;
    MainMenuViewController* menu = nullptr;
    std::unique_ptr<Window> window;
};

} // namespace BenchCollection
