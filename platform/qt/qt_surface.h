#pragma once

#include "platform/ink.h"
#include "platform/surface.h"

#include <QFont>
#include <QImage>
#include <functional>

/// The font of everything printed on the canvas: lines of 13 pixels, no antialiasing.
[[nodiscard]] QFont canvasFont();

/// The canvas's ink: one retained image of one pixel per 15 twips, and nothing else, however much is drawn.
class QtSurface final : public Surface {
public:
    QtSurface();

    /// Called with the changed part of the image, in pixels, after every change.
    std::function<void(const QRect&)> changed;

    [[nodiscard]] const QImage& image() const { return m_image; }
    /// Makes room for a larger window; the image never shrinks, so that nothing drawn is lost. New room has the back
    /// colour.
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
    [[nodiscard]] ink::Image pixels();
    [[nodiscard]] ink::Pen pen() const;
    void report(const ink::Area& area) const;

    QSize m_window; ///< as far as the user sees, in pixels
    QImage m_image;
    QFont m_font;
    QRgb m_foreColor = qRgb(0, 0, 0);
    QRgb m_backColor = qRgb(255, 255, 255);
    int m_drawWidth = 2;
    Point m_current;
};
