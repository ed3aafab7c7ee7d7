#include "app/Storyboard.h"

#include "platform/kit/Storyboard.h"

namespace AppStoryboard {
void install() {
    Storyboard::clear();
    // Screens register here as they join the program.
}
} // namespace AppStoryboard
