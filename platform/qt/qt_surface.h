#pragma once

#include "platform/ink.h"
#include "platform/surface.h"

#include <QFont>
#include <QImage>
#include <functional>

/// The font of everything printed on the canvas: lines of 13 pixels, no antialiasing. The scale enlarges it.
[[nodiscard]] QFont canvasFont(double scale = 1);

/// The canvas's ink: one retained image and nothing else, however much is drawn. At scale 1 the image has one pixel per
/// 15 twips, at scale 2 four of them: lines, their width and texts grow with the scale, places on the canvas stay.
class QtSurface final : public Surface {
public:
    explicit QtSurface(double scale = 1);

    /// Called with the changed part of the image, in its own pixels, after every change.
    std::function<void(const QRect&)> changed;

    [[nodiscard]] const QImage& image() const { return m_image; }
    /// Makes room for a window of this many pixels of the unscaled canvas; the image never shrinks, so that nothing
    /// drawn is lost. New room has the back colour.
    void growTo(QSize window);
    /// Lays a picture on clean paper; the image becomes as large as the window and the picture need.
    void setPicture(const QImage& picture);

    void line(float x1, float y1, float x2, float y2) override;
    void box(float x1, float y1, float x2, float y2) override;
    void circle(float x, float y, float radius) override;
    void arc(float x, float y, float radius, float start, float end) override;
    void print(std::string_view text, bool endLine) override;
    [[nodiscard]] std::optional<Color> point(float x, float y) const override;
    void clear() override;
    void setBackColor(Color color) override;
    void setForeColor(Color color) override;
    [[nodiscard]] int drawWidth() const override { return m_drawWidth; }
    void setDrawWidth(int pixels) override { m_drawWidth = pixels; }
    [[nodiscard]] Point current() const override { return m_current; }
    void setCurrent(float x, float y) override { m_current = {x, y}; }

private:
    void startAfresh(QSize size);
    [[nodiscard]] double toPixels(double twips) const { return twips / m_twipsPerPixel; }
    [[nodiscard]] ink::Place toPlace(float x, float y) const { return {toPixels(x), toPixels(y)}; }
    [[nodiscard]] ink::Image pixels();
    [[nodiscard]] ink::Pen pen() const;
    void report(const ink::Area& area) const;

    QSize m_window; ///< as far as the user sees, in the image's pixels
    double m_scale;
    double m_twipsPerPixel; ///< of the image
    QImage m_image;
    QFont m_font;
    QFont m_placesFont; ///< the same at scale 1
    QRgb m_foreColor = qRgb(0, 0, 0);
    QRgb m_backColor = qRgb(255, 255, 255);
    int m_drawWidth = 2;
    Point m_current;
};
