#pragma once
// The registry of platform services. Desktop implementations are used unless a test
// installed fakes.
#include "platform/PrintController.h"
#include "platform/Services.h"

#include <memory>

struct Fakes;

namespace Platform {
MailComposer& mail();
MessageComposer& messages();
ShareSheet& shareSheet();
WebBrowser& browser();
ImagePicker& imagePicker();
DocumentPicker& documentPicker();
ReviewRequester& reviewRequester();
PhotoLibrary& photoLibrary();
PrintController& printController();

void install(std::unique_ptr<MailComposer>);
void install(std::unique_ptr<MessageComposer>);
void install(std::unique_ptr<ShareSheet>);
void install(std::unique_ptr<WebBrowser>);
void install(std::unique_ptr<ImagePicker>);
void install(std::unique_ptr<DocumentPicker>);
void install(std::unique_ptr<ReviewRequester>);
void install(std::unique_ptr<PhotoLibrary>);
void install(std::unique_ptr<PrintController>);
// Back to the desktop implementations.
void reset();
} // namespace Platform
