#include "app/visible_focus.h"

QString VisibleFocusStyle(const char* widgetClass) {
    return QString("%1:focus { border: 2px solid palette(highlight); border-radius: 2px; }")
        .arg(widgetClass);
}
