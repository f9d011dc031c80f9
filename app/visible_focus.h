#pragma once

#include <QString>

// A style sheet for widgets whose style draws no mark of the focus (a tool button, a text
// browser): a frame in the highlight colour while they have it, so that the user always sees
// where the keyboard is.
QString VisibleFocusStyle(const char* widgetClass);
