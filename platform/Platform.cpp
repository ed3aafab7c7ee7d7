#include "platform/Platform.h"

#include "platform/DesktopPrintController.h"
#include "platform/DesktopServices.h"

namespace {
template <typename T> std::unique_ptr<T>& slot() {
    static std::unique_ptr<T> service;
    return service;
}
template <typename T, typename Desktop> T& get() {
    auto& s = slot<T>();
    if (!s)
        s = std::make_unique<Desktop>();
    return *s;
}
} // namespace

namespace Platform {
MailComposer& mail() {
    return get<MailComposer, DesktopMailComposer>();
}
MessageComposer& messages() {
    return get<MessageComposer, DesktopMessageComposer>();
}
ShareSheet& shareSheet() {
    return get<ShareSheet, DesktopShareSheet>();
}
WebBrowser& browser() {
    return get<WebBrowser, DesktopWebBrowser>();
}
ImagePicker& imagePicker() {
    return get<ImagePicker, DesktopImagePicker>();
}
DocumentPicker& documentPicker() {
    return get<DocumentPicker, DesktopDocumentPicker>();
}
ReviewRequester& reviewRequester() {
    return get<ReviewRequester, DesktopReviewRequester>();
}
PhotoLibrary& photoLibrary() {
    return get<PhotoLibrary, DesktopPhotoLibrary>();
}
PrintController& printController() {
    return get<PrintController, DesktopPrintController>();
}

void install(std::unique_ptr<MailComposer> s) {
    slot<MailComposer>() = std::move(s);
}
void install(std::unique_ptr<MessageComposer> s) {
    slot<MessageComposer>() = std::move(s);
}
void install(std::unique_ptr<ShareSheet> s) {
    slot<ShareSheet>() = std::move(s);
}
void install(std::unique_ptr<WebBrowser> s) {
    slot<WebBrowser>() = std::move(s);
}
void install(std::unique_ptr<ImagePicker> s) {
    slot<ImagePicker>() = std::move(s);
}
void install(std::unique_ptr<DocumentPicker> s) {
    slot<DocumentPicker>() = std::move(s);
}
void install(std::unique_ptr<ReviewRequester> s) {
    slot<ReviewRequester>() = std::move(s);
}
void install(std::unique_ptr<PhotoLibrary> s) {
    slot<PhotoLibrary>() = std::move(s);
}
void install(std::unique_ptr<PrintController> s) {
    slot<PrintController>() = std::move(s);
}

void reset() {
    slot<MailComposer>().reset();
    slot<MessageComposer>().reset();
    slot<ShareSheet>().reset();
    slot<WebBrowser>().reset();
    slot<ImagePicker>().reset();
    slot<DocumentPicker>().reset();
    slot<ReviewRequester>().reset();
    slot<PhotoLibrary>().reset();
    slot<PrintController>().reset();
}
} // namespace Platform
