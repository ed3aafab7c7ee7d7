#pragma once
// A window of plain screens built from the kit alone. Each screen notes its lifecycle, has a
// button and a Save key command; a list screen adds sections of numbered rows, each with a
// delete action, behind a search field.
#include "TestSupport.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/NavigationController.h"
#include "platform/kit/SearchController.h"
#include "platform/kit/TableView.h"
#include "platform/kit/Window.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

inline QStringList lifecycle;

class KitCell : public TableViewCell {
public:
    KitCell()
        : label(new QLabel(this)) {
        label->setGeometry(0, 0, 300, 40);
    }
    QLabel* label;
};

struct KitRows : TableViewDataSource {
    QList<QList<int>> sections{{0, 1, 2}, {10, 11}};
    QList<IndexPath> opened;
    QStringList searches;
    int cellsAsked = 0;
    int numberOfSections(TableView*) override { return int(sections.size()); }
    int numberOfRows(TableView*, int s) override { return int(sections[s].size()); }
    TableViewCell* cellForRow(TableView* t, IndexPath p) override {
        ++cellsAsked;
        auto* cell = static_cast<KitCell*>(t->dequeueReusableCell("Cell"));
        cell->label->setText(QString::number(sections[p.section][p.row]));
        return cell;
    }
    QString titleForHeader(TableView*, int s) override {
        return QStringLiteral("%1 rows").arg(sections[s].size());
    }
    void didSelectRow(TableView*, IndexPath p) override { opened << p; }
    QList<SwipeAction> trailingSwipeActions(TableView* t, IndexPath) override {
        return {{"Delete", true, [this, t](IndexPath p) {
                     sections[p.section].removeAt(p.row);
                     t->deleteRows({p});
                 }}};
    }
};

class KitScreen : public ViewController {
public:
    explicit KitScreen(const QString& name, bool withTable = false) {
        setTitle(name);
        auto* layout = new QVBoxLayout(this);
        button = new QPushButton(QStringLiteral("Act"), this);
        connect(button, &QPushButton::clicked, this, [this] { ++clicks; });
        layout->addWidget(button);
        if (withTable) {
            table = new TableView(this);
            table->registerCell("Cell", [] { return new KitCell; });
            search = new SearchController;
            search->placeAbove(table, "Search",
                               [this](SearchController* s) { rows.searches << s->text(); });
            table->setDataSource(&rows);
            layout->addWidget(table);
        }
        addKeyCommand(QKeySequence::Save, [this] { ++saves; });
    }
    void viewDidLoad() override { lifecycle << title() + ":load"; }
    void viewWillAppear(bool) override { lifecycle << title() + ":willAppear"; }
    void viewDidAppear(bool) override { lifecycle << title() + ":didAppear"; }
    void viewWillDisappear(bool) override { lifecycle << title() + ":willDisappear"; }
    void viewDidDisappear(bool) override { lifecycle << title() + ":didDisappear"; }
    void prepareForSegue(StoryboardSegue& segue, QObject*) override {
        if (auto* next = dynamic_cast<KitScreen*>(segue.destination))
            next->handedOver = title();
    }
    QPushButton* button;
    TableView* table = nullptr;
    SearchController* search = nullptr;
    KitRows rows;
    QString handedOver;
    int clicks = 0;
    int saves = 0;
};

class KitTest : public PelvaneTest {
protected:
    void SetUp() override {
        PelvaneTest::SetUp();
        lifecycle.clear();
        Storyboard::clear();
        Storyboard::registerSegue("next", SegueKind::Push, [] { return new KitScreen("Second"); });
        Storyboard::registerSegue("third", SegueKind::Push, [] { return new KitScreen("Third"); });
        Storyboard::registerSegue("modal", SegueKind::Modal, [] { return new KitScreen("Modal"); });
        Storyboard::registerSegue("list", SegueKind::Push,
                                  [] { return new KitScreen("List", true); });
        root = new KitScreen("First");
        window = std::make_unique<Window>(root);
        window->resize(390, 700);
        window->show();
    }
    void TearDown() override {
        while (auto* a = AlertController::current())
            a->triggerAction(a->actionTitles().value(0));
        window.reset();
        QApplication::processEvents();
        PelvaneTest::TearDown();
    }
    KitScreen* top() {
        return static_cast<KitScreen*>(window->navigationController()->topViewController());
    }
    KitScreen* root = nullptr;
    std::unique_ptr<Window> window;
};
