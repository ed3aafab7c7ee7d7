#include "screens/TextMessageAlert.h"

#include "platform/kit/AlertController.h"
#include "platform/kit/ViewController.h"

#include <QCoreApplication>

namespace TextMessageAlert {
void present(ViewController* screen) {
    screen->present(AlertController::okAlert(
        QCoreApplication::translate("TextMessageAlert", "Can't Send Text Message"),
        QCoreApplication::translate("TextMessageAlert",
                                    "Your device is not able to send text messages.")));
}

void presentLater(ViewController* screen) {
    screen->after(0, [screen] { present(screen); });
}
} // namespace TextMessageAlert
