#include "platform/qt/colors.h"

#include <QGuiApplication>
#include <algorithm>
#include <cmath>

namespace schemlet {

namespace {

/// The relative luminance of a colour, 0 to 1, as the web's contrast guidelines define it.
double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// From 1, the same, to 21, black and white.
double contrast(const QColor& one, const QColor& other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

/// Black or white, whichever has at least 4.5 to 1 on this ground, the style's shading of it included.
QColor readableOn(const QColor& ground)
{
    // Both would do from 0.175 to 0.1833. Black loses a little where the style shades the inside of a group.
    constexpr double lastForWhite = 0.183;
    return luminance(ground) > lastForWhite ? Qt::black : Qt::white;
}

QColor mixed(const QColor& one, const QColor& other, double part)
{
    const auto mix = [part](float from, float to) { return static_cast<float>(from + (to - from) * part); };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
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

QPalette paletteOn(const QColor& ground)
{
    const QColor text = readableOn(ground);
    // The style outlines fields and buttons darker than the ground, which is not to be seen on a dark one: they are
    // nearly white everywhere, and so are never mixed up with their black marks.
    const QColor inside = mixed(ground, Qt::white, 0.9);
    QPalette palette(inside, ground);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, mixed(text, ground, 0.5));
    palette.setColor(QPalette::Base, inside);
    for (const auto role : {QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, Qt::black);
        palette.setColor(QPalette::Disabled, role, mixed(Qt::black, inside, 0.5));
    }
    constexpr double visible = 3;
    if (contrast(QGuiApplication::palette().color(QPalette::Highlight), inside) < visible) {
        palette.setColor(QPalette::Highlight, Qt::black);
        palette.setColor(QPalette::HighlightedText, inside);
    }
    return palette;
}

} // namespace schemlet
