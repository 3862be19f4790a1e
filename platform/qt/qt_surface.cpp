#include "platform/qt/qt_surface.h"

#include "platform/qt/colors.h"
#include "platform/qt/text.h"

#include <QFontMetrics>
#include <QPainter>
#include <cmath>

QFont canvasFont(double scale)
{
    constexpr int lineOf13Pixels = 11; // the pixel size at which DejaVu Sans has lines of 13 pixels
    QFont font("DejaVu Sans");
    font.setPixelSize(static_cast<int>(std::lround(lineOf13Pixels * scale)));
    font.setStyleStrategy(QFont::NoAntialias);
    font.setHintingPreference(QFont::PreferFullHinting);
    return font;
}

QtSurface::QtSurface(double scale)
    : m_scale(scale), m_twipsPerPixel(twipsPerPixel / scale), m_font(canvasFont(scale)), m_placesFont(canvasFont())
{
}

void QtSurface::growTo(QSize window)
{
    m_window = (QSizeF(window) * m_scale).toSize();
    const QSize size = m_image.size().expandedTo(m_window);
    if (size == m_image.size()) {
        return;
    }
    QImage larger(size, QImage::Format_RGB32);
    larger.fill(m_backColor);
    if (!m_image.isNull()) {
        QPainter(&larger).drawImage(0, 0, m_image);
    }
    m_image = larger;
}

void QtSurface::setPicture(const QImage& picture)
{
    startAfresh(m_window.expandedTo(picture.size()));
    QPainter(&m_image).drawImage(0, 0, picture);
}

void QtSurface::clear()
{
    startAfresh(m_window);
}

void QtSurface::setBackColor(Color color)
{
    m_backColor = toQColor(color).rgb();
    startAfresh(m_image.size());
}

void QtSurface::startAfresh(QSize size)
{
    if (size != m_image.size()) {
        m_image = QImage(size, QImage::Format_RGB32);
    }
    m_image.fill(m_backColor);
    if (changed) {
        changed(m_image.rect());
    }
}

void QtSurface::line(float x1, float y1, float x2, float y2)
{
    report(ink::line(pixels(), pen(), toPlace(x1, y1), toPlace(x2, y2)));
    m_current = {x2, y2};
}

void QtSurface::box(float x1, float y1, float x2, float y2)
{
    line(x1, y1, x2, y1);
    line(x2, y1, x2, y2);
    line(x2, y2, x1, y2);
    line(x1, y2, x1, y1);
    m_current = {x2, y2};
}

void QtSurface::circle(float x, float y, float radius)
{
    report(ink::circle(pixels(), pen(), toPlace(x, y), toPixels(radius)));
}

void QtSurface::arc(float x, float y, float radius, float start, float end)
{
    report(ink::arc(pixels(), pen(), toPlace(x, y), toPixels(radius), start, end));
}

void QtSurface::print(std::string_view text, bool endLine)
{
    const QString string = toQString(text);
    const QFontMetrics places(m_placesFont, &m_image); // the current point moves alike at every scale
    const double height = places.height() * m_scale;
    const double left = std::round(toPixels(m_current.x));
    const double top = std::round(toPixels(m_current.y));
    const QRectF visible = QRectF(m_image.rect()).adjusted(-height, -height, 0, 0);
    const int advance = places.horizontalAdvance(string);
    if (QRectF(left, top, advance * m_scale, height).intersects(visible)) {
        const QFontMetrics metrics(m_font, &m_image);
        const QPoint baseline(static_cast<int>(left), static_cast<int>(top) + metrics.ascent());
        QPainter painter(&m_image);
        painter.setFont(m_font);
        painter.setPen(QColor(m_foreColor));
        painter.drawText(baseline, string);
        if (changed) {
            changed(metrics.boundingRect(string).translated(baseline).adjusted(-1, -1, 1, 1) & m_image.rect());
        }
    }
    m_current = endLine ? Point{0, m_current.y + places.height() * twipsPerPixel}
                        : Point{m_current.x + advance * twipsPerPixel, m_current.y};
}

std::optional<Color> QtSurface::point(float x, float y) const
{
    const double column = std::floor(toPixels(x));
    const double row = std::floor(toPixels(y));
    if (column < 0 || row < 0 || column >= m_image.width() || row >= m_image.height()) {
        return {};
    }
    return toColor(m_image.pixelColor(static_cast<int>(column), static_cast<int>(row)));
}

void QtSurface::setForeColor(Color color)
{
    m_foreColor = toQColor(color).rgb();
}

ink::Image QtSurface::pixels()
{
    return {reinterpret_cast<std::uint32_t*>(m_image.bits()), m_image.width(), m_image.height(),
            static_cast<int>(m_image.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb)))};
}

ink::Pen QtSurface::pen() const
{
    return {m_foreColor, m_drawWidth * m_scale};
}

void QtSurface::report(const ink::Area& area) const
{
    if (changed && area.left < area.right) {
        changed(QRect(QPoint(area.left, area.top), QPoint(area.right - 1, area.bottom - 1)));
    }
}
