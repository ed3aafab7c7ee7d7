#include "platform/kit/AlertController.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
QList<QPointer<AlertController>>& shown() {
    static QList<QPointer<AlertController>> all;
    return all;
}
} // namespace

AlertController::AlertController(const QString& title, const QString& message, Style style)
    : title_(title)
    , message_(message)
    , style_(style)
    , panel_(new QWidget(this))
    , buttons_(new QHBoxLayout) {
    setObjectName(QStringLiteral("AlertController"));
    setAttribute(Qt::WA_StyledBackground, true);
    setStyleSheet(QStringLiteral("#AlertController { background: rgba(0, 0, 0, 110); }"));
    panel_->setObjectName(QStringLiteral("AlertPanel"));
    panel_->setAttribute(Qt::WA_StyledBackground, true);
    panel_->setStyleSheet(QStringLiteral("#AlertPanel { background: palette(window); "
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
    alert->addAction(QStringLiteral("OK"));
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
