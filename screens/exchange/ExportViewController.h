#pragma once
// "Export Coins": builds the exchange file of the whole collection, shows it, and hands it to
// the share sheet ("Save To Files") or to a mail.
#include "model/Records.h"
#include "platform/kit/TextInput.h"
#include "platform/kit/ViewController.h"
#include "platform/kit/Views.h"

#include <QPushButton>
#include <optional>

class ExportViewController : public ViewController {
    Q_OBJECT
public:
    explicit ExportViewController(QWidget* parent = nullptr);
    void viewDidLoad() override;

    void CreateUpdateFile();
    void SaveToFiles();
    void WriteTextFile();

    QPushButton *ExportButton, *SaveButton, *EmailButton;
    TextView *ExportTextView, *HelpTextView;
    ProgressView* ProgressView_;
    ActivityIndicator* activityIndicator;
    ManagedObjectContext* managedObjectContext = nullptr;
    QList<CoinPtr> theEntryList;
    // A counter of 10 units, whatever the number of coins: the bar is full from the tenth on.
    struct {
        qint64 totalUnitCount = 10;
        qint64 completedUnitCount = 0;
        double fractionCompleted() const {
            return std::min(1.0, double(completedUnitCount) / double(totalUnitCount));
        }
    } progress;
    std::optional<QString> DataString;
    bool DarkMode = false;

protected:
    void resizeEvent(QResizeEvent* event) override;
};
