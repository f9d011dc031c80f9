#pragma once

#include "shell/program_settings.h"

// Where the main window opens, in twips: where it was last left, unless that is unknown or off
// the present screen, in which case it is centred and that place is kept.

inline constexpr int MainWindowWidth = 11962;
inline constexpr int MainWindowHeight = 8500;

struct WindowPlace {
    double left = 0;
    double top = 0;
};

// A `StartX` that is empty or outside 0 to the screen's width gives the centre for a window of
// `windowWidth`, which `StartX` then holds; `StartY` likewise with the heights. The window's size
// is the main window's own unless a front end draws it larger.
WindowPlace PlaceMainWindow(ProgramSettings& settings, double screenWidth, double screenHeight,
                            double windowWidth = MainWindowWidth,
                            double windowHeight = MainWindowHeight);
