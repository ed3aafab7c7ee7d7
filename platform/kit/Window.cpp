#include "platform/kit/Window.h"

#include "platform/kit/NavigationController.h"

#include <QVBoxLayout>

Window::Window(ViewController* root, QWidget* parent)
    : QWidget(parent)
    , nav_(new NavigationController(root, this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(nav_);
    resize(390, 844);
    setWindowTitle(QStringLiteral("Pelvane"));
}
