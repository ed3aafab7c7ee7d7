#pragma once
// The printable listing of the group a breakdown list shows: fetched afresh (the group screens'
// direction, no search), shown as styled text and sent to the print dialog.
#include "model/Records.h"
#include "platform/kit/StyledTextView.h"
#include "platform/kit/ViewController.h"
#include "reports/CoinGroup.h"

#include <QPushButton>
#include <memory>
#include <optional>

class PrintCoinsViewController : public ViewController {
    Q_OBJECT
public:
    explicit PrintCoinsViewController(QWidget* parent = nullptr);
    void viewDidLoad() override;
    void viewDidDisappear(bool animated) override;
    // The group to list, handed over by the breakdown list before the screen loads. Without one
    // nothing is fetched.
    void setGroup(const CoinGroup& group) { group_ = group; }
    const std::optional<CoinGroup>& group() const { return group_; }

    // Builds the listing into the text view.
    void CreateFileClick();
    // Prints the text view (the name is kept although it prints).
    void EmailFileClick();

    QPushButton *PrintButton, *CreateFileButton;
    StyledTextView* FileTextView;
    ManagedObjectContext* managedObjectContext = nullptr;
    QList<CoinPtr> CoinList;
    int i = 0;
    QTextDocument* CoinString = nullptr; // the listing shown, owned by FileTextView

private:
    void fetch();
    std::optional<CoinGroup> group_;
};
