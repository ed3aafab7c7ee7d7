#pragma once
// The share actions that need a device able to send text messages say so when it cannot.
class ViewController;

namespace TextMessageAlert {
// "Can't Send Text Message", shown now.
void present(ViewController* screen);
// The same, shown on the next turn of the event loop.
void presentLater(ViewController* screen);
} // namespace TextMessageAlert
