#pragma once
// What the collection is worth: every coin with its value, the number and value of the whole
// collection, outside price guides and a web search for one year and denomination, a picture of
// the screen to share, and a new unit value for every coin of the denomination and year tapped.
#include "model/Records.h"
#include "platform/kit/TableView.h"
#include "platform/kit/TextInput.h"
#include "platform/kit/ViewController.h"
#include "screens/CoinPictureCache.h"

#include <QPushButton>
#include <QUrl>
#include <optional>

class ValuationViewController : public ViewController,
                                public TableViewDataSource,
                                public TextInputDelegate {
    Q_OBJECT
public:
    explicit ValuationViewController(QWidget* parent = nullptr);
    void viewDidLoad() override;

    void FindValueOnWeb();
    void FindCoinPriceOnPCGS();
    void FindCoinPriceOnNGC();
    void shareButtonClicked();
    void SaveNewCardButtonClicked();

    int numberOfRows(TableView*, int section) override;
    TableViewCell* cellForRow(TableView* table, IndexPath path) override;
    QString accessibleTextForRow(TableView*, IndexPath path) override;
    // The three lines of a coin's row, as drawn and as read.
    static QStringList rowLines(const Coins& coin);
    int heightForRow(TableView*, IndexPath) override { return 100; }
    void didSelectRow(TableView* table, IndexPath path) override;
    // The new value takes digits and points only; how many points is not checked here.
    bool shouldChangeCharacters(QObject* input, int start, int length,
                                const QString& replacement) override;

    // The price guides' pages.
    static inline const QUrl PCGSPriceList = QUrl(QStringLiteral("https://www.pcgs.com/prices"));
    static inline const QUrl NGCPriceGuide =
        QUrl(QStringLiteral("https://www.ngccoin.com/price-guide/united-states/"));

    QList<CoinPtr> CoinList;
    qint16 CoinCount = 0;
    float CoinValue = 0;
    // The row tapped last: what a new value is stored for, whatever the fields say by then.
    QString Denomination;
    QString CoinYear;
    QImage ScreenShotImage;
    TextField *QuantityTextField, *TotalValueTextField, *YearTextField, *DenominationTextField,
        *NewValueTextField;
    QPushButton *SearchButton, *PCGSButton, *NGCCoinButton, *SaveButton;
    TableView* ValueTableView;
    bool DarkMode = false;
    ManagedObjectContext* context = nullptr;
    ManagedObjectContext* managedObjectContext = nullptr;

protected:
    void resizeEvent(QResizeEvent* event) override;
    // Its wide arrangement puts every control in one row above the list.
    int readableWidth() const override { return 1240; }
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void loadCoins();
    // Fields and buttons above the list: in one row when the screen is wide, stacked otherwise.
    void arrange(bool wide);
    QWidget* controls_;
    QList<QWidget*> captioned_; // the five fields, each under its caption
    std::optional<bool> wide_;
    CoinPictureCache pictures_;
};
