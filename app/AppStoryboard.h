#pragma once
// The layout of the program in code: which segue opens which screen.
namespace AppStoryboard {
// Fills the segue table; call once at start-up (tests call it per case).
void install();
} // namespace AppStoryboard
