#include "platform/kit/TabBarController.h"

#include "platform/kit/NavigationController.h"

#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

TabBarController::TabBarController(QWidget* parent)
    : ViewController(parent)
    , stack_(new QStackedWidget(this))
    , bar_(new QTabBar(this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(stack_, 1);
    layout->addWidget(bar_);
    bar_->setExpanding(true);
    bar_->setAccessibleName(tr("Sections"));
    bar_->setShape(QTabBar::RoundedSouth);
    connect(bar_, &QTabBar::currentChanged, this, [this](int i) { setSelectedIndex(i); });
}

void TabBarController::setViewControllers(const QList<ViewController*>& roots,
                                          const QStringList& titles) {
    for (int i = 0; i < roots.size(); ++i) {
        auto* nav = new NavigationController(nullptr, stack_);
        nav->setContainerViewController(this);
        nav->setRootViewController(roots[i]);
        stack_->addWidget(nav);
        bar_->addTab(titles.value(i));
    }
}

int TabBarController::selectedIndex() const {
    return stack_->currentIndex();
}

void TabBarController::setSelectedIndex(int index) {
    if (index == stack_->currentIndex() || index < 0 || index >= count())
        return;
    ViewController* leaving = tab(stack_->currentIndex())->topViewController();
    ViewController* showing = tab(index)->topViewController();
    if (showing)
        showing->loadViewIfNeeded();
    if (leaving)
        leaving->viewWillDisappear(false);
    if (showing)
        showing->viewWillAppear(false);
    if (leaving)
        leaving->releaseKeyboardFocus(this);
    stack_->setCurrentIndex(index);
    bar_->setCurrentIndex(index);
    if (leaving)
        leaving->viewDidDisappear(false);
    if (showing)
        showing->viewDidAppear(false);
    if (showing && isVisible())
        showing->takeKeyboardFocus();
}

NavigationController* TabBarController::tab(int index) const {
    return qobject_cast<NavigationController*>(stack_->widget(index));
}

int TabBarController::count() const {
    return stack_->count();
}

ViewController* TabBarController::selectedScreen() const {
    return count() ? tab(selectedIndex())->topViewController() : nullptr;
}

int TabBarController::readableWidth() const {
    const ViewController* screen = selectedScreen();
    return screen ? screen->readableWidth() : kReadableWidth;
}

void TabBarController::viewWillAppear(bool animated) {
    if (ViewController* screen = selectedScreen()) {
        screen->loadViewIfNeeded(); // a tab's screen loads when the tab is first shown
        screen->viewWillAppear(animated);
    }
}

void TabBarController::viewDidAppear(bool animated) {
    if (ViewController* screen = selectedScreen())
        screen->viewDidAppear(animated);
}

void TabBarController::viewWillDisappear(bool animated) {
    if (ViewController* screen = selectedScreen())
        screen->viewWillDisappear(animated);
}

void TabBarController::viewDidDisappear(bool animated) {
    if (ViewController* screen = selectedScreen())
        screen->viewDidDisappear(animated);
}

QWidget* TabBarController::preferredFocusWidget() {
    ViewController* screen = selectedScreen();
    return screen ? screen->preferredFocusWidget() : this;
}
