#pragma once
// Tabs along the bottom, each holding a navigation stack of its own. A tab's first screen is
// loaded when the tab is first shown.
#include "platform/kit/ViewController.h"

class NavigationController;
class QStackedWidget;
class QTabBar;

class TabBarController : public ViewController {
    Q_OBJECT
public:
    explicit TabBarController(QWidget* parent = nullptr);
    void setViewControllers(const QList<ViewController*>& roots, const QStringList& titles);
    int selectedIndex() const;
    void setSelectedIndex(int index);
    NavigationController* tab(int index) const;
    int count() const;

    // The top screen of the selected tab.
    ViewController* selectedScreen() const;

    // The selected tab's screen takes the keyboard.
    QWidget* preferredFocusWidget() override;
    // As wide as the selected tab's screen reads.
    int readableWidth() const override;

    // Passed on to the screen on top of the selected tab.
    void viewWillAppear(bool animated) override;
    void viewDidAppear(bool animated) override;
    void viewWillDisappear(bool animated) override;
    void viewDidDisappear(bool animated) override;

private:
    QStackedWidget* stack_;
    QTabBar* bar_;
};
