#pragma once
// For the screenshot tools: the program's window on the collection in a data folder, with the
// fake platform services and the storyboard, the main menu at its root, shown at a width.
#include "Settle.h"
#include "app/AppDelegate.h"
#include "app/AppStoryboard.h"
#include "app/LaunchOptions.h"
#include "platform/fakes/Fakes.h"
#include "platform/kit/Window.h"
#include "screens/menu/MainMenuViewController.h"

#include <QString>

class ShotWindow {
    // Members are made in this order: the folder first, so the store opens inside it.
    struct DataFolder {
        explicit DataFolder(const QString& dir) { useDataDirectory(dir); }
    } folder_;
    AppDelegate delegate_;

public:
    Fakes fakes;
    MainMenuViewController* menu;
    Window window;

    ShotWindow(const QString& dataDir, int width, int height = 820)
        : folder_(dataDir)
        , fakes((AppStoryboard::install(), Fakes::install()))
        , menu(new MainMenuViewController)
        , window(menu) {
        window.resize(width, height);
        window.show();
        settle(100);
    }
};
