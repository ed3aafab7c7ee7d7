#pragma once
// A stack of screens under a top bar (back button, title, right items). Push and pop drive the
// screens' lifecycle in order. A stack may sit in a tab of a TabBarController or be presented
// modally over another screen.
#include <QList>
#include <QPointer>
#include <QWidget>

#include "platform/kit/ViewController.h"
class QAbstractButton;
class QLabel;
class QStackedWidget;
class QToolButton;
class QHBoxLayout;

class NavigationController : public QWidget {
    Q_OBJECT
public:
    explicit NavigationController(ViewController* root = nullptr, QWidget* parent = nullptr);

    void pushViewController(ViewController* screen, bool animated = true);
    // Makes the screen the first of an empty stack without loading or showing it: a tab's
    // screen is loaded when the tab is first shown.
    void setRootViewController(ViewController* screen);
    ViewController* popViewController(bool animated = true);
    void popToViewController(ViewController* screen, bool animated = true);
    void popToRootViewController(bool animated = true);

    ViewController* topViewController() const;
    QList<ViewController*> viewControllers() const;
    int indexOf(ViewController* screen) const;

    void setNavigationBarHidden(bool hidden, bool animated = true);
    bool isNavigationBarHidden() const;
    void refreshBar();

    // The screen whose content this stack is (a tab bar controller), if any.
    ViewController* containerViewController() const { return container_; }
    void setContainerViewController(ViewController* c) { container_ = c; }
    // The screen that presented this stack modally, if any.
    ViewController* presentingViewController() const { return presenting_; }
    void setPresentingViewController(ViewController* p) { presenting_ = p; }

    // Tests press the back button through this.
    QToolButton* backButton() const { return back_; }
    // Clicks the back button the bar shows: the stack's own, or a screen's bar item named
    // "BackButton" in its place. False when the bar shows none.
    bool goBack();
    // Whether the bar shows a back button goBack() would click.
    bool canGoBack() const { return visibleBackButton() != nullptr; }
    // Bar and screen stand in a column no wider than the top screen's readable width; a
    // screen whose width changed asks again (and so does the stack holding a tab bar).
    void fitReadableWidth();

protected:
    // Keys from the bar's buttons go to the screen on top.
    void keyPressEvent(class QKeyEvent* event) override;
    // The bar's symbols are drawn in the text colour: a change of appearance draws them again.
    void changeEvent(QEvent* event) override;

private:
    QAbstractButton* visibleBackButton() const;
    // Title and back button end with an ellipsis when the bar is too narrow for them.
    void fitBarTexts();
    void resizeEvent(QResizeEvent* event) override;
    QString fullTitle_, fullBack_;
    QWidget* column_ = nullptr;
    QWidget* bar_;
    QToolButton* back_;
    QLabel* title_;
    QHBoxLayout* rightItems_;
    QHBoxLayout* leftItems_ = nullptr;
    QStackedWidget* stack_;
    QList<QPointer<ViewController>> screens_;
    QPointer<ViewController> container_;
    QPointer<ViewController> presenting_;
};
