#include "KitFixture.h"
#include "platform/kit/TabBarController.h"

namespace {
QStringList events;

class Tab : public ViewController {
public:
    explicit Tab(const QString& name) { setTitle(name); }
    void viewDidLoad() override {
        events << title() + ":load";
        navigationItem().leftItems = {{"Back", [] { events << "back"; }, nullptr, "Left"}};
        navigationItem().rightItems = {
            {"Sort", [] { events << "sort"; }, nullptr, "Right", "arrow.up.arrow.down"},
            {"Print", {}, nullptr, "Off", "printer", false}};
        updateNavigationBar();
    }
    void viewWillAppear(bool) override { events << title() + ":willAppear"; }
    void viewDidAppear(bool) override { events << title() + ":didAppear"; }
    void viewWillDisappear(bool) override { events << title() + ":willDisappear"; }
    void viewDidDisappear(bool) override { events << title() + ":didDisappear"; }
};

class Footed : public TableViewDataSource {
public:
    int numberOfRows(TableView*, int) override { return 3; }
    TableViewCell* cellForRow(TableView*, IndexPath) override { return nullptr; }
    QString titleForHeader(TableView*, int) override { return "3 rows"; }
    QString titleForFooter(TableView*, int) override { return footer; }
    QString footer = "Total: 12";
};
} // namespace

TEST_F(KitTest, TabsLoadWhenFirstShownAndPassAppearAndDisappear) {
    events.clear();
    auto* tabs = new TabBarController;
    tabs->setViewControllers({new Tab("A"), new Tab("B")}, {"A", "B"});
    EXPECT_TRUE(events.isEmpty());
    window->navigationController()->pushViewController(tabs, false);
    EXPECT_EQ(events, QStringList({"A:load", "A:willAppear", "A:didAppear"}));
    events.clear();
    tabs->setSelectedIndex(1);
    EXPECT_EQ(events, QStringList({"B:load", "A:willDisappear", "B:willAppear", "A:didDisappear",
                                   "B:didAppear"}));
    events.clear();
    tabs->setSelectedIndex(0); // loaded once only
    EXPECT_EQ(events,
              QStringList({"B:willDisappear", "A:willAppear", "B:didDisappear", "A:didAppear"}));
    events.clear();
    window->navigationController()->popViewController(false);
    EXPECT_EQ(events, QStringList({"A:willDisappear", "A:didDisappear"}));

    // Bar buttons on both sides; a disabled one cannot be pressed.
    NavigationController* nav = tabs->tab(1);
    nav->findChild<QPushButton*>("Left")->click();
    nav->findChild<QPushButton*>("Right")->click();
    EXPECT_EQ(events.mid(2), QStringList({"back", "sort"}));
    EXPECT_FALSE(nav->findChild<QPushButton*>("Off")->isEnabled());
}

TEST_F(PelvaneTest, ALoneSectionsFooterIsAFixedLabelBelowTheRows) {
    Footed source;
    TableView table;
    table.setDataSource(&source);
    EXPECT_EQ(table.listView()->model()->rowCount(), 3); // no footer row among the rows
    EXPECT_EQ(table.sectionFooterLabel()->text(), "Total: 12");
    EXPECT_EQ(table.sectionFooterLabel()->alignment(), Qt::AlignCenter);
    EXPECT_FALSE(table.sectionFooterLabel()->isHidden());
    source.footer.clear();
    table.reloadData();
    EXPECT_TRUE(table.sectionFooterLabel()->isHidden());
}
