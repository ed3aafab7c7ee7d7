#pragma once
// Five ways to promote the program or reach its makers.
#include "platform/kit/TableView.h"
#include "platform/kit/ViewController.h"

#include <QUrl>

class RateShareTableViewController : public ViewController, public TableViewDataSource {
    Q_OBJECT
public:
    explicit RateShareTableViewController(QWidget* parent = nullptr);
    void viewDidLoad() override;

    int numberOfRows(TableView*, int) override { return 5; }
    TableViewCell* cellForRow(TableView* table, IndexPath path) override;
    QString accessibleTextForRow(TableView*, IndexPath path) override;
    int heightForRow(TableView*, IndexPath) override { return 60; }
    void didSelectRow(TableView* table, IndexPath path) override;

    const QUrl productURL = QUrl(QStringLiteral("https://pelvane.app/store"));
    const QUrl webPage = QUrl(QStringLiteral("https://pelvane.app"));
    const QString feedbackAddress = QStringLiteral("feedback@pelvane.app");
    const QString instructions = tr("Click the following link to visit the Pelvane App website");
    TableView* tableView;
};
