#pragma once
// The window's size on a first start, when nothing was kept yet: room for the table of coins.
// A report written without a window lays its page out as the window at that size would.
namespace WindowSize {
constexpr int FirstWidth = 1100;
constexpr int FirstHeight = 720;
} // namespace WindowSize
