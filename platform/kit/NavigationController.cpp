#include "platform/kit/NavigationController.h"

#include "platform/kit/Elide.h"
#include "platform/kit/Symbols.h"
#include "platform/kit/ViewController.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

NavigationController::NavigationController(ViewController* root, QWidget* parent)
    : QWidget(parent)
    , bar_(new QWidget(this))
    , back_(new QToolButton(bar_))
    , title_(new QLabel(bar_))
    , rightItems_(new QHBoxLayout)
    , stack_(new QStackedWidget(this)) {
    auto* barLayout = new QHBoxLayout(bar_);
    barLayout->setContentsMargins(8, 4, 8, 4);
    back_->setObjectName(QStringLiteral("BackButton"));
    back_->setAccessibleName(tr("Back"));
    back_->setAutoRaise(true);
    QFont bold = title_->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.15);
    title_->setFont(bold);
    title_->setAlignment(Qt::AlignCenter);
    title_->setMinimumWidth(1);
    auto* left = new QWidget(bar_);
    auto* leftLayout = new QHBoxLayout(left);
    leftLayout->setContentsMargins(0, 0, 0, 0);
    leftLayout->addWidget(back_);
    leftItems_ = new QHBoxLayout;
    leftItems_->setContentsMargins(0, 0, 0, 0);
    leftLayout->addLayout(leftItems_);
    leftLayout->addStretch();
    auto* right = new QWidget(bar_);
    rightItems_->setParent(nullptr);
    right->setLayout(rightItems_);
    rightItems_->setContentsMargins(0, 0, 0, 0);
    barLayout->addWidget(left, 2);
    barLayout->addWidget(title_, 3);
    barLayout->addWidget(right, 2);
    bar_->setMinimumHeight(44);
    column_ = new QWidget(this);
    auto* layout = new QVBoxLayout(column_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    bar_->setParent(column_);
    stack_->setParent(column_);
    layout->addWidget(bar_);
    layout->addWidget(stack_, 1);
    // The column takes the width up to its maximum; what is left goes to both sides alike.
    auto* centred = new QHBoxLayout(this);
    centred->setContentsMargins(0, 0, 0, 0);
    centred->setSpacing(0);
    centred->addStretch(1);
    centred->addWidget(column_, 1000);
    centred->addStretch(1);
    // A screen holding changes asks before they are thrown away, as Escape and Alt+Left do
    // (they click this button).
    connect(back_, &QToolButton::clicked, this, [this] {
        ViewController* top = topViewController();
        if (!top || !top->hasUnsavedChanges()) {
            popViewController(true);
            return;
        }
        top->confirmDiscard([self = QPointer<NavigationController>(this), screen = QPointer(top)] {
            if (self && screen && self->topViewController() == screen)
                self->popViewController(true);
        });
    });
    if (root)
        pushViewController(root, false);
}

ViewController* NavigationController::topViewController() const {
    return screens_.isEmpty() ? nullptr : screens_.last().data();
}

QList<ViewController*> NavigationController::viewControllers() const {
    QList<ViewController*> out;
    for (const auto& s : screens_)
        if (s)
            out << s.data();
    return out;
}

int NavigationController::indexOf(ViewController* screen) const {
    for (int i = 0; i < screens_.size(); ++i)
        if (screens_[i] == screen)
            return i;
    return -1;
}

void NavigationController::pushViewController(ViewController* screen, bool animated) {
    ViewController* previous = topViewController();
    screen->loadViewIfNeeded();
    if (previous)
        previous->viewWillDisappear(animated);
    screen->viewWillAppear(animated);
    if (previous)
        previous->releaseKeyboardFocus(this);
    screens_.append(screen);
    stack_->addWidget(screen);
    stack_->setCurrentWidget(screen);
    refreshBar();
    if (previous)
        previous->viewDidDisappear(animated);
    screen->viewDidAppear(animated);
    if (previous || isVisible())
        screen->takeKeyboardFocus();
}

ViewController* NavigationController::popViewController(bool animated) {
    if (screens_.size() < 2)
        return nullptr;
    ViewController* leaving = topViewController();
    ViewController* showing = screens_[screens_.size() - 2];
    popToViewController(showing, animated);
    return leaving;
}

void NavigationController::popToViewController(ViewController* screen, bool animated) {
    const int index = indexOf(screen);
    if (index < 0 || index == screens_.size() - 1)
        return;
    ViewController* leaving = topViewController();
    leaving->viewWillDisappear(animated);
    screen->viewWillAppear(animated);
    leaving->releaseKeyboardFocus(this);
    stack_->setCurrentWidget(screen);
    while (screens_.size() > index + 1) {
        QPointer<ViewController> gone = screens_.takeLast();
        if (gone) {
            stack_->removeWidget(gone);
            gone->hide();
        }
        if (gone == leaving)
            leaving->viewDidDisappear(animated);
        if (gone)
            gone->deleteLater();
    }
    refreshBar();
    screen->viewDidAppear(animated);
    screen->takeKeyboardFocus();
}

void NavigationController::popToRootViewController(bool animated) {
    if (!screens_.isEmpty())
        popToViewController(screens_.first(), animated);
}

void NavigationController::setNavigationBarHidden(bool hidden, bool) {
    bar_->setVisible(!hidden);
}

bool NavigationController::isNavigationBarHidden() const {
    return bar_->isHidden();
}

void NavigationController::fitReadableWidth() {
    const ViewController* top = topViewController();
    column_->setMaximumWidth(top ? top->readableWidth() : QWIDGETSIZE_MAX);
    if (container_ && container_->navigationController())
        container_->navigationController()->fitReadableWidth();
}

void NavigationController::refreshBar() {
    ViewController* top = topViewController();
    fitReadableWidth();
    fullTitle_ = top ? top->title() : QString();
    const bool canGoBack = screens_.size() > 1 && top && !top->navigationItem().hidesBackButton;
    back_->setVisible(canGoBack);
    if (canGoBack) {
        const QString previous = screens_[screens_.size() - 2]->title();
        fullBack_ = QStringLiteral("\u2039 ") + (previous.isEmpty() ? tr("Back") : previous);
        // Read out as what it does, not as an arrow and a title.
        back_->setAccessibleName(previous.isEmpty() ? tr("Back") : tr("Back to %1").arg(previous));
    }
    fitBarTexts();
    for (QHBoxLayout* items : {rightItems_, leftItems_})
        while (QLayoutItem* item = items->takeAt(0)) {
            delete item->widget();
            delete item;
        }
    rightItems_->addStretch();
    if (!top)
        return;
    auto makeButton = [top](const BarButtonItem& item) {
        auto* button = new QPushButton(item.title);
        button->setFlat(true);
        button->setObjectName(item.objectName);
        button->setEnabled(item.enabled);
        if (const QIcon icon = Symbols::icon(item.symbol, button->palette()); !icon.isNull()) {
            button->setIcon(icon);
            button->setIconSize(QSize(22, 22));
            button->setText(QString());
            button->setToolTip(item.title);
            button->setAccessibleName(item.title);
        }
        if (item.menu) {
            QMenu* menu = item.menu;
            connect(button, &QPushButton::clicked, menu, [button, menu] {
                menu->popup(button->mapToGlobal(QPoint(0, button->height())));
            });
        } else if (item.action) {
            connect(button, &QPushButton::clicked, top, item.action);
        }
        return button;
    };
    for (const BarButtonItem& item : top->navigationItem().rightItems)
        rightItems_->addWidget(makeButton(item));
    for (const BarButtonItem& item : top->navigationItem().leftItems)
        leftItems_->addWidget(makeButton(item));
}

void NavigationController::fitBarTexts() {
    // The bar's thirds stand 2 : 3 : 2; the texts take what their part leaves.
    const int width = std::min(this->width(), column_->maximumWidth()) - 16;
    title_->setText(Elide::atWord(fullTitle_, title_->fontMetrics(), width * 3 / 7 - 8));
    back_->setText(Elide::atWord(fullBack_, back_->fontMetrics(), width * 2 / 7 - 24));
    back_->setToolTip(back_->text() == fullBack_ ? QString() : fullBack_);
}

void NavigationController::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    fitBarTexts();
}

void NavigationController::setRootViewController(ViewController* screen) {
    if (!screens_.isEmpty())
        return;
    screens_.append(screen);
    stack_->addWidget(screen);
    stack_->setCurrentWidget(screen);
    refreshBar();
}

QAbstractButton* NavigationController::visibleBackButton() const {
    if (bar_->isHidden())
        return nullptr;
    for (auto* button : bar_->findChildren<QAbstractButton*>(QStringLiteral("BackButton")))
        if (button->isVisibleTo(bar_) && button->isEnabled())
            return button;
    return nullptr;
}

bool NavigationController::goBack() {
    QAbstractButton* button = visibleBackButton();
    if (button)
        button->click();
    return button != nullptr;
}

void NavigationController::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        refreshBar();
}

void NavigationController::keyPressEvent(QKeyEvent* event) {
    ViewController* top = topViewController();
    QWidget* focus = QApplication::focusWidget();
    // A key from inside the top screen was offered to it already.
    if (top && !(focus && top->isAncestorOf(focus)) && top->handleKeyCommand(event)) {
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
}
