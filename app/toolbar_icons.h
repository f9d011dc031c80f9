#pragma once

#include <QIcon>

// An icon for a toolbar button whose disabled look is plainly disabled: the style's own icon
// for the normal state, and for the disabled state the same picture in pale grey at less than
// half its strength, so that a button that cannot be pressed does not look as if it could.
QIcon ToolbarIcon(const QIcon& standard);
