#pragma once
// The desktop implementations of the platform services.
#include "platform/Services.h"

// When the desktop cannot do what was asked (no web browser, no mail program), the user is told
// so by an alert over the program's window.
namespace DesktopServices {
void tellUnavailable(const QString& title, const QString& message);
} // namespace DesktopServices

// Mail goes to the desktop's mail program through xdg-email; it can be sent when that is
// installed and a program is set up for mailto: addresses.
class DesktopMailComposer : public MailComposer {
public:
    bool canSendMail() override;
    void compose(const MailMessage& message, QWidget* parent,
                 std::function<void()> finished) override;
};

// The share sheet stands in for messaging on the desktop, so text can always be "sent".
class DesktopMessageComposer : public MessageComposer {
public:
    bool canSendText() override { return true; }
};

class DesktopShareSheet : public ShareSheet {
public:
    void present(const QList<ShareItem>& items, const QStringList& excluded,
                 QWidget* anchor) override;
};

class DesktopWebBrowser : public WebBrowser {
public:
    // How an address is handed to the desktop: true when something there took it.
    using Opener = std::function<bool(const QUrl&)>;
    explicit DesktopWebBrowser(Opener opener = {});
    void openInApp(const QUrl& url) override;
    void openExternally(const QUrl& url) override;

private:
    Opener opener_;
};

class DesktopImagePicker : public ImagePicker {
public:
    bool isCameraAvailable() override;
    void presentCamera(QWidget* parent, std::function<void(QImage)> taken,
                       std::function<void()> cancelled) override;
};

class DesktopDocumentPicker : public DocumentPicker {
public:
    void open(QWidget* parent, const QStringList& nameFilters, std::function<void(QString)> picked,
              std::function<void()> cancelled) override;
    void openIn(QWidget* parent, const QString& folder, const QStringList& nameFilters,
                std::function<void(QString)> picked, std::function<void()> cancelled) override;
    void save(QWidget* parent, const QString& suggestedPath, const QStringList& nameFilters,
              std::function<void(QString)> picked, std::function<void()> cancelled) override;
};

class DesktopReviewRequester : public ReviewRequester {
public:
    // A banner above the screens of the window, with "Not Now".
    void requestReview(QWidget* screen) override;
};

class DesktopPhotoLibrary : public PhotoLibrary {
public:
    bool save(const QImage& image) override;
};
