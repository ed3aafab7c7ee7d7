#include "platform/kit/Window.h"

#include "platform/kit/NavigationController.h"
#include "platform/kit/TabBarController.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

Window::Window(ViewController* root, QWidget* parent)
    : QWidget(parent)
    , nav_(new NavigationController(root, this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(nav_);
    resize(390, 844);
    setWindowTitle(QStringLiteral("Pelvane"));
    // Alt+Left goes back from anywhere in the window, also from a button that would take the
    // arrow key for itself.
    auto* back = new QShortcut(QKeySequence::Back, this);
    connect(back, &QShortcut::activated, this, [this] {
        for (QWidget* w = frontScreen(); w && w != this; w = w->parentWidget())
            if (auto* screen = qobject_cast<ViewController*>(w); screen && screen->goBack())
                return;
    });
}

ViewController* Window::frontScreen() const {
    NavigationController* front = nav_;
    for (QObject* child : children()) // presented stacks are raised above the window's own
        if (auto* nav = qobject_cast<NavigationController*>(child); nav && nav->isVisibleTo(this))
            front = nav;
    ViewController* screen = front->topViewController();
    while (auto* tabs = qobject_cast<TabBarController*>(screen))
        screen = tabs->selectedScreen();
    return screen;
}

void Window::keyPressEvent(QKeyEvent* event) {
    QWidget* focus = focusWidget();
    if (!focus || focus == this)
        for (QWidget* w = frontScreen(); w && w != this; w = w->parentWidget())
            if (auto* screen = qobject_cast<ViewController*>(w);
                screen && screen->handleKeyCommand(event)) {
                event->accept();
                return;
            }
    QWidget::keyPressEvent(event);
}

void Window::closeEvent(QCloseEvent* event) {
    ViewController* front = frontScreen();
    // The screens in front and every one the user could go back to from there.
    QList<ViewController*> open;
    for (ViewController* screen = front; screen;) {
        NavigationController* nav = screen->navigationController();
        if (!nav)
            break;
        open += nav->viewControllers();
        screen = nav->presentingViewController() ? nav->presentingViewController()
                                                 : nav->containerViewController();
    }
    const bool unsaved = std::any_of(open.begin(), open.end(), [](ViewController* screen) {
        return screen->hasUnsavedChanges();
    });
    if (discarding_ || !unsaved || !front) {
        discarding_ = false;
        QWidget::closeEvent(event);
        return;
    }
    event->ignore();
    front->confirmDiscard([this] {
        discarding_ = true;
        close();
    });
}
