#pragma once
// The program as the benchmarks and screen grabs run it: the collection in a folder, the
// delegate, the storyboard with the recording fakes, and the menu in a phone-sized window.
#include "BenchCollection.h"
#include "Settle.h"
#include "app/AppDelegate.h"
#include "app/AppStoryboard.h"
#include "app/LaunchOptions.h"
#include "platform/fakes/Fakes.h"
#include "platform/kit/NavigationController.h"
#include "platform/kit/Window.h"
#include "screens/menu/MainMenuViewController.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

namespace BenchProgram {

inline double ms(const QElapsedTimer& t) {
    return double(t.nsecsElapsed()) / 1e6;
}

using ::settle;

class Running {
public:
    explicit Running(const QString& dataDir)
        : folder_((useDataDirectory(dataDir), dataDir))
        , fakes(Fakes::install())
        , menu(startMenu())
        , window(menu) {
        window.show();
        QApplication::processEvents();
    }
    NavigationController* nav() const { return window.navigationController(); }

private:
    static MainMenuViewController* startMenu() {
        AppStoryboard::install();
        return new MainMenuViewController;
    }
    QString folder_;

public:
    AppDelegate delegate;
    Fakes fakes;
    MainMenuViewController* menu;
    Window window;
};

} // namespace BenchProgram

namespace BenchCollection {

using BenchProgram::ms;

// The program on a freshly built benchmark collection; owns the application object too,
// started on the offscreen platform unless a display was chosen (a run a reader listens to).
struct Program {
    Program(int& argc, char** argv, int coins)
        : app(offscreen(argc), argv) {
        build(dir.path(), coins);
        running = std::make_unique<BenchProgram::Running>(dir.path());
        menu = running->menu;
        window = &running->window;
    }
    static int& offscreen(int& argc) {
        if (qgetenv("QT_QPA_PLATFORM") != "xcb")
            qputenv("QT_QPA_PLATFORM", "offscreen");
        return argc;
    }
    QApplication app;
    QTemporaryDir dir;
    std::unique_ptr<BenchProgram::Running> running;
    MainMenuViewController* menu = nullptr;
    Window* window = nullptr;
};

} // namespace BenchCollection
