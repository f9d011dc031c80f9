#include "app/toolbar_icons.h"

#include <QColor>
#include <QImage>
#include <QPixmap>

namespace {

// The sizes a toolbar asks for on ordinary and dense screens.
constexpr int IconSides[] = {16, 22, 24, 32, 48};

// How much of the picture a disabled icon keeps, and how far its greys are lifted to the light.
constexpr double DisabledOpacity = 0.4;
constexpr int LightGrey = 160;

QPixmap Greyed(const QPixmap& normal) {
    QImage image = normal.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            const int grey = LightGrey + qGray(colour.rgb()) * (255 - LightGrey) / 255;
            image.setPixelColor(
                x, y, QColor(grey, grey, grey, static_cast<int>(colour.alpha() * DisabledOpacity)));
        }
    }
    return QPixmap::fromImage(image);
}

} // namespace

QIcon ToolbarIcon(const QIcon& standard) {
    QIcon icon;
    for (const int side : IconSides) {
        const QPixmap normal = standard.pixmap(side, side, QIcon::Normal);
        if (normal.isNull()) {
            continue;
        }
        icon.addPixmap(normal, QIcon::Normal);
        icon.addPixmap(Greyed(normal), QIcon::Disabled);
    }
    return icon;
}
