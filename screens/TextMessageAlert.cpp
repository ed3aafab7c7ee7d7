#include "screens/TextMessageAlert.h"

#include "platform/kit/AlertController.h"
#include "platform/kit/ViewController.h"

namespace TextMessageAlert {
void present(ViewController* screen) {
    screen->present(
        AlertController::okAlert(QStringLiteral("Can't Send Text Message"),
                                 QStringLiteral("Your device is not able to send text messages.")));
}

void presentLater(ViewController* screen) {
    screen->after(0, [screen] { present(screen); });
}
} // namespace TextMessageAlert
