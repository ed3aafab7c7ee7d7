#include "screens/valuation/ValuationViewController.h"
#include "model/Journal.h"

#include "model/Numbers.h"
#include "model/PrintedFetch.h"
#include "model/ValueHistory.h"
#include "platform/Platform.h"
#include "platform/core/Console.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/Appearance.h"
#include "reports/Currency.h"
#include "screens/Application.h"
#include "screens/CoinCount.h"
#include "screens/TextMessageAlert.h"
#include "screens/WebSearch.h"
#include "screens/valuation/ValuationTableViewCell.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QSvgRenderer>
#include <QVBoxLayout>

// Outside any namespace, as the resource system requires.
static void loadValuationResources() {
    Q_INIT_RESOURCE(valuation);
}

namespace {
const QString kDecimal = QStringLiteral(".0123456789");
// From this width on the fields and buttons stand in one row.
constexpr int kWideFrom = 900;

// The plain coin shipped for coins without a front picture, drawn once.
QImage placeholderPicture() {
    static const QImage picture = [] {
        loadValuationResources();
        QSvgRenderer svg(QStringLiteral(":/Coins-1"));
        QImage image(200, 200, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        svg.render(&painter);
        return image;
    }();
    return picture;
}
} // namespace

ValuationViewController::ValuationViewController(QWidget* parent)
    : ViewController(parent)
    , ValueTableView(new TableView(this))
    , controls_(new QWidget(this)) {
    auto field = [this](const char* name, const QString& caption) {
        auto* box = new QWidget(controls_);
        auto* column = new QVBoxLayout(box);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(2);
        auto* label = new QLabel(caption, box);
        QFont small = label->font();
        small.setPointSizeF(small.pointSizeF() * 0.85);
        label->setFont(small);
        auto* f = new TextField(box);
        f->setObjectName(QString::fromLatin1(name));
        label->setBuddy(f);
        f->setAccessibleName(caption);
        f->setPlaceholderText(caption);
        column->addWidget(label);
        column->addWidget(f);
        captioned_.append(box);
        return f;
    };
    QuantityTextField = field("QuantityTextField", tr("Coins"));
    TotalValueTextField = field("TotalValueTextField", tr("Total Value"));
    YearTextField = field("YearTextField", tr("Year"));
    DenominationTextField = field("DenominationTextField", tr("Denomination"));
    NewValueTextField = field("NewValueTextField", tr("New Value"));
    // The totals are figures to read, not to type over.
    QuantityTextField->setReadOnly(true);
    TotalValueTextField->setReadOnly(true);
    auto button = [this](const char* name, const QString& title) {
        auto* b = new QPushButton(title, controls_);
        b->setObjectName(QString::fromLatin1(name));
        b->setMinimumHeight(36);
        return b;
    };
    SearchButton = button("SearchButton", tr("Search Web"));
    // The grading services' names; a reader hears where the button leads.
    PCGSButton = button("PCGSButton", tr("PCGS"));
    PCGSButton->setAccessibleName(tr("PCGS price guide"));
    NGCCoinButton = button("NGCCoinButton", tr("NGC"));
    NGCCoinButton->setAccessibleName(tr("NGC price guide"));
    SaveButton = button("SaveButton", tr("Save"));
    SaveButton->setAccessibleName(tr("Save the new value"));
    arrange(false);

    ValueTableView->setObjectName(QStringLiteral("ValueTableView"));
    ValueTableView->listView()->setAccessibleName(tr("Coins and their values"));
    ValueTableView->registerCell(QStringLiteral("Cell"), [] { return new ValuationTableViewCell; });
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 8, 0, 0);
    layout->addWidget(controls_);
    layout->addWidget(ValueTableView, 1);

    connect(SearchButton, &QPushButton::clicked, this, &ValuationViewController::FindValueOnWeb);
    connect(PCGSButton, &QPushButton::clicked, this, &ValuationViewController::FindCoinPriceOnPCGS);
    connect(NGCCoinButton, &QPushButton::clicked, this,
            &ValuationViewController::FindCoinPriceOnNGC);
    connect(SaveButton, &QPushButton::clicked, this,
            &ValuationViewController::SaveNewCardButtonClicked);
}

void ValuationViewController::viewDidLoad() {
    setTitle(tr("Coin Valuation"));
    for (QPushButton* b : {SearchButton, PCGSButton, NGCCoinButton, SaveButton})
        Styling::round(b, 10, 2, Qt::black);
    // A tap beside the fields ends editing; the tap itself goes on to whatever it hit.
    installEventFilter(this);
    controls_->installEventFilter(this);
    NewValueTextField->setDelegate(this);
    SaveButton->setEnabled(false);
    DarkMode = Appearance::isDark();
    navigationItem().rightItems = {
        {tr("Share"), [this] { shareButtonClicked(); }, nullptr, QStringLiteral("ShareButton")}};
    updateNavigationBar();
    loadCoins();
}

void ValuationViewController::loadCoins() {
    context = managedObjectContext = Application::viewContext();
    FetchRequest request(QStringLiteral("Coins"));
    request.returnsObjectsAsFaults = false;
    const QList<CoinPtr> fetched = fetchOrPrint<Coins>(*context, request).valueOr({});
    CoinList.reserve(fetched.size());
    // Quantities and values only: no picture is read or decoded for the totals.
    for (const CoinPtr& coin : fetched) {
        CoinList.append(coin);
        CoinCount = CoinCount::add(CoinCount, coin->quantity(), "Pelvane/ValuationViewController",
                                   __LINE__);
        CoinValue += coin->value() * float(coin->quantity());
    }
    QuantityTextField->setText(QString::number(CoinCount));
    TotalValueTextField->setText(Currency::text(double(CoinValue)));
    ValueTableView->setDataSource(this);
}

int ValuationViewController::numberOfRows(TableView*, int) {
    return int(CoinList.size());
}

TableViewCell* ValuationViewController::cellForRow(TableView* table, IndexPath path) {
    auto* cell = static_cast<ValuationTableViewCell*>(table->dequeueReusableCell("Cell"));
    const Coins& coin = *CoinList.at(path.row);
    cell->setDarkMode(DarkMode);
    cell->CoinImage->setImage(coin.hasValue(Coins::Attr::frontImage) ? pictures_.front(coin)
                                                                     : placeholderPicture());
    const QStringList lines = rowLines(coin);
    cell->DenominationLabel->setText(lines[0]);
    cell->SecondLabel->setText(lines[1]);
    cell->ThirdLabel->setText(lines[2]);
    return cell;
}

QStringList ValuationViewController::rowLines(const Coins& coin) {
    return {tr("Denomination: %1  Year: %2").arg(coin.denomination(), QString::number(coin.year())),
            tr("Quantity: %1").arg(coin.quantity()),
            tr("Value: %1").arg(Currency::text(double(coin.value())))};
}

QString ValuationViewController::accessibleTextForRow(TableView*, IndexPath path) {
    return rowLines(*CoinList.at(path.row)).join(QStringLiteral(", "));
}

void ValuationViewController::didSelectRow(TableView* table, IndexPath path) {
    const Coins& coin = *CoinList.at(path.row);
    CoinYear = QString::number(coin.year());
    YearTextField->setText(CoinYear);
    // An absent denomination is kept as "", as every other screen keeps it: the revaluation then
    // looks for "", never for the coins without one.
    Denomination = coin.denomination().isNull() ? QStringLiteral("") : coin.denomination();
    DenominationTextField->setText(Denomination);
    SaveButton->setEnabled(true);
    Styling::round(SaveButton, 10, 2, Qt::black, Qt::cyan);
    // Dark text on the light background in both appearances.
    QPalette palette = SaveButton->palette();
    palette.setColor(QPalette::ButtonText, Qt::black);
    SaveButton->setPalette(palette);
    table->deselectRow(path);
}

bool ValuationViewController::shouldChangeCharacters(QObject*, int, int,
                                                     const QString& replacement) {
    return TextInput::onlyCharactersFrom(replacement, kDecimal);
}

void ValuationViewController::FindValueOnWeb() {
    if (YearTextField->text().isEmpty() || DenominationTextField->text().isEmpty()) {
        present(AlertController::okAlert(tr("No Search"),
                                         tr("Required Fields Year and Denomination Not Entered")));
        return;
    }
    const QUrl url =
        WebSearch::valuationQuery(YearTextField->text(), DenominationTextField->text());
    if (url.isValid())
        Platform::browser().openInApp(url);
}

void ValuationViewController::FindCoinPriceOnPCGS() {
    Platform::browser().openInApp(PCGSPriceList);
}

void ValuationViewController::FindCoinPriceOnNGC() {
    Platform::browser().openInApp(NGCPriceGuide);
}

void ValuationViewController::shareButtonClicked() {
    if (!Platform::messages().canSendText()) {
        TextMessageAlert::present(this);
        return;
    }
    ScreenShotImage = grab().toImage();
    ShareItem item;
    item.image = ScreenShotImage;
    Platform::shareSheet().present({item}, {}, this);
}

void ValuationViewController::SaveNewCardButtonClicked() {
    if (NewValueTextField->text().isEmpty()) {
        present(AlertController::okAlert(tr("Record not Saved!"), tr("New Value not Entered")));
        return;
    }
    // The denomination and year of the row tapped last, not the fields' texts.
    managedObjectContext = Application::viewContext();
    FetchRequest request(QStringLiteral("Coins"));
    request.predicate =
        Predicate::andPredicate({Predicate::format(QStringLiteral("denomination=%@"), Denomination),
                                 Predicate::format(QStringLiteral("year=%@"), CoinYear)});
    const QList<CoinPtr> matching = fetchOrPrint<Coins>(*managedObjectContext, request).valueOr({});
    const ValueHistory::Cause cause(*managedObjectContext, ValueHistory::Revaluation);
    const Journal::Step step(*managedObjectContext, Journal::Revaluation,
                             Journal::coinName(Denomination, CoinYear.toInt()));
    if (const std::optional<float> value = Numbers::parseFloat(NewValueTextField->text()))
        for (const CoinPtr& coin : matching) {
            coin->setValue(*value);
            Application::saveRecord(coin);
        }
    // The totals stay as they were until the screen is opened again.
    ValueTableView->reloadData();
    NewValueTextField->setText(QString());
}

bool ValuationViewController::eventFilter(QObject* watched, QEvent* event) {
    if ((watched == this || watched == controls_) && event->type() == QEvent::MouseButtonPress)
        if (QWidget* focus = QApplication::focusWidget(); focus && isAncestorOf(focus))
            focus->clearFocus();
    return false;
}

void ValuationViewController::resizeEvent(QResizeEvent* event) {
    ViewController::resizeEvent(event);
    arrange(width() >= kWideFrom);
}

void ValuationViewController::arrange(bool wide) {
    if (wide_ == wide)
        return;
    wide_ = wide;
    delete controls_->layout();
    auto* grid = new QGridLayout(controls_);
    grid->setContentsMargins(12, 0, 12, 4);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(8);
    QWidget *quantity = captioned_[0], *total = captioned_[1], *year = captioned_[2],
            *denomination = captioned_[3], *newValue = captioned_[4];
    if (wide) {
        // Figures, what to look up, the three look-ups, the new value and its button.
        const QList<QWidget*> row = {quantity,      total,        year,
                                     denomination,  SearchButton, PCGSButton,
                                     NGCCoinButton, newValue,     SaveButton};
        for (int column = 0; column < row.size(); ++column) {
            const bool isButton = qobject_cast<QPushButton*>(row[column]) != nullptr;
            grid->addWidget(row[column], 0, column, isButton ? Qt::AlignBottom : Qt::Alignment());
            grid->setColumnStretch(column, isButton ? 1 : 2);
        }
        return;
    }
    // Six columns: two fields or three buttons to a row, the new value beside its button.
    grid->addWidget(quantity, 0, 0, 1, 3);
    grid->addWidget(total, 0, 3, 1, 3);
    grid->addWidget(year, 1, 0, 1, 3);
    grid->addWidget(denomination, 1, 3, 1, 3);
    grid->addWidget(SearchButton, 2, 0, 1, 2);
    grid->addWidget(PCGSButton, 2, 2, 1, 2);
    grid->addWidget(NGCCoinButton, 2, 4, 1, 2);
    grid->addWidget(newValue, 3, 0, 1, 4);
    grid->addWidget(SaveButton, 3, 4, 1, 2, Qt::AlignBottom);
    for (int column = 0; column < 6; ++column)
        grid->setColumnStretch(column, 1);
}
