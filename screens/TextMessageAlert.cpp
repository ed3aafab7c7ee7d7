#include "screens/TextMessageAlert.h"

#include "platform/kit/AlertController.h"
#include "platform/kit/ViewController.h"

namespace TextMessageAlert {
void presentLater(ViewController* screen) {
    screen->after(0, [screen] {
        screen->present(AlertController::okAlert(
            QStringLiteral("Can't Send Text Message"),
            QStringLiteral("Your device is not able to send text messages.")));
    });
}
} // namespace TextMessageAlert
