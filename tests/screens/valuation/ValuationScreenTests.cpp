#include "../ScreenFixture.h"
#include "screens/valuation/ValuationTableViewCell.h"
#include "screens/valuation/ValuationViewController.h"

#include <QLocale>

class ValuationTest : public DollarScreenTest {
protected:
    ValuationViewController* open() {
        menu->performSegue("CoinValuation");
        return topAs<ValuationViewController>();
    }
    // The alert the screen shows now, with one "OK", which is then pressed.
    void expectOkAlert(ValuationViewController* screen, const char* title, const char* message) {
        AlertController* alert = screen->presentedAlert();
        ASSERT_NE(alert, nullptr);
        EXPECT_EQ(alert->title(), title);
        EXPECT_EQ(alert->message(), message);
        EXPECT_EQ(alert->actionTitles(), QStringList({"OK"}));
        alert->triggerAction("OK");
    }
    ValuationTableViewCell* row(ValuationViewController* screen, int i) {
        return static_cast<ValuationTableViewCell*>(
            screen->cellForRow(screen->ValueTableView, {0, i}));
    }
};

TEST_F(ValuationTest, OpensWithTotalsRowsAndPlaceholderPictures) {
    auto withPicture = addCoin("Lincoln Cent", 1909, 2, 3.5f);
    withPicture->setFrontImage(coinPicture());
    ctx().save();
    addCoin("Buffalo Nickel", 1937, 0, 20.0f); // counts as no coin here
    addCoin("Mercury Dime", 1944, 3, 1.25f);
    auto* screen = open();
    ASSERT_NE(screen, nullptr);
    EXPECT_EQ(screen->title(), "Coin Valuation");
    EXPECT_EQ(screen->CoinList.size(), 3);
    EXPECT_EQ(screen->CoinList.first(), withPicture); // store order
    EXPECT_EQ(screen->CoinCount, 5);
    EXPECT_FLOAT_EQ(screen->CoinValue, 10.75f);
    EXPECT_EQ(screen->QuantityTextField->text(), "5");
    EXPECT_EQ(screen->TotalValueTextField->text(), "$10.75");
    EXPECT_FALSE(screen->SaveButton->isEnabled());
    EXPECT_EQ(screen->ValueTableView->numberOfRows(0), 3);

    auto* cell = row(screen, 0);
    EXPECT_EQ(cell->DenominationLabel->text(), "Denomination: Lincoln Cent  Year: 1909");
    EXPECT_EQ(cell->SecondLabel->text(), "Quantity: 2");
    EXPECT_EQ(cell->ThirdLabel->text(), "Value: $3.50");
    EXPECT_EQ(cell->CoinImage->image().size(), QSize(100, 100));
    cell = row(screen, 1);
    EXPECT_EQ(cell->SecondLabel->text(), "Quantity: 0");
    // The shipped plain coin stands in for a missing picture; it is drawn, not blank.
    const QImage placeholder = cell->CoinImage->image();
    ASSERT_FALSE(placeholder.isNull());
    EXPECT_NE(placeholder.size(), QSize(100, 100));
    EXPECT_GT(qAlpha(placeholder.pixel(placeholder.rect().center())), 0);
    EXPECT_EQ(qAlpha(placeholder.pixel(0, 0)), 0);
}

TEST_F(ValuationTest, AnEmptyCollectionShowsZeroTotals) {
    auto* screen = open();
    EXPECT_EQ(screen->QuantityTextField->text(), "0");
    EXPECT_EQ(screen->TotalValueTextField->text(), "$0.00");
    EXPECT_EQ(screen->ValueTableView->numberOfRows(0), 0);
}

TEST_F(ValuationTest, RevaluesEveryCoinOfTheTappedDenominationAndYear) {
    auto a = addCoin("Lincoln Cent", 1909, 1, 1.0f);
    auto b = addCoin("Lincoln Cent", 1909, 2, 2.0f);
    auto c = addCoin("Lincoln Cent", 1909, 1, 3.0f);
    auto otherYear = addCoin("Lincoln Cent", 1910, 1, 4.0f);
    auto otherName = addCoin("Indian Cent", 1909, 1, 5.0f);
    auto* screen = open();

    screen->SaveNewCardButtonClicked();
    expectOkAlert(screen, "Record not Saved!", "New Value not Entered");

    screen->ValueTableView->selectRow({0, 1});
    EXPECT_EQ(screen->YearTextField->text(), "1909");
    EXPECT_EQ(screen->DenominationTextField->text(), "Lincoln Cent");
    EXPECT_EQ(screen->CoinYear, "1909");
    EXPECT_EQ(screen->Denomination, "Lincoln Cent");
    EXPECT_TRUE(screen->SaveButton->isEnabled());
    EXPECT_TRUE(screen->SaveButton->styleSheet().contains(QColor(Qt::cyan).name()));

    // Letters are refused; points are not counted, so 1.2.3 goes in and then stores nothing.
    QTest::keyClicks(screen->NewValueTextField, "1x.2.3");
    EXPECT_EQ(screen->NewValueTextField->text(), "1.2.3");
    screen->SaveButton->click();
    EXPECT_EQ(screen->NewValueTextField->text(), "");
    EXPECT_EQ(a->value(), 1.0f);
    EXPECT_EQ(b->value(), 2.0f);

    // An edited field does not redirect the revaluation: the tapped row's values count.
    screen->YearTextField->setText("1910");
    screen->DenominationTextField->setText("Indian Cent");
    QTest::keyClicks(screen->NewValueTextField, "7.5");
    screen->SaveButton->click();
    EXPECT_EQ(screen->NewValueTextField->text(), "");
    for (const CoinPtr& coin : {a, b, c})
        EXPECT_EQ(coin->value(), 7.5f);
    EXPECT_EQ(otherYear->value(), 4.0f);
    EXPECT_EQ(otherName->value(), 5.0f);
    EXPECT_EQ(row(screen, 1)->ThirdLabel->text(), "Value: $7.50");
    // The totals keep their figures until the screen opens again.
    EXPECT_EQ(screen->TotalValueTextField->text(), "$17.00");

    // The new values are in the store.
    window.reset();
    relaunch();
    QList<float> values;
    for (const CoinPtr& coin : all<Coins>())
        values << coin->value();
    EXPECT_EQ(values, QList<float>({7.5f, 7.5f, 7.5f, 4.0f, 5.0f}));
}

// A coin without a denomination is looked for as "", as everywhere else: the coins of that year
// whose denomination is "" change, those without one (the tapped coin among them) do not.
TEST_F(ValuationTest, AnAbsentDenominationIsRevaluedAsTheEmptyText) {
    auto absent = addCoin("Lincoln Cent", 1909, 1, 1.0f);
    absent->setValue(Coins::Attr::denomination, QVariant());
    auto alsoAbsent = addCoin("Lincoln Cent", 1909, 1, 2.0f);
    alsoAbsent->setValue(Coins::Attr::denomination, QVariant());
    auto empty = addCoin("", 1909, 1, 3.0f);
    auto otherYear = addCoin("", 1910, 1, 4.0f);
    ASSERT_TRUE(ctx().save().ok());
    ASSERT_FALSE(absent->hasValue(Coins::Attr::denomination));
    ASSERT_TRUE(empty->hasValue(Coins::Attr::denomination));
    auto* screen = open();
    screen->ValueTableView->selectRow({0, 0});
    EXPECT_EQ(screen->DenominationTextField->text(), "");
    QTest::keyClicks(screen->NewValueTextField, "9");
    screen->SaveButton->click();
    EXPECT_EQ(absent->value(), 1.0f);
    EXPECT_EQ(alsoAbsent->value(), 2.0f);
    EXPECT_EQ(empty->value(), 9.0f);
    EXPECT_EQ(otherYear->value(), 4.0f);
}

TEST_F(ValuationTest, LooksPricesUpOnTheWebAndInThePriceGuides) {
    addCoin("Lincoln   Cent", 1909);
    auto* screen = open();
    screen->FindValueOnWeb();
    expectOkAlert(screen, "No Search", "Required Fields Year and Denomination Not Entered");
    screen->YearTextField->setText("1909");
    screen->SearchButton->click(); // the denomination is still empty
    expectOkAlert(screen, "No Search", "Required Fields Year and Denomination Not Entered");
    EXPECT_TRUE(fakes.browser->inApp.isEmpty());

    // Three blanks in a row leave two plus signs: "++" is replaced in one pass only.
    screen->ValueTableView->selectRow({0, 0});
    screen->SearchButton->click();
    ASSERT_EQ(fakes.browser->inApp.size(), 1);
    EXPECT_EQ(fakes.browser->inApp.first().toString(),
              "https://www.google.com/search?q=+how+much+is+a+1909+Lincoln++Cent+worth");

    screen->PCGSButton->click();
    screen->NGCCoinButton->click();
    ASSERT_EQ(fakes.browser->inApp.size(), 3);
    EXPECT_EQ(fakes.browser->inApp[1].toString(), "https://www.pcgs.com/prices");
    EXPECT_EQ(fakes.browser->inApp[2].toString(),
              "https://www.ngccoin.com/price-guide/united-states/");
    EXPECT_TRUE(fakes.browser->external.isEmpty());
}

TEST_F(ValuationTest, SharesAPictureOfTheWholeScreen) {
    addCoin("Lincoln Cent", 1909);
    auto* screen = open();
    fakes.messages->canSend = false;
    screen->shareButtonClicked();
    expectOkAlert(screen, "Can't Send Text Message",
                  "Your device is not able to send text messages.");
    EXPECT_TRUE(fakes.shareSheet->presented.isEmpty());

    fakes.messages->canSend = true;
    screen->shareButtonClicked();
    ASSERT_EQ(fakes.shareSheet->presented.size(), 1);
    const QList<ShareItem>& items = fakes.shareSheet->presented.first().items;
    ASSERT_EQ(items.size(), 1);
    EXPECT_EQ(items.first().image.size(), screen->size());
    EXPECT_EQ(items.first().image, screen->ScreenShotImage);
    EXPECT_TRUE(items.first().url.isEmpty());
    EXPECT_TRUE(fakes.shareSheet->presented.first().excluded.isEmpty());
}

TEST_F(ValuationTest, ArrangesTheControlsAboveTheListAtPhoneAndDesktopWidths) {
    addCoin("Lincoln Cent", 1909);
    auto* screen = open();
    auto top = [screen](QWidget* w) { return w->mapTo(screen, QPoint(0, 0)).y(); };
    for (int width : {390, 1280}) {
        window->resize(width, 800);
        QApplication::processEvents(); // the screen arranges itself for the new width
        QApplication::processEvents(); // and the new arrangement is laid out
        const int listTop = top(screen->ValueTableView);
        for (QWidget* w : std::initializer_list<QWidget*>{
                 screen->QuantityTextField, screen->TotalValueTextField, screen->YearTextField,
                 screen->DenominationTextField, screen->NewValueTextField, screen->SearchButton,
                 screen->PCGSButton, screen->NGCCoinButton, screen->SaveButton}) {
            EXPECT_TRUE(w->isVisible());
            EXPECT_LE(top(w) + w->height(), listTop) << width;
            EXPECT_LE(w->mapTo(screen, QPoint(w->width(), 0)).x(), screen->width()) << width;
        }
        // Wide: one row of fields and buttons; narrow: the buttons below the fields.
        if (width == 1280)
            EXPECT_EQ(top(screen->QuantityTextField), top(screen->NewValueTextField));
        else
            EXPECT_GT(top(screen->PCGSButton), top(screen->YearTextField));
    }
}

TEST_F(ValuationTest, ACountPastTheSixteenBitRangeIsAFatalStop) {
    addCoin("Lincoln Cent", 1909, 32767);
    addCoin("Lincoln Cent", 1910, 1);
    EXPECT_DEATH(open(), "Fatal error");
}
