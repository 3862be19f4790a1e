#pragma once

#include "platform/ink/changes.h"
#include "platform/ink/ink.h"
#include "platform/surface.h"

#include <QFont>
#include <QFontMetrics>
#include <QImage>
#include <functional>

namespace schemlet {

/// The font for text on the canvas: lines of 13 pixels, no antialiasing.
[[nodiscard]] QFont canvasFont();

[[nodiscard]] ink::Area toArea(const QRect& part);

/// A surface that draws on one image and keeps nothing else. At scale 1 the image has one pixel per 15 twips, at scale
/// 2 twice as many in each direction. Coordinates do not depend on the scale; line widths and texts grow with it.
class QtSurface final : public Surface {
public:
    /// The scale is above 0.
    explicit QtSurface(double scale = 1);

    /// Called after every change, with the changed part in pixels of the image.
    std::function<void(const QRect&)> changed;

    /// A surface at another scale with the same colours, pen and current point. Its paper is blank.
    [[nodiscard]] QtSurface atScale(double scale) const;

    [[nodiscard]] const QImage& image() const { return m_image; }
    [[nodiscard]] QSize window() const { return m_window; }
    [[nodiscard]] QRgb backColor() const { return m_backColor; }
    /// The image's memory. Valid until the image is wiped or grows.
    [[nodiscard]] ink::Image pixels();
    /// Makes room for a window of this size, in unscaled pixels. The image does not shrink, so that no ink is lost. New
    /// room has the back colour.
    void growTo(QSize window);
    /// Wipes the image and puts a picture at its top left. The image becomes large enough for the window and the
    /// picture.
    void setPicture(const QImage& picture);
    /// The changes of the image since the last call.
    [[nodiscard]] ink::Patch takePatch() { return m_changes.take(pixels(), m_backColor); }
    /// Swaps the pixels, the size and the paper of a patch with those of the image. So it undoes a change, and the
    /// patch then holds what redoes it.
    void exchangePatch(ink::Patch& patch);
    /// Call after writing to this part of the image's memory.
    void mark(const ink::Area& area) { m_changes.mark(area); }
    /// Makes takePatch() ignore what was written to this part of the image's memory.
    void accept(const ink::Area& area) { m_changes.accept(pixels(), m_backColor, area); }

    void line(Point from, Point to) override;
    void box(Point from, Point to) override;
    void circle(Point centre, float radius) override;
    void arc(Point centre, float radius, float start, float end) override;
    void print(std::string_view text, bool endLine) override;
    [[nodiscard]] double textWidth(std::string_view text) const override;
    [[nodiscard]] std::optional<Color> point(Point place) const override;
    void clear() override;
    void setBackColor(Color color) override;
    void setForeColor(Color color) override;
    [[nodiscard]] Color foreColor() const override;
    [[nodiscard]] int drawWidth() const override { return m_drawWidth; }
    void setDrawWidth(int pixels) override { m_drawWidth = pixels; }
    [[nodiscard]] Point current() const override { return m_current; }
    void setCurrent(Point place) override { m_current = place; }
    [[nodiscard]] InkChange takeChange() override { return {.picture = takePatch(), .screen = {}}; }
    void exchange(InkChange& change) override { exchangePatch(change.picture); }

private:
    void wipe(QSize size);
    bool restoreSheet(const ink::Patch& patch);
    [[nodiscard]] QSize scaled(QSize canvas) const;
    [[nodiscard]] ink::Pen pen() const { return {m_foreColor, static_cast<double>(m_drawWidth)}; }
    [[nodiscard]] QFontMetrics metrics() const;
    void drawText(const QString& text, QPointF topLeft);
    void report(const ink::Area& area);

    QSize m_window; ///< in unscaled pixels
    double m_scale;
    QImage m_image;
    QFont m_font = canvasFont();
    QRgb m_foreColor = qRgb(0, 0, 0);
    QRgb m_backColor = qRgb(255, 255, 255);
    int m_drawWidth = 2;
    Point m_current;
    ink::Changes m_changes{m_backColor};
};

} // namespace schemlet
