#pragma once

#include "platform/qt/qt_surface.h"

#include <QRegion>
#include <memory>

namespace schemlet {

/// The canvas on screens of every sharpness. The picture is the image of one pixel per 15 twips: it is saved, opened
/// and asked for colours, and it is the same whatever the screen. Where the screen has more pixels than that, a second
/// image has as many and gets every stroke too; otherwise there is none.
class CanvasSurface final : public Surface {
public:
    CanvasSurface();
    CanvasSurface(const CanvasSurface&) = delete; // its images report to this object
    CanvasSurface& operator=(const CanvasSurface&) = delete;

    /// Called with the changed part of the canvas, in its pixels, after every change.
    std::function<void(const QRect&)> changed;

    [[nodiscard]] const QImage& picture() const { return m_canvas.image(); }
    /// What the screen shows, and its pixels along each of the canvas's.
    [[nodiscard]] const QImage& screenImage() const { return m_screen ? m_screen->image() : m_canvas.image(); }
    [[nodiscard]] double ratio() const { return m_ratio; }
    /// For a screen of another ratio: what is drawn so far shows its pixels there, what comes is sharp again. Returns
    /// whether the image is another one now. Ratios below 1 count as 1.
    bool setRatio(double ratio);

    /// Makes room for a window of this many pixels of the canvas; no image ever shrinks.
    void growTo(QSize window);
    /// Lays a picture, one pixel of it to one of the canvas, on clean paper that is as large as window and picture
    /// need.
    void setPicture(const QImage& picture);

    void line(Point from, Point to) override;
    void box(Point from, Point to) override;
    void circle(Point centre, float radius) override;
    void arc(Point centre, float radius, float start, float end) override;
    void print(std::string_view text, bool endLine) override;
    [[nodiscard]] std::optional<Color> point(Point place) const override { return m_canvas.point(place); }
    void clear() override;
    void setBackColor(Color color) override;
    void setForeColor(Color color) override;
    [[nodiscard]] Color foreColor() const override { return m_canvas.foreColor(); }
    [[nodiscard]] int drawWidth() const override { return m_canvas.drawWidth(); }
    void setDrawWidth(int pixels) override;
    [[nodiscard]] Point current() const override { return m_canvas.current(); }
    void setCurrent(Point place) override;
    [[nodiscard]] InkChange takeChange() override;
    void exchange(InkChange& change) override;

private:
    template <typename Draw> void draw(Draw stroke);
    void makeScreen();
    void note(const QRect& part);
    void reportChanged();
    /// The part of the canvas that the second image has.
    [[nodiscard]] QRect seen() const;
    [[nodiscard]] QRect onScreen(const QRect& part) const;
    void enlarge(const QRegion& part);
    void enlargeOldInk(const QRegion& part);

    double m_ratio = 1;
    int m_screenNumber = 0; ///< another one for each finer image that was made for another ratio
    QtSurface m_canvas;
    /// Reaches as far as the window did since the last wipe: nothing beyond it was seen.
    std::unique_ptr<QtSurface> m_screen;
    QRegion m_changed; ///< by the stroke that is being drawn on both
};

} // namespace schemlet
