#pragma once
// The program's window: one navigation stack, phone-sized by default, resizable to tablet and
// desktop sizes (every screen lays itself out).
#include <QWidget>

class NavigationController;
class ViewController;

class Window : public QWidget {
    Q_OBJECT
public:
    explicit Window(ViewController* root, QWidget* parent = nullptr);
    NavigationController* navigationController() const { return nav_; }

private:
    NavigationController* nav_;
};
