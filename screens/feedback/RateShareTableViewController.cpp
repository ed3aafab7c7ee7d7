#include "screens/feedback/RateShareTableViewController.h"

#include "platform/Platform.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/Appearance.h"

#include <QLabel>
#include <QUrlQuery>
#include <QVBoxLayout>

namespace {
const QStringList kRows = {"Rate Pelvane", "Share Pelvane", "Invite a Friend",
                           "Visit the Pelvane Website", "Send Feedback"};

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
    tableView->registerCell(QStringLiteral("Cell"), [] { return new RateShareCell; });
}

void RateShareTableViewController::viewDidLoad() {
    setTitle(QStringLiteral("Rate & Share"));
    tableView->setDataSource(this);
}

TableViewCell* RateShareTableViewController::cellForRow(TableView* table, IndexPath path) {
    auto* cell = static_cast<RateShareCell*>(table->dequeueReusableCell("Cell"));
    cell->label->setText(kRows.value(path.row));
    return cell;
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
            present(AlertController::okAlert(QStringLiteral("Can't Send Text Message"),
                                             QStringLiteral("Your Device is not able to send "
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
            message.body =
                QStringLiteral("<p>Enter your comments about the Pelvane app below: </p>");
            message.isHTML = true;
            Platform::mail().compose(message, this, {});
        } else {
            present(AlertController::okAlert(QStringLiteral("Can't Send Email"),
                                             QStringLiteral("Your Device is not able to send "
                                                            "Email.")));
        }
        break;
    default:
        break;
    }
}
