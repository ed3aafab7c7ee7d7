#pragma once
// Enter and the keypad's Enter press the focused button, as Space does, on every screen.
namespace ButtonKeys {
// Once per program; later calls do nothing.
void install();
} // namespace ButtonKeys
