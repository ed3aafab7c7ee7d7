#pragma once
// The program on the collection in a folder, in a phone-sized window, for benchmarks that open
// screens afresh from the menu and time each step with its layout and paint.
#include "app/AppDelegate.h"
#include "app/LaunchOptions.h"
#include "platform/kit/NavigationController.h"
#include "platform/kit/Window.h"
#include "screens/menu/MainMenuViewController.h"

#include <QApplication>
#include <QElapsedTimer>
#include <cstdio>
#include <functional>
#include <memory>

// The offscreen platform's notes about the row cells it never shows would bury the figures.
inline void hideOffscreenNotes() {
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& message) {
        if (!message.contains(QLatin1String("propagateSizeHints")))
            std::fprintf(stderr, "%s\n", qPrintable(message));
    });
}

struct BenchSession {
    explicit BenchSession(const QString& dir) {
        useDataDirectory(dir);
        delegate = std::make_unique<AppDelegate>();
        menu = new MainMenuViewController;
        window = std::make_unique<Window>(menu);
        window->resize(400, 800);
        window->show();
        QApplication::processEvents();
    }
    ~BenchSession() {
        window.reset();
        delegate.reset();
    }
    NavigationController* nav() { return window->navigationController(); }
    // Back to the menu, with the screens left and their coins gone.
    void home() {
        nav()->popToRootViewController(false);
        QApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    // Runs `step`, lets the screen lay itself out and paints the window: the time of it all.
    double timed(const std::function<void()>& step) {
        QElapsedTimer t;
        t.start();
        step();
        QApplication::processEvents();
        window->repaint();
        return double(t.nsecsElapsed()) / 1e6;
    }

    std::unique_ptr<AppDelegate> delegate;
    MainMenuViewController* menu;
    std::unique_ptr<Window> window;
};
