#include "shell/window_placement.h"

#include "common/number_text.h"

namespace {

double Place(std::string& stored, double screenSize, double windowSize) {
    if (!stored.empty()) {
        const double value = LeadingNumberValue(stored);
        if (value >= 0 && value <= screenSize) {
            return value;
        }
    }
    const double centred = (screenSize - windowSize) / 2;
    stored = GeneralNumberText(centred);
    return centred;
}

} // namespace

WindowPlace PlaceMainWindow(ProgramSettings& settings, double screenWidth, double screenHeight,
                            double windowWidth, double windowHeight) {
    WindowPlace place;
    place.left = Place(settings.StartX, screenWidth, windowWidth);
    place.top = Place(settings.StartY, screenHeight, windowHeight);
    return place;
}
