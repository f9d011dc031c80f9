#include "input/input_screen.h"

InputScreen LoadInputScreen() {
    InputScreen screen;
    Append(screen.moreInfo, StyledRun{.text = MoreInfoFirstText});
    return screen;
}
