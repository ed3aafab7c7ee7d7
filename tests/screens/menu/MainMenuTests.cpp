#include "AppFixture.h"
#include "app/AppStoryboard.h"
#include "platform/core/Console.h"
#include "platform/kit/NavigationController.h"
#include "platform/kit/TabBarController.h"
#include "platform/kit/Window.h"
#include "screens/menu/MainMenuViewController.h"

#include <QApplication>
#include <QTest>

TEST_F(AppTest, MenuOpensAndClosesWithoutEverShowingAddCoin) {
    AppStoryboard::install();
    Storyboard::registerSegue("TabBarController", SegueKind::Push, [] {
        auto* tabs = new TabBarController;
        tabs->setViewControllers({new ViewController, new ViewController, new ViewController},
                                 {"Denomination", "Country", "Year"});
        return tabs;
    });
    auto* menu = new MainMenuViewController;
    Window window(menu);
    window.show();
    EXPECT_EQ(Console::captured().first(), "First Launch");
    EXPECT_EQ(CalledFromList, "MAINMENU");
    for (QPushButton* b : menu->MainMenuButton)
        EXPECT_TRUE(b->isHidden());
    EXPECT_TRUE(menu->GroupByButton->isEnabled()); // its screen is registered
    EXPECT_TRUE(menu->CoinValuationButton->isEnabled());

    menu->HandleButtonClick();
    EXPECT_FALSE(menu->ListCoinsButton->isHidden());
    EXPECT_FALSE(menu->ReferenceListButton->isHidden());
    EXPECT_TRUE(menu->AddCoinButton->isHidden());
    menu->HandleButtonClick();
    EXPECT_TRUE(menu->ListCoinsButton->isHidden());
    EXPECT_TRUE(menu->AddCoinButton->isHidden());

    // The group tables hide the menu's bar; coming back shows it and closes the menu.
    menu->HandleButtonClick();
    CalledFromList = "MAINCOINLIST";
    QTest::mouseClick(menu->GroupByButton, Qt::LeftButton);
    auto* nav = window.navigationController();
    ASSERT_NE(qobject_cast<TabBarController*>(nav->topViewController()), nullptr);
    EXPECT_TRUE(nav->isNavigationBarHidden());
    auto* tabs = static_cast<TabBarController*>(nav->topViewController());
    EXPECT_TRUE(tabs->tab(1)->topViewController()->performUnwind("unwindToMenu"));
    EXPECT_EQ(nav->topViewController(), menu);
    EXPECT_FALSE(nav->isNavigationBarHidden());
    EXPECT_EQ(CalledFromList, "MAINMENU");
    EXPECT_TRUE(menu->ListCoinsButton->isHidden());
}
