#pragma once

#include "platform/ink/changes.h"
#include "platform/ink/ink.h"
#include "platform/surface.h"

#include <QFont>
#include <QImage>
#include <functional>

namespace schemlet {

/// The font of everything printed on the canvas: lines of 13 pixels, no antialiasing.
[[nodiscard]] QFont canvasFont();

[[nodiscard]] ink::Area toArea(const QRect& part);

/// Ink: one retained image and nothing else, however much is drawn. At scale 1 the image has one pixel per 15 twips, at
/// scale 2 four of them: lines, their width and texts grow with the scale, places on the canvas stay.
class QtSurface final : public Surface {
public:
    /// scale is above 0.
    explicit QtSurface(double scale = 1);

    /// Called with the changed part of the image, in its own pixels, after every change.
    std::function<void(const QRect&)> changed;

    /// Draws on from here at another scale, with the same colours, pen and current point, on clean paper.
    [[nodiscard]] QtSurface atScale(double scale) const;

    [[nodiscard]] const QImage& image() const { return m_image; }
    [[nodiscard]] QSize window() const { return m_window; }
    /// The image's memory, until it is wiped or grows.
    [[nodiscard]] ink::Image pixels();
    /// Makes room for a window of this many pixels of the unscaled canvas; the image never shrinks, so that nothing
    /// drawn is lost. New room has the back colour.
    void growTo(QSize window);
    /// Lays a picture on clean paper; the image becomes as large as the window and the picture need.
    void setPicture(const QImage& picture);
    /// What changed in the image since this was called last.
    [[nodiscard]] ink::Patch takePatch() { return m_changes.take(pixels(), m_backColor); }
    /// Takes back what a patch holds, which then holds what was there.
    void exchangePatch(ink::Patch& patch);
    /// Says that the image's memory was written to here.
    void mark(const ink::Area& area) { m_changes.mark(area); }
    /// Lets what was written into this part of the image's memory be no change.
    void accept(const ink::Area& area) { m_changes.accept(pixels(), m_backColor, area); }

    void line(Point from, Point to) override;
    void box(Point from, Point to) override;
    void circle(Point centre, float radius) override;
    void arc(Point centre, float radius, float start, float end) override;
    void print(std::string_view text, bool endLine) override;
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
    void startAfresh(QSize size);
    bool fit(const ink::Patch& patch);
    [[nodiscard]] QSize scaled(QSize canvas) const;
    [[nodiscard]] ink::Pen pen() const { return {m_foreColor, static_cast<double>(m_drawWidth)}; }
    void drawText(const QString& text, QPointF topLeft);
    void report(const ink::Area& area);

    QSize m_window; ///< as far as the user sees, in unscaled pixels
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
