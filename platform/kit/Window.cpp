#include "platform/kit/Window.h"

#include "platform/kit/NavigationController.h"
#include "platform/kit/TabBarController.h"

#include <QKeyEvent>
#include <QShortcut>
#include <QVBoxLayout>

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
