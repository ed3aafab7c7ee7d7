#pragma once
// Tabs along the bottom, each holding a navigation stack of its own.
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

    void viewWillAppear(bool animated) override;
    void viewDidAppear(bool animated) override;

private:
    QStackedWidget* stack_;
    QTabBar* bar_;
};
