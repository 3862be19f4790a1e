#include "platform/qt/colors.h"

#include <QGuiApplication>
#include <algorithm>
#include <cmath>
#include <tuple>

namespace schemlet {

namespace {

/// The relative luminance of a colour, 0 to 1.
double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// Black or white: the one that has a contrast of at least 4.5 to 1 on this ground, even where the style shades it.
QColor readableOn(const QColor& ground)
{
    // Both have enough contrast from 0.175 to 0.1833. The limit is near the upper end, because the style darkens the
    // inside of a group and black loses contrast there.
    constexpr double lastForWhite = 0.183;
    return luminance(ground) > lastForWhite ? Qt::black : Qt::white;
}

QColor mixed(const QColor& one, const QColor& other, double part)
{
    const auto mix = [part](float from, float to) { return static_cast<float>(from + (to - from) * part); };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

/// The colour inside a text field or an option's circle. On a light ground it is nearly white. On a dark ground the
/// mark in it is white, so it is a darker shade of the ground, or a lighter one if the ground is almost black.
QColor insideOn(const QColor& ground)
{
    if (readableOn(ground) == Qt::black) {
        return mixed(ground, Qt::white, 0.9);
    }
    constexpr double lastToLighten = 0.05;
    return luminance(ground) > lastToLighten ? mixed(ground, Qt::black, 0.6) : mixed(ground, Qt::white, 0.15);
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

double contrast(const QColor& one, const QColor& other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QPalette paletteOn(const QColor& ground)
{
    const QColor text = readableOn(ground);
    // Nearly white on every ground: the style's outline is darker than the ground and would not show on a dark one.
    const QColor button = mixed(ground, Qt::white, 0.9);
    const QColor inside = insideOn(ground);
    QPalette palette(button, ground);
    palette.setColor(QPalette::Base, inside);
    const std::tuple<QPalette::ColorRole, QColor, QColor> marks[] = {{QPalette::WindowText, text, ground},
                                                                     {QPalette::Text, text, inside},
                                                                     {QPalette::ButtonText, Qt::black, button}};
    for (const auto& [role, mark, behind] : marks) {
        palette.setColor(role, mark);
        palette.setColor(QPalette::Disabled, role, mixed(mark, behind, 0.5));
    }
    // The style draws the focus ring a little darker than the highlight.
    constexpr double visible = 3;
    const QColor ring = QGuiApplication::palette().color(QPalette::Highlight).darker(125);
    if (std::min(contrast(ring, inside), contrast(ring, ground)) < visible) {
        palette.setColor(QPalette::Highlight, text);
        palette.setColor(QPalette::HighlightedText, inside);
    }
    return palette;
}

} // namespace schemlet
