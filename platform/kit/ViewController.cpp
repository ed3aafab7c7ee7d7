#include "platform/kit/ViewController.h"

#include "platform/kit/AlertController.h"
#include "platform/kit/NavigationController.h"
#include "platform/kit/TableView.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

ViewController::ViewController(QWidget* parent)
    : QWidget(parent) {}

ViewController::~ViewController() {
    if (alert_)
        alert_->deleteLater();
}

void ViewController::loadViewIfNeeded() {
    if (loaded_)
        return;
    loaded_ = true;
    viewDidLoad();
}

void ViewController::setTitle(const QString& title) {
    title_ = title;
    setWindowTitle(title);
    updateNavigationBar();
}

void ViewController::updateNavigationBar() {
    if (NavigationController* nav = navigationController(); nav && nav->topViewController() == this)
        nav->refreshBar();
}

NavigationController* ViewController::navigationController() const {
    for (QObject* p = parent(); p; p = p->parent())
        if (auto* nav = qobject_cast<NavigationController*>(p))
            return nav;
    return nullptr;
}

ViewController* ViewController::presentingViewController() const {
    NavigationController* nav = navigationController();
    return nav ? nav->presentingViewController() : nullptr;
}

void ViewController::performSegue(const QString& identifier, QObject* sender) {
    const SegueKind kind = Storyboard::kindOf(identifier);
    StoryboardSegue segue{identifier, this, Storyboard::instantiate(identifier)};
    prepareForSegue(segue, sender);
    if (kind == SegueKind::Push && navigationController())
        navigationController()->pushViewController(segue.destination, true);
    else
        present(segue.destination);
}

void ViewController::registerUnwindAction(const QString& name,
                                          std::function<void(StoryboardSegue&)> action) {
    unwinds_.insert(name, std::move(action));
}

bool ViewController::performUnwind(const QString& name) {
    ViewController* from = this;
    bool skipSelf = true;
    while (from) {
        NavigationController* nav = from->navigationController();
        if (!nav)
            return false;
        for (int i = nav->indexOf(from) - (skipSelf ? 1 : 0); i >= 0; --i) {
            ViewController* candidate = nav->viewControllers().value(i);
            if (candidate && candidate->ownsUnwindAction(name)) {
                StoryboardSegue segue{name, this, candidate};
                prepareForSegue(segue, nullptr);
                candidate->unwinds_.value(name)(segue);
                // Close every modal stack between the source and the owner.
                for (NavigationController* n = navigationController(); n && n != nav;) {
                    ViewController* presenter = n->presentingViewController();
                    ViewController* container = n->containerViewController();
                    if (presenter) {
                        n->deleteLater();
                        n->hide();
                        n = presenter->navigationController();
                    } else if (container) {
                        n = container->navigationController();
                    } else {
                        break;
                    }
                }
                nav->popToViewController(candidate, true);
                return true;
            }
        }
        skipSelf = false;
        if (nav->presentingViewController())
            from = nav->presentingViewController();
        else if (nav->containerViewController())
            from = nav->containerViewController();
        else
            return false;
    }
    return false;
}

void ViewController::present(ViewController* screen) {
    QWidget* host = window();
    auto* nav = new NavigationController(nullptr, host);
    nav->setPresentingViewController(this);
    nav->setAutoFillBackground(true);
    nav->setGeometry(host->rect());
    nav->pushViewController(screen, false);
    nav->show();
    nav->raise();
    screen->takeKeyboardFocus();
}

void ViewController::dismiss() {
    NavigationController* nav = navigationController();
    if (!nav || !nav->presentingViewController())
        return;
    nav->hide();
    nav->deleteLater();
    if (ViewController* presenter = nav->presentingViewController())
        presenter->takeKeyboardFocus();
}

void ViewController::present(AlertController* alert) {
    alert_ = alert;
    alert->showOver(this);
}

AlertController* ViewController::presentedAlert() const {
    return (alert_ && !alert_->isHidden()) ? alert_.data() : nullptr;
}

void ViewController::after(int ms, std::function<void()> f) {
    QPointer<ViewController> self(this);
    QTimer::singleShot(ms, this, [self, f = std::move(f)] {
        if (self)
            f();
    });
}

namespace {
// Tells when a watched widget is enabled or disabled.
class EnabledWatcher : public QObject {
public:
    EnabledWatcher(QObject* parent, std::function<void()> changed)
        : QObject(parent)
        , changed_(std::move(changed)) {}
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::EnabledChange)
            changed_();
        return false;
    }

private:
    std::function<void()> changed_;
};
} // namespace

void ViewController::showInBar(QPushButton* button) {
    const QString name = button->objectName() + QStringLiteral("InBar");
    BarButtonItem item;
    item.title = button->text();
    item.action = [button = QPointer<QPushButton>(button)] {
        if (button)
            button->click();
    };
    item.objectName = name;
    item.enabled = button->isEnabled();
    navigationItem_.rightItems.append(item);
    button->installEventFilter(new EnabledWatcher(button, [this, button, name] {
        for (BarButtonItem& shown : navigationItem_.rightItems)
            if (shown.objectName == name)
                shown.enabled = button->isEnabled();
        updateNavigationBar();
    }));
    updateNavigationBar();
}

void ViewController::addKeyCommand(QKeySequence::StandardKey key, std::function<void()> action) {
    keyCommands_.append({key, std::move(action)});
}

bool ViewController::handleKeyCommand(QKeyEvent* event) {
    for (const auto& [key, action] : keyCommands_)
        if (event->matches(key)) {
            action();
            return true;
        }
    if (event->matches(QKeySequence::Find))
        if (auto* table = findChild<TableView*>(); table && table->isVisible())
            return table->focusSearchField();
    const bool back = event->matches(QKeySequence::Back) ||
                      (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier);
    return back && goBack();
}

bool ViewController::goBack() {
    NavigationController* nav = navigationController();
    if (!nav || nav->topViewController() != this || !nav->canGoBack())
        return false;
    // The back button asks about unsaved changes itself.
    return nav->goBack();
}

QString ViewController::discardTitle() {
    return tr("Discard changes?");
}

void ViewController::confirmDiscard(std::function<void()> discard) {
    // Asked once: a second Escape or close while the question is up answers nothing new.
    if (auto* shown = AlertController::topmostOver(window());
        shown && shown->title() == discardTitle())
        return;
    auto* alert =
        new AlertController(discardTitle(), tr("What you changed here has not been saved."));
    alert->addAction(tr("Discard"), AlertController::ActionStyle::Destructive, std::move(discard));
    alert->addAction(tr("Keep Editing"), AlertController::ActionStyle::Cancel);
    present(alert);
}

QWidget* ViewController::preferredFocusWidget() {
    if (auto* table = findChild<TableView*>())
        return table->rowsView();
    // The first control Tab would reach, so that Enter and Space act at once. A text field is
    // left for the user to choose: focused, a search would start or a form begin editing.
    for (QWidget* w = nextInFocusChain(); w && w != this; w = w->nextInFocusChain()) {
        if (!isAncestorOf(w))
            continue;
        if (!(w->focusPolicy() & Qt::TabFocus) || !w->isVisibleTo(this) || !w->isEnabled())
            continue;
        if (w->inherits("QLineEdit") || w->inherits("QTextEdit") || w->inherits("QPlainTextEdit") ||
            w->inherits("QAbstractSpinBox"))
            continue;
        return w;
    }
    return this;
}

void ViewController::takeKeyboardFocus() {
    if (AlertController::topmostOver(window()))
        return;
    // A screen that put the keyboard somewhere itself while appearing keeps it there.
    if (QWidget* focus = window()->focusWidget();
        focus && isAncestorOf(focus) && focus->isVisible())
        return;
    if (QWidget* w = preferredFocusWidget()) {
        w->setFocus(Qt::OtherFocusReason);
        // The focus frame shows where the keyboard went, as after a Tab.
        if (w != this)
            window()->setAttribute(Qt::WA_KeyboardFocusChange);
    }
}

void ViewController::releaseKeyboardFocus(QWidget* holder) {
    // Otherwise hiding the screen hands the keyboard to whatever widget comes next, which may
    // be a field of the next screen that starts editing or searching when focused.
    if (QWidget* focus = window()->focusWidget(); focus && isAncestorOf(focus))
        holder->setFocus(Qt::OtherFocusReason);
}

void ViewController::keyPressEvent(QKeyEvent* event) {
    if (handleKeyCommand(event))
        event->accept();
    else
        QWidget::keyPressEvent(event);
}
