#include "platform/qt/colors.h"

#include <cmath>

namespace {

/// The relative luminance of a colour, 0 to 1, as the web's contrast guidelines define it.
double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

QColor toQColor(Color color)
{
    return {static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF), static_cast<int>(color >> 16 & 0xFF)};
}

Color toColor(const QColor& color)
{
    return static_cast<Color>(color.red() | color.green() << 8 | color.blue() << 16);
}

QColor readableOn(const QColor& ground)
{
    // Both would do from 0.175 to 0.1833. Black loses a little where the style shades the inside of a group.
    constexpr double lastForWhite = 0.183;
    return luminance(ground) > lastForWhite ? Qt::black : Qt::white;
}
