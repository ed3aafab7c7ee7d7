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
    // The screen the user sees in front: the top of the last stack presented (or of the
    // window's own), in a tab bar the selected tab's.
    ViewController* frontScreen() const;

protected:
    // Keys that found no focused widget go to the screen in front.
    void keyPressEvent(class QKeyEvent* event) override;
    // A screen the user can still go back to with unsaved changes asks first.
    void closeEvent(class QCloseEvent* event) override;

private:
    NavigationController* nav_;
    bool discarding_ = false;
};
