#include "TestSupport.h"
#include "platform/kit/NavigationController.h"
#include "platform/kit/SearchController.h"
#include "platform/kit/Symbols.h"
#include "platform/kit/Window.h"

#include <QAction>
#include <QApplication>
#include <QPushButton>

class SymbolsTest : public PelvaneTest {};

// Symbols come from the resources in the colour asked for; a bar button shows its symbol
// instead of its title, and a name the resources lack leaves the title.
TEST_F(SymbolsTest, SymbolsAreTintedAndShownOnBarButtons) {
    EXPECT_TRUE(Symbols::exists("plus"));
    EXPECT_FALSE(Symbols::exists("no.such.symbol"));
    EXPECT_TRUE(Symbols::icon("no.such.symbol").isNull());
    const QImage plus = Symbols::icon("plus", 22, Qt::red).pixmap(22, 22).toImage();
    ASSERT_FALSE(plus.isNull());
    const QColor centre = plus.pixelColor(plus.width() / 2, plus.height() / 2);
    EXPECT_EQ(centre.red(), 255);
    EXPECT_EQ(centre.green(), 0);
    EXPECT_EQ(plus.pixelColor(0, 0).alpha(), 0); // outside the drawing

    auto* screen = new ViewController;
    screen->navigationItem().rightItems = {
        {"Sort", [] {}, nullptr, "SortButton", "arrow.up.arrow.down"},
        {"Other", [] {}, nullptr, "OtherButton", "no.such.symbol"}};
    Window window(screen);
    window.show();
    auto* sort = window.findChild<QPushButton*>("SortButton");
    ASSERT_NE(sort, nullptr);
    EXPECT_FALSE(sort->icon().isNull());
    EXPECT_TRUE(sort->text().isEmpty());
    EXPECT_EQ(sort->toolTip(), "Sort");
    EXPECT_EQ(window.findChild<QPushButton*>("OtherButton")->text(), "Other");

    // The search field's clear button appears with a text and empties the field.
    SearchController search;
    QStringList heard;
    search.searchResultsUpdater = [&](SearchController* s) { heard << s->text(); };
    auto* clear = search.findChild<QAction*>("ClearButton");
    ASSERT_NE(clear, nullptr);
    EXPECT_FALSE(clear->isVisible());
    search.setText("VF");
    EXPECT_TRUE(clear->isVisible());
    clear->trigger();
    EXPECT_EQ(search.text(), "");
    EXPECT_FALSE(clear->isVisible());
    EXPECT_EQ(heard, QStringList({"VF", ""}));
}
