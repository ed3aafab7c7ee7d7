#pragma once
// The window's menu bar: File, Edit, View, Go and Help. Each entry does what the same button of the
// start screen (or of the screen it leads to) does.
#include <QString>

class QMenuBar;
class Window;
class MainMenuViewController;

namespace AppMenuBar {
// Builds the bar into the window; its shortcuts work at every width.
QMenuBar* install(Window& window, MainMenuViewController* menu);
// The About text: the version and the licence.
QString aboutText();
// The preference the dark appearance is kept under.
inline const char* const kDarkPreference = "DarkAppearance";
} // namespace AppMenuBar
