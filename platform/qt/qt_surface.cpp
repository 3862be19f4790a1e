#include "platform/qt/qt_surface.h"

#include "platform/qt/colors.h"
#include "platform/qt/text.h"

#include <QGlyphRun>
#include <QPainter>
#include <QRawFont>
#include <QTextLayout>
#include <cmath>
#include <utility>

namespace schemlet {

namespace {

/// In unscaled pixels.
ink::Place toPlace(Point point)
{
    return {point.x / twipsPerPixel, point.y / twipsPerPixel};
}

QRect toRect(const ink::Area& area)
{
    return {QPoint(area.left, area.top), QPoint(area.right - 1, area.bottom - 1)};
}

} // namespace

QFont canvasFont()
{
    constexpr int lineOf13Pixels = 11; // the pixel size at which DejaVu Sans has lines of 13 pixels
    QFont font("DejaVu Sans");
    font.setPixelSize(lineOf13Pixels);
    font.setStyleStrategy(QFont::NoAntialias);
    font.setHintingPreference(QFont::PreferFullHinting);
    return font;
}

ink::Area toArea(const QRect& part)
{
    return {part.left(), part.top(), part.left() + part.width(), part.top() + part.height()};
}

QtSurface::QtSurface(double scale) : m_scale(scale) {}

QtSurface QtSurface::atScale(double scale) const
{
    QtSurface other(scale);
    other.m_foreColor = m_foreColor;
    other.m_backColor = m_backColor;
    other.m_drawWidth = m_drawWidth;
    other.m_current = m_current;
    other.m_changes = ink::Changes(m_backColor);
    other.growTo(m_window);
    return other;
}

void QtSurface::growTo(QSize window)
{
    m_window = window;
    const QSize size = m_image.size().expandedTo(scaled(m_window));
    if (size == m_image.size()) {
        return;
    }
    QImage larger(size, QImage::Format_RGB32);
    larger.fill(m_backColor);
    if (!m_image.isNull()) {
        QPainter(&larger).drawImage(0, 0, m_image);
    }
    m_image = larger;
    m_changes.grow(size.width(), size.height());
}

void QtSurface::setPicture(const QImage& picture)
{
    wipe(scaled(m_window).expandedTo(picture.size()));
    QPainter(&m_image).drawImage(0, 0, picture);
}

void QtSurface::clear()
{
    wipe(scaled(m_window));
}

void QtSurface::setBackColor(Color color)
{
    m_backColor = toQColor(color).rgb();
    wipe(m_image.size());
}

void QtSurface::wipe(QSize size)
{
    if (size != m_image.size()) {
        m_image = QImage(size, QImage::Format_RGB32);
    }
    m_image.fill(m_backColor);
    report({0, 0, size.width(), size.height()});
}

void QtSurface::exchangePatch(ink::Patch& patch)
{
    ink::Patch reverse = ink::reverse(pixels(), m_backColor, patch);
    const bool sameSheet = restoreSheet(patch);
    m_changes.put(pixels(), m_backColor, patch);
    patch = std::move(reverse);
    if (changed) {
        changed(sameSheet ? toRect(ink::cover(patch)) & m_image.rect() : m_image.rect());
    }
}

/// Gives the image the size and the paper that it had before the change. Returns whether it already has them.
bool QtSurface::restoreSheet(const ink::Patch& patch)
{
    const QSize size = QSize(patch.before.width, patch.before.height).expandedTo(scaled(m_window));
    if (size == m_image.size() && patch.before.paper == m_backColor) {
        return true;
    }
    m_backColor = patch.before.paper;
    QImage restored(size, QImage::Format_RGB32);
    restored.fill(m_backColor);
    // If the window has grown since, the image has more room than the step knew, and that room is blank.
    const QSize known =
        QSize(patch.before.width, patch.before.height).expandedTo({patch.after.width, patch.after.height});
    QPainter(&restored).drawImage(QPoint(), m_image, QRect(QPoint(), known));
    m_image = restored;
    return false;
}

void QtSurface::line(Point from, Point to)
{
    report(ink::line(pixels(), pen(), toPlace(from), toPlace(to)));
    m_current = to;
}

void QtSurface::box(Point from, Point to)
{
    line(from, {to.x, from.y});
    line({to.x, from.y}, to);
    line(to, {from.x, to.y});
    line({from.x, to.y}, from);
    m_current = to;
}

void QtSurface::circle(Point centre, float radius)
{
    report(ink::circle(pixels(), pen(), toPlace(centre), radius / twipsPerPixel));
}

void QtSurface::arc(Point centre, float radius, float start, float end)
{
    report(ink::arc(pixels(), pen(), toPlace(centre), radius / twipsPerPixel, start, end));
}

void QtSurface::print(std::string_view text, bool endLine)
{
    const QString string = toQString(text);
    const QFontMetrics metrics = this->metrics();
    const int height = metrics.height();
    const int advance = metrics.horizontalAdvance(string);
    const QRectF place(std::round(m_current.x / twipsPerPixel), std::round(m_current.y / twipsPerPixel), advance,
                       height);
    const QRectF visible(QPointF(), m_image.size() / m_scale);
    if (place.intersects(visible.adjusted(-height, -height, 0, 0))) {
        drawText(string, place.topLeft());
        const QPointF baseline = place.topLeft() + QPointF(0, metrics.ascent());
        const QRectF ink = QRectF(metrics.boundingRect(string)).translated(baseline).adjusted(-1, -1, 1, 1);
        report(toArea(QRectF(ink.topLeft() * m_scale, ink.size() * m_scale).toAlignedRect() & m_image.rect()));
    }
    m_current = endLine ? Point{0, static_cast<float>(m_current.y + height * twipsPerPixel)}
                        : Point{static_cast<float>(m_current.x + advance * twipsPerPixel), m_current.y};
}

double QtSurface::textWidth(std::string_view text) const
{
    return metrics().horizontalAdvance(toQString(text)) * twipsPerPixel;
}

/// Unscaled, so that the current point moves equally at every scale.
QFontMetrics QtSurface::metrics() const
{
    return QFontMetrics(m_font, &m_image);
}

/// Draws each glyph at the place that it has at scale 1. If the text were laid out at the larger size, its length would
/// differ.
void QtSurface::drawText(const QString& text, QPointF topLeft)
{
    QTextLayout layout(text, m_font, &m_image);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    QPainter painter(&m_image);
    painter.setPen(QColor(m_foreColor));
    for (QGlyphRun run : layout.glyphRuns()) {
        QRawFont font = run.rawFont();
        font.setPixelSize(font.pixelSize() * m_scale);
        run.setRawFont(font);
        QList<QPointF> places = run.positions();
        for (QPointF& place : places) {
            place = ((topLeft + place) * m_scale).toPoint();
        }
        run.setPositions(places);
        painter.drawGlyphRun({}, run);
    }
}

std::optional<Color> QtSurface::point(Point place) const
{
    const double column = std::floor(place.x / twipsPerPixel * m_scale);
    const double row = std::floor(place.y / twipsPerPixel * m_scale);
    if (column < 0 || row < 0 || column >= m_image.width() || row >= m_image.height()) {
        return {};
    }
    return toColor(m_image.pixelColor(static_cast<int>(column), static_cast<int>(row)));
}

Color QtSurface::foreColor() const
{
    return toColor(QColor(m_foreColor));
}

void QtSurface::setForeColor(Color color)
{
    m_foreColor = toQColor(color).rgb();
}

ink::Image QtSurface::pixels()
{
    return {reinterpret_cast<std::uint32_t*>(m_image.bits()), m_image.width(), m_image.height(),
            static_cast<int>(m_image.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb))), m_scale};
}

QSize QtSurface::scaled(QSize canvas) const
{
    return {static_cast<int>(std::ceil(canvas.width() * m_scale)),
            static_cast<int>(std::ceil(canvas.height() * m_scale))};
}

void QtSurface::report(const ink::Area& area)
{
    if (area.left < area.right) {
        if (changed) {
            changed(toRect(area));
        }
        m_changes.mark(area);
    }
}

} // namespace schemlet
