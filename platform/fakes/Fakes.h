#pragma once
// Recording stand-ins for the services that leave the machine or need a person.
#include "platform/Platform.h"

#include <QList>
#include <QPrinter>

struct FakeMailComposer : MailComposer {
    bool canSend = true;
    QList<MailMessage> sent;
    bool canSendMail() override { return canSend; }
    void compose(const MailMessage& m, QWidget*, std::function<void()> finished) override {
        sent.append(m);
        if (finished)
            finished();
    }
};

struct FakeMessageComposer : MessageComposer {
    bool canSend = true;
    bool canSendText() override { return canSend; }
};

struct FakeShareSheet : ShareSheet {
    struct Presented {
        QList<ShareItem> items;
        QStringList excluded;
    };
    QList<Presented> presented;
    void present(const QList<ShareItem>& items, const QStringList& excluded, QWidget*) override {
        presented.append({items, excluded});
    }
};

struct FakeWebBrowser : WebBrowser {
    QList<QUrl> inApp, external;
    void openInApp(const QUrl& url) override { inApp.append(url); }
    void openExternally(const QUrl& url) override { external.append(url); }
};

struct FakeImagePicker : ImagePicker {
    bool camera = false;
    QImage next; // delivered by the next capture; null: cancelled
    int presented = 0;
    bool isCameraAvailable() override { return camera; }
    void presentCamera(QWidget*, std::function<void(QImage)> taken,
                       std::function<void()> cancelled) override {
        ++presented;
        if (!next.isNull() && taken)
            taken(next);
        else if (cancelled)
            cancelled();
    }
};

struct FakeDocumentPicker : DocumentPicker {
    QString next; // the path the user picks; empty: cancelled
    int presented = 0;
    QString suggested; // what the last save dialog offered
    QString folder;    // where the last open dialog started; empty: where the platform would
    void open(QWidget* parent, const QStringList& filters, std::function<void(QString)> picked,
              std::function<void()> cancelled) override {
        openIn(parent, QString(), filters, std::move(picked), std::move(cancelled));
    }
    void openIn(QWidget*, const QString& start, const QStringList&,
                std::function<void(QString)> picked, std::function<void()> cancelled) override {
        folder = start;
        answer(picked, cancelled);
    }
    void save(QWidget*, const QString& suggestedPath, const QStringList&,
              std::function<void(QString)> picked, std::function<void()> cancelled) override {
        suggested = suggestedPath;
        answer(picked, cancelled);
    }

private:
    void answer(const std::function<void(QString)>& picked,
                const std::function<void()>& cancelled) {
        ++presented;
        if (!next.isEmpty() && picked)
            picked(next);
        else if (cancelled)
            cancelled();
    }
};

struct FakeReviewRequester : ReviewRequester {
    int requests = 0;
    void requestReview(QWidget*) override { ++requests; }
};

struct FakePhotoLibrary : PhotoLibrary {
    QList<QImage> saved;
    bool save(const QImage& image) override {
        saved.append(image);
        return true;
    }
};

// Prints the handed document into a PDF file, as a person choosing print-to-file would.
struct FakePrintController : PrintController {
    QString outputFile; // where the pages go; empty: the user cancels
    int presented = 0;
    bool showedNumberOfCopies = false;
    int copies = 1;
    void present(QTextDocument& document, const PrintInfo&, bool showsNumberOfCopies, QWidget*,
                 std::function<void(bool, const QString&)> completion) override {
        ++presented;
        showedNumberOfCopies = showsNumberOfCopies;
        if (outputFile.isEmpty()) {
            if (completion)
                completion(false, QString());
            return;
        }
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(outputFile);
        printer.setCopyCount(copies);
        const Result<void> printed = PrintController::print(document, printer);
        if (completion)
            completion(printed.ok(), printed.ok() ? QString() : printed.error().message);
    }
};

// Installs a fresh fake of every service and keeps pointers to them for inspection.
struct Fakes {
    FakeMailComposer* mail;
    FakeMessageComposer* messages;
    FakeShareSheet* shareSheet;
    FakeWebBrowser* browser;
    FakeImagePicker* imagePicker;
    FakeDocumentPicker* documentPicker;
    FakeReviewRequester* reviewRequester;
    FakePhotoLibrary* photoLibrary;
    FakePrintController* printController;

    static Fakes install() {
        Fakes f{new FakeMailComposer,    new FakeMessageComposer, new FakeShareSheet,
                new FakeWebBrowser,      new FakeImagePicker,     new FakeDocumentPicker,
                new FakeReviewRequester, new FakePhotoLibrary,    new FakePrintController};
        Platform::install(std::unique_ptr<MailComposer>(f.mail));
        Platform::install(std::unique_ptr<MessageComposer>(f.messages));
        Platform::install(std::unique_ptr<ShareSheet>(f.shareSheet));
        Platform::install(std::unique_ptr<WebBrowser>(f.browser));
        Platform::install(std::unique_ptr<ImagePicker>(f.imagePicker));
        Platform::install(std::unique_ptr<DocumentPicker>(f.documentPicker));
        Platform::install(std::unique_ptr<ReviewRequester>(f.reviewRequester));
        Platform::install(std::unique_ptr<PhotoLibrary>(f.photoLibrary));
        Platform::install(std::unique_ptr<PrintController>(f.printController));
        return f;
    }
};
