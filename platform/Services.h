#pragma once
// The platform services that leave the machine or need a person: each is a small abstract
// class with a desktop implementation, reached through Platform:: and replaced by recording
// fakes in tests. All of them are declared here, each beside the values it takes; the print
// controller, whose desktop implementation is larger, has its own header.
#include <QByteArray>
#include <QImage>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <functional>

class QWidget;

struct MailMessage {
    QString subject;
    QString body;
    bool isHTML = false;
    QStringList recipients;
    QByteArray attachment; // empty: none
    QString mimeType;
    QString fileName;
};

class MailComposer {
public:
    virtual ~MailComposer() = default;
    virtual bool canSendMail() = 0;
    // Hands the message to the mail program; `finished` runs when the composer is done.
    virtual void compose(const MailMessage& message, QWidget* parent,
                         std::function<void()> finished) = 0;
};

class MessageComposer {
public:
    virtual ~MessageComposer() = default;
    virtual bool canSendText() = 0;
};

// What a share sheet offers: a file, a picture, a text, an address or raw bytes.
struct ShareItem {
    QUrl url;
    QImage image;
    QString text;
    QByteArray data;
};

class ShareSheet {
public:
    virtual ~ShareSheet() = default;
    // Activity types that can be excluded.
    static inline const QString AirDrop = QStringLiteral("AirDrop"),
                                AddToReadingList = QStringLiteral("AddToReadingList"),
                                Mail = QStringLiteral("Mail"), Message = QStringLiteral("Message"),
                                PostToFacebook = QStringLiteral("PostToFacebook"),
                                PostToTwitter = QStringLiteral("PostToTwitter"),
                                MarkupAsPDF = QStringLiteral("MarkupAsPDF"),
                                CopyToPasteboard = QStringLiteral("CopyToPasteboard"),
                                Print = QStringLiteral("Print");
    virtual void present(const QList<ShareItem>& items, const QStringList& excluded,
                         QWidget* anchor) = 0;
};

class WebBrowser {
public:
    virtual ~WebBrowser() = default;
    virtual void openInApp(const QUrl& url) = 0;
    virtual void openExternally(const QUrl& url) = 0;
};

class ImagePicker {
public:
    virtual ~ImagePicker() = default;
    virtual bool isCameraAvailable() = 0;
    // Shows a capture sheet; `taken` gets the full picture, `cancelled` runs otherwise.
    virtual void presentCamera(QWidget* parent, std::function<void(QImage)> taken,
                               std::function<void()> cancelled) = 0;
};

class DocumentPicker {
public:
    virtual ~DocumentPicker() = default;
    virtual void open(QWidget* parent, const QStringList& nameFilters,
                      std::function<void(QString path)> picked,
                      std::function<void()> cancelled) = 0;
    // The same, starting in `folder` (which exists) rather than where the platform would.
    virtual void openIn(QWidget* parent, const QString& folder, const QStringList& nameFilters,
                        std::function<void(QString path)> picked,
                        std::function<void()> cancelled) = 0;
    // Where to write a new file, starting from the suggested path.
    virtual void save(QWidget* parent, const QString& suggestedPath, const QStringList& nameFilters,
                      std::function<void(QString path)> picked,
                      std::function<void()> cancelled) = 0;
};

class ReviewRequester {
public:
    virtual ~ReviewRequester() = default;
    // The platform decides whether anything is shown; what it shows goes when the user
    // leaves `screen`.
    virtual void requestReview(QWidget* screen) = 0;
};

class PhotoLibrary {
public:
    virtual ~PhotoLibrary() = default;
    virtual bool save(const QImage& image) = 0;
};
