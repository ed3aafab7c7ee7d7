#include "platform/kit/AlertController.h"

#include "platform/kit/Appearance.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
QList<QPointer<AlertController>>& shown() {
    static QList<QPointer<AlertController>> all;
    return all;
}

// The widget an event is for: a widget itself, or the widget that owns a shortcut or action.
QWidget* widgetOf(QObject* object) {
    for (QObject* o = object; o; o = o->parent())
        if (o->isWidgetType())
            return static_cast<QWidget*>(o);
    return nullptr;
}
} // namespace

// Watches every key of the program while an alert is shown: keys, shortcuts and key releases
// meant for anything behind the top alert of a window never arrive (a Space released on a
// button behind would click it). Enter and Escape pressed there still answer the alert.
class AlertKeyboard : public QObject {
public:
    static void watch() {
        static AlertKeyboard* filter = nullptr;
        if (!filter) {
            filter = new AlertKeyboard(qApp);
            qApp->installEventFilter(filter);
        }
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        const QEvent::Type type = event->type();
        if (type != QEvent::KeyPress && type != QEvent::KeyRelease &&
            type != QEvent::ShortcutOverride && type != QEvent::Shortcut)
            return false;
        QWidget* target = widgetOf(watched);
        if (!target)
            return false;
        AlertController* top = AlertController::topmostOver(target->window());
        if (!top)
            return false;
        const bool inside = top == target || top->isAncestorOf(target);
        if (type == QEvent::ShortcutOverride) {
            // Claimed, so that no shortcut of the window fires; the key then comes as a press.
            event->accept();
            return true;
        }
        if (type == QEvent::Shortcut)
            return !inside;
        if (type == QEvent::KeyPress)
            return top->handleKey(static_cast<QKeyEvent*>(event), !inside) || !inside;
        return !inside;
    }

private:
    using QObject::QObject;
};

namespace {
// A reader announces an alert as one, with its title and message, rather than as a pane.
QAccessibleInterface* alertInterface(const QString& className, QObject* object) {
    if (className != QLatin1String("AlertController") || !object || !object->isWidgetType())
        return nullptr;
    return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::AlertMessage);
}
} // namespace

AlertController::AlertController(const QString& title, const QString& message, Style style)
    : title_(title)
    , message_(message)
    , style_(style)
    , panel_(new QWidget(this))
    , buttons_(new QHBoxLayout) {
    setObjectName(QStringLiteral("AlertController"));
    static const bool announced = (QAccessible::installFactory(alertInterface), true);
    Q_UNUSED(announced);
    setAccessibleName(title);
    setAccessibleDescription(message);
    setAttribute(Qt::WA_StyledBackground, true);
    // A dark screen needs a deeper veil and a lighter panel for the dimming to show.
    const bool dark = Appearance::isDark();
    setStyleSheet(dark ? QStringLiteral("#AlertController { background: rgba(0, 0, 0, 170); }")
                       : QStringLiteral("#AlertController { background: rgba(0, 0, 0, 110); }"));
    panel_->setObjectName(QStringLiteral("AlertPanel"));
    panel_->setAttribute(Qt::WA_StyledBackground, true);
    panel_->setStyleSheet(dark ? QStringLiteral("#AlertPanel { background: #3a3a3c; "
                                                "border-radius: 14px; border: 1px solid #8e8e93; }")
                               : QStringLiteral("#AlertPanel { background: palette(window); "
                                                "border-radius: 14px; border: 1px solid gray; }"));
    auto* layout = new QVBoxLayout(panel_);
    layout->setContentsMargins(18, 18, 18, 12);
    auto* titleLabel = new QLabel(title, panel_);
    QFont f = titleLabel->font();
    f.setBold(true);
    titleLabel->setFont(f);
    titleLabel->setAlignment(Qt::AlignCenter);
    titleLabel->setWordWrap(true);
    titleLabel->setObjectName(QStringLiteral("AlertTitle"));
    auto* messageLabel = new QLabel(message, panel_);
    messageLabel->setAlignment(Qt::AlignCenter);
    messageLabel->setWordWrap(true);
    messageLabel->setObjectName(QStringLiteral("AlertMessage"));
    layout->addWidget(titleLabel);
    layout->addWidget(messageLabel);
    layout->addSpacing(8);
    layout->addLayout(buttons_);
    auto* outer = new QVBoxLayout(this);
    outer->addStretch();
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(panel_);
    row->addStretch();
    outer->addLayout(row);
    outer->addStretch();
    panel_->setMinimumWidth(260);
    panel_->setMaximumWidth(340);
    hide();
}

AlertController* AlertController::okAlert(const QString& title, const QString& message) {
    auto* alert = new AlertController(title, message);
    alert->addAction(tr("OK"));
    return alert;
}

void AlertController::addAction(const QString& title, ActionStyle style,
                                std::function<void()> handler) {
    actions_.append({title, style, std::move(handler)});
    auto* button = new QPushButton(title, panel_);
    button->setObjectName(title);
    if (style == ActionStyle::Cancel) {
        QFont f = button->font();
        f.setBold(true);
        button->setFont(f);
    } else if (style == ActionStyle::Destructive) {
        button->setStyleSheet(QStringLiteral("color: red;"));
    }
    connect(button, &QPushButton::clicked, this, [this, title] { triggerAction(title); });
    buttons_->addWidget(button);
}

QStringList AlertController::actionTitles() const {
    QStringList out;
    for (const Action& a : actions_)
        out << a.title;
    return out;
}

void AlertController::showOver(QWidget* screen) {
    QWidget* host = screen->window();
    setParent(host);
    setGeometry(host->rect());
    host->installEventFilter(this);
    shown().append(this);
    show();
    raise();
    AlertKeyboard::watch();
    previousFocus_ = host->focusWidget();
    takeFocus();
    QAccessibleEvent shownEvent(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&shownEvent);
}

QList<QPushButton*> AlertController::buttons() const {
    QList<QPushButton*> out;
    for (int i = 0; i < buttons_->count(); ++i)
        if (auto* b = qobject_cast<QPushButton*>(buttons_->itemAt(i)->widget()))
            out << b;
    return out;
}

QString AlertController::defaultActionTitle() const {
    for (const Action& a : actions_)
        if (a.style == ActionStyle::Default)
            return a.title;
    // A destructive action is never the one Enter takes: a key pressed by habit must not
    // throw work away.
    for (const Action& a : actions_)
        if (a.style != ActionStyle::Cancel && a.style != ActionStyle::Destructive)
            return a.title;
    for (const Action& a : actions_)
        if (a.style == ActionStyle::Cancel)
            return a.title;
    return actions_.isEmpty() ? QString() : actions_.first().title;
}

QString AlertController::cancelActionTitle() const {
    for (const Action& a : actions_)
        if (a.style == ActionStyle::Cancel)
            return a.title;
    return actions_.size() == 1 ? actions_.first().title : QString();
}

void AlertController::takeFocus() {
    for (QPushButton* b : buttons())
        if (b->objectName() == defaultActionTitle()) {
            b->setFocus(Qt::ActiveWindowFocusReason);
            return;
        }
    setFocus(Qt::ActiveWindowFocusReason);
}

void AlertController::focusAction(int step) {
    const QList<QPushButton*> all = buttons();
    if (all.isEmpty())
        return;
    const int at = int(all.indexOf(qobject_cast<QPushButton*>(focusWidget())));
    const int n = int(all.size());
    all[((at < 0 ? 0 : at + step) % n + n) % n]->setFocus(Qt::TabFocusReason);
}

bool AlertController::handleKey(QKeyEvent* event, bool fromBehind) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: {
        auto* focused = qobject_cast<QPushButton*>(focusWidget());
        const QString title = !fromBehind && focused && buttons().contains(focused)
                                  ? focused->objectName()
                                  : defaultActionTitle();
        triggerAction(title);
        return true;
    }
    case Qt::Key_Escape:
        triggerAction(cancelActionTitle());
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        if (fromBehind)
            takeFocus();
        else
            focusAction(event->key() == Qt::Key_Tab ? 1 : -1);
        return true;
    default:
        if (fromBehind && !hasFocus() && !isAncestorOf(QApplication::focusWidget()))
            takeFocus();
        return false;
    }
}

bool AlertController::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && watched == parent())
        setGeometry(static_cast<QWidget*>(watched)->rect());
    return false;
}

bool AlertController::triggerAction(const QString& title) {
    for (const Action& a : actions_) {
        if (a.title != title)
            continue;
        const auto handler = a.handler;
        hide();
        shown().removeAll(this);
        deleteLater();
        // The keyboard goes to the alert below, or back where it was.
        if (AlertController* below = topmostOver(window()))
            below->takeFocus();
        else if (previousFocus_ && previousFocus_->isVisible())
            previousFocus_->setFocus(Qt::ActiveWindowFocusReason);
        if (handler)
            handler();
        return true;
    }
    return false;
}

AlertController* AlertController::current() {
    auto& all = shown();
    for (qsizetype i = all.size() - 1; i >= 0; --i)
        if (all[i] && !all[i]->isHidden())
            return all[i];
    return nullptr;
}

AlertController* AlertController::topmostOver(const QWidget* window) {
    auto& all = shown();
    for (qsizetype i = all.size() - 1; i >= 0; --i)
        if (all[i] && !all[i]->isHidden() && all[i]->window() == window)
            return all[i];
    return nullptr;
}
