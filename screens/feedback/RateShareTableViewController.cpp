#include "screens/feedback/RateShareTableViewController.h"

#include "platform/Platform.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/Appearance.h"

#include <QLabel>
#include <QUrlQuery>
#include <QVBoxLayout>
#include <iterator>

namespace {
const char* const kRows[] = {
    QT_TRANSLATE_NOOP("RateShareTableViewController", "Rate Pelvane"),
    QT_TRANSLATE_NOOP("RateShareTableViewController", "Share Pelvane"),
    QT_TRANSLATE_NOOP("RateShareTableViewController", "Invite a Friend"),
    QT_TRANSLATE_NOOP("RateShareTableViewController", "Visit the Pelvane Website"),
    QT_TRANSLATE_NOOP("RateShareTableViewController", "Send Feedback")};
constexpr int kRowCount = int(std::size(kRows));

class RateShareCell : public TableViewCell {
public:
    RateShareCell()
        : label(new QLabel(this)) {
        setObjectName(QStringLiteral("RateShareCell"));
        Styling::round(this, 10, 2, Qt::black, Styling::rowColor());
        auto* layout = new QVBoxLayout(this);
        label->setStyleSheet(
            QStringLiteral("border: none; color: black; background: transparent;"));
        layout->addWidget(label);
    }
    QLabel* label;
};
} // namespace

RateShareTableViewController::RateShareTableViewController(QWidget* parent)
    : ViewController(parent)
    , tableView(new TableView(this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 8, 0, 0);
    layout->addWidget(tableView);
    tableView->listView()->setAccessibleName(tr("Rate & Share"));
    tableView->registerCell(QStringLiteral("Cell"), [] { return new RateShareCell; });
}

void RateShareTableViewController::viewDidLoad() {
    setTitle(tr("Rate & Share"));
    tableView->setDataSource(this);
}

TableViewCell* RateShareTableViewController::cellForRow(TableView* table, IndexPath path) {
    auto* cell = static_cast<RateShareCell*>(table->dequeueReusableCell("Cell"));
    cell->label->setText(accessibleTextForRow(table, path));
    return cell;
}

QString RateShareTableViewController::accessibleTextForRow(TableView*, IndexPath path) {
    return path.row >= 0 && path.row < kRowCount ? tr(kRows[path.row]) : QString();
}

void RateShareTableViewController::didSelectRow(TableView* table, IndexPath path) {
    table->deselectRow(path, true);
    switch (path.row) {
    case 0: {
        QUrl url = productURL;
        QUrlQuery query;
        query.addQueryItem(QStringLiteral("action"), QStringLiteral("write-review"));
        url.setQuery(query);
        if (url.isValid())
            Platform::browser().openExternally(url);
        break;
    }
    case 1:
    case 2:
        if (Platform::messages().canSendText()) {
            ShareItem item;
            if (path.row == 1)
                item.url = productURL;
            else
                item.text = instructions;
            Platform::shareSheet().present({item}, {}, this);
        } else {
            present(AlertController::okAlert(tr("Can't Send Text Message"),
                                             tr("Your Device is not able to send "
                                                "text messages.")));
        }
        break;
    case 3:
        Platform::browser().openExternally(webPage);
        break;
    case 4:
        if (Platform::mail().canSendMail()) {
            MailMessage message;
            message.recipients = {feedbackAddress};
            message.body = tr("<p>Enter your comments about the Pelvane app below: </p>");
            message.isHTML = true;
            Platform::mail().compose(message, this, {});
        } else {
            present(AlertController::okAlert(tr("Can't Send Email"),
                                             tr("Your Device is not able to send "
                                                "Email.")));
        }
        break;
    default:
        break;
    }
}
