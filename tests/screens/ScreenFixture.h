#pragma once
// A running program on the offscreen platform: delegate, storyboard, fakes, menu in a window.
#include "AppFixture.h"
#include "app/AppMenuBar.h"
#include "app/AppStoryboard.h"
#include "platform/fakes/Fakes.h"
#include "platform/graphics/ImageCoding.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/NavigationController.h"
#include "platform/kit/Window.h"
#include "screens/list/MainListTableViewController.h"
#include "screens/menu/MainMenuViewController.h"

#include <QApplication>
#include <QImage>
#include <QLocale>
#include <QPushButton>
#include <QTest>

// A stored coin picture (a 100 x 100 JPEG) of one colour.
inline QByteArray coinPicture(const QColor& colour = Qt::darkYellow) {
    QImage image(20, 20, QImage::Format_RGB32);
    image.fill(colour);
    return ImageCoding::coinPictureData(image);
}

class ScreenTest : public AppTest {
protected:
    void SetUp() override {
        AppTest::SetUp();
        fakes = Fakes::install();
        AppStoryboard::install();
        menu = new MainMenuViewController;
        window = std::make_unique<Window>(menu);
        window->show();
    }
    void TearDown() override {
        dismissAlert();
        window.reset();
        QApplication::processEvents();
        // Screens popped with deleteLater go now, not at the end of the process.
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        Platform::reset();
        AppTest::TearDown();
    }
    // The alert shown now, as "title / message"; empty when none is.
    static QString alertText() {
        auto* a = AlertController::current();
        return a ? a->title() + " / " + a->message() : QString();
    }
    // Answers the alert shown now with its first action.
    static void dismissAlert() {
        if (auto* a = AlertController::current())
            a->triggerAction(a->actionTitles().value(0));
    }
    QPushButton* button(const QString& name) { return window->findChild<QPushButton*>(name); }
    ViewController* top() { return window->navigationController()->topViewController(); }
    template <typename T> T* topAs() { return dynamic_cast<T*>(top()); }
    MainListTableViewController* openList() {
        menu->performSegue("ListCoins");
        return topAs<MainListTableViewController>();
    }
    CoinPtr addCoin(const QString& denomination, int year, int quantity = 1, float value = 1,
                    const QString& country = QStringLiteral("Canada"),
                    const QString& mintMark = QStringLiteral("P")) {
        auto c = ctx().insert<Coins>();
        c->setDenomination(denomination);
        c->setYear(qint16(year));
        c->setQuantity(qint16(quantity));
        c->setValue(value);
        c->setCountry(country);
        c->setMintMark(mintMark);
        EXPECT_TRUE(ctx().save().ok());
        return c;
    }
    Fakes fakes{};
    MainMenuViewController* menu = nullptr;
    std::unique_ptr<Window> window;
};

// The same in a desktop-sized window with its menu bar, active.
class MenuBarScreenTest : public ScreenTest {
protected:
    void SetUp() override {
        ScreenTest::SetUp();
        installBar();
    }
    void installBar() {
        bar = AppMenuBar::install(*window, menu);
        window->resize(1280, 800);
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    QMenuBar* bar = nullptr;
};

// The same, with money shown in US dollars whatever the machine's locale.
class DollarScreenTest : public ScreenTest {
protected:
    void SetUp() override {
        ScreenTest::SetUp();
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    }
    void TearDown() override {
        QLocale::setDefault(QLocale::c());
        ScreenTest::TearDown();
    }
};
