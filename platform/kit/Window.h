#pragma once
// The program's window: one navigation stack, phone-sized by default, resizable to tablet and
// desktop sizes (every screen lays itself out).
#include "platform/core/WindowSize.h"

#include <QPointer>
#include <QSize>
#include <QWidget>

class NavigationController;
class ViewController;

class Window : public QWidget {
    Q_OBJECT
public:
    explicit Window(ViewController* root, QWidget* parent = nullptr);
    NavigationController* navigationController() const { return nav_; }
    // The screen the user sees in front: the top of the last stack presented (or of the
    // window's own), in a tab bar the selected tab's.
    ViewController* frontScreen() const;
    // Whether the screen in front, or one the user can still go back to from it, holds changes
    // not saved.
    bool hasUnsavedScreens() const;

    // A menu bar above the screens, shown while the window is wider than a phone.
    void setMenuBar(class QMenuBar* bar);
    class QMenuBar* menuBar() const {
        return menuBar_;
    }
    static constexpr int kMenuBarFromWidth = 600;
    // A banner above the screens (it takes the banner), gone when `screen` is left or closed.
    void showBanner(QWidget* banner, QWidget* screen);
    QWidget* banner() const { return banner_; }

    // Puts back the size, position and maximised state kept under `key` (a window that would
    // stand off every screen opens centred on the primary one, one larger than its screen's
    // free area is made to fit), and keeps them there on close. With nothing kept yet the
    // window opens centred at kFirstSize, or as much of it as the screen has.
    static constexpr QSize kFirstSize{WindowSize::FirstWidth, WindowSize::FirstHeight};
    void rememberGeometry(const QString& key);

protected:
    // Keys that found no focused widget go to the screen in front.
    void keyPressEvent(class QKeyEvent* event) override;
    void resizeEvent(class QResizeEvent* event) override;
    // The first screen starts with the keyboard on its first control, as every later one does.
    void showEvent(class QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    // A screen the user can still go back to with unsaved changes asks first.
    void closeEvent(class QCloseEvent* event) override;

private:
    // Keeps the window's place and size for the next start (rememberGeometry).
    void keepGeometry();
    NavigationController* nav_;
    bool discarding_ = false;
    class QMenuBar* menuBar_ = nullptr;
    QPointer<QWidget> banner_;
    QPointer<QWidget> bannerScreen_;
    QString geometryKey_;
};
