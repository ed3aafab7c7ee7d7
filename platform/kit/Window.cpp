#include "platform/kit/Window.h"

#include "platform/core/UserDefaults.h"
#include "platform/kit/ButtonKeys.h"
#include "platform/kit/NavigationController.h"
#include "platform/kit/TabBarController.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QShowEvent>
#include <QStyle>
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
    ButtonKeys::install();
    // Alt+Left goes back from anywhere in the window, also from a button that would take the
    // arrow key for itself.
    auto* back = new QShortcut(QKeySequence::Back, this);
    connect(back, &QShortcut::activated, this, [this] {
        for (QWidget* w = frontScreen(); w && w != this; w = w->parentWidget())
            if (auto* screen = qobject_cast<ViewController*>(w); screen && screen->goBack())
                return;
    });
}

void Window::setMenuBar(QMenuBar* bar) {
    menuBar_ = bar;
    layout()->setMenuBar(bar);
    bar->setVisible(width() >= kMenuBarFromWidth);
}

void Window::rememberGeometry(const QString& key) {
    geometryKey_ = key;
    const QVariantMap saved = UserDefaults::standard().objectForKey(key).toMap();
    const QRect rect(saved.value(QStringLiteral("x")).toInt(),
                     saved.value(QStringLiteral("y")).toInt(),
                     saved.value(QStringLiteral("width")).toInt(),
                     saved.value(QStringLiteral("height")).toInt());
    const QScreen* primary = QGuiApplication::primaryScreen();
    // The window's frame (its title bar) stands above what setGeometry places.
    const int titleBar = style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this);
    auto fitting = [titleBar](const QScreen* screen) {
        return screen->availableGeometry().adjusted(0, titleBar, 0, 0);
    };
    if (rect.width() < 200 || rect.height() < 200) {
        // Nothing kept yet: room for the table of coins, as much as the screen has.
        if (primary) {
            const QRect area = fitting(primary);
            QRect centred(QPoint(), kFirstSize.boundedTo(area.size()));
            centred.moveCenter(area.center());
            setGeometry(centred);
        }
        return;
    }
    // Enough of the window's top must show on some screen to take hold of it; the screen
    // showing most of it is the one it stays on.
    const QScreen* on = nullptr;
    qint64 most = 0;
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect shown = screen->availableGeometry().intersected(rect);
        const qint64 area = qint64(shown.width()) * shown.height();
        if (shown.width() >= 100 && shown.height() >= 50 && area > most) {
            on = screen;
            most = area;
        }
    }
    if (on) {
        // A screen smaller than when the window was kept: it shrinks to fit, and moves in
        // where it would stick out.
        const QRect area = fitting(on);
        QRect fitted(rect.topLeft(), rect.size().boundedTo(area.size()));
        if (fitted.width() < rect.width())
            fitted.moveLeft(
                std::clamp(fitted.left(), area.left(), area.right() - fitted.width() + 1));
        if (fitted.height() < rect.height())
            fitted.moveTop(
                std::clamp(fitted.top(), area.top(), area.bottom() - fitted.height() + 1));
        setGeometry(fitted);
    } else if (primary) {
        const QRect area = fitting(primary);
        QRect centred(QPoint(), rect.size().boundedTo(area.size()));
        centred.moveCenter(area.center());
        setGeometry(centred);
    }
    if (saved.value(QStringLiteral("maximized")).toBool())
        setWindowState(windowState() | Qt::WindowMaximized);
}

void Window::keepGeometry() {
    if (!geometryKey_.isEmpty()) {
        // The size to come back to from maximised is the one kept.
        const QRect rect = isMaximized() ? normalGeometry() : geometry();
        UserDefaults::standard().setObject(
            QVariantMap{{QStringLiteral("x"), rect.x()},
                        {QStringLiteral("y"), rect.y()},
                        {QStringLiteral("width"), rect.width()},
                        {QStringLiteral("height"), rect.height()},
                        {QStringLiteral("maximized"), isMaximized()}},
            geometryKey_);
        UserDefaults::standard().synchronize();
    }
}

void Window::showBanner(QWidget* banner, QWidget* screen) {
    delete banner_;
    if (bannerScreen_)
        bannerScreen_->removeEventFilter(this);
    banner_ = banner;
    bannerScreen_ = screen;
    static_cast<QVBoxLayout*>(layout())->insertWidget(0, banner);
    banner->show();
    // Told at once, as an alert is, where the reader is elsewhere in the window.
    QAccessibleEvent shown(banner, QAccessible::Alert);
    QAccessible::updateAccessibility(&shown);
    if (screen) {
        screen->installEventFilter(this);
        connect(screen, &QObject::destroyed, banner, &QObject::deleteLater);
    }
}

bool Window::eventFilter(QObject* watched, QEvent* event) {
    // The banner belongs to the screen it came with: leaving that screen takes it away.
    if (watched == bannerScreen_ && event->type() == QEvent::Hide && !event->spontaneous() &&
        banner_) {
        banner_->deleteLater();
        banner_ = nullptr;
        bannerScreen_->removeEventFilter(this);
    }
    return QWidget::eventFilter(watched, event);
}

void Window::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (event->spontaneous() || focusWidget())
        return;
    if (ViewController* front = frontScreen())
        front->takeKeyboardFocus();
}

void Window::resizeEvent(QResizeEvent* event) {
    // A phone-sized window keeps its height for the screens; their buttons reach everything.
    if (menuBar_)
        menuBar_->setVisible(width() >= kMenuBarFromWidth);
    QWidget::resizeEvent(event);
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

bool Window::hasUnsavedScreens() const {
    // The screens in front and every one the user could go back to from there.
    QList<ViewController*> open;
    for (ViewController* screen = frontScreen(); screen;) {
        NavigationController* nav = screen->navigationController();
        if (!nav)
            break;
        open += nav->viewControllers();
        screen = nav->presentingViewController() ? nav->presentingViewController()
                                                 : nav->containerViewController();
    }
    return std::any_of(open.begin(), open.end(),
                       [](ViewController* screen) { return screen->hasUnsavedChanges(); });
}

void Window::closeEvent(QCloseEvent* event) {
    ViewController* front = frontScreen();
    if (discarding_ || !hasUnsavedScreens() || !front) {
        discarding_ = false;
        keepGeometry();
        QWidget::closeEvent(event);
        return;
    }
    event->ignore();
    front->confirmDiscard([this] {
        discarding_ = true;
        close();
    });
}
