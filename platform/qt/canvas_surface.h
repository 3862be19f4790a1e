#pragma once

#include "platform/ink/changes.h"
#include "platform/qt/qt_surface.h"

#include <QRegion>
#include <memory>

namespace schemlet {

/// The canvas on screens of any pixel ratio. The picture has one pixel per 15 twips and is the same on every screen.
/// Saving, opening and point() use the picture. If the screen has more pixels, a second image with the screen's pixels
/// gets every stroke too.
class CanvasSurface final : public Surface {
public:
    CanvasSurface();
    CanvasSurface(const CanvasSurface&) = delete; // the callbacks of its images hold this
    CanvasSurface& operator=(const CanvasSurface&) = delete;

    /// Called after every change, with the changed part in canvas pixels.
    std::function<void(const QRect&)> changed;

    [[nodiscard]] const QImage& picture() const { return m_canvas.image(); }
    /// The image that the screen shows; ratio() is its number of pixels along each canvas pixel.
    [[nodiscard]] const QImage& screenImage() const { return m_screen ? m_screen->image() : m_canvas.image(); }
    [[nodiscard]] double ratio() const { return m_ratio; }
    [[nodiscard]] QRgb paper() const { return m_canvas.backColor(); }
    /// Sets the screen's pixel ratio; ratios below 1 count as 1. Earlier ink then shows the picture's pixels, new ink
    /// is sharp. Returns whether the ratio changed.
    bool setRatio(double ratio);

    /// Makes room for a window of this size, in canvas pixels. Never shrinks an image.
    void growTo(QSize window);
    /// Wipes the canvas and puts a picture at its top left, one picture pixel to one canvas pixel. The image becomes
    /// large enough for the window and the picture.
    void setPicture(const QImage& picture);

    void line(Point from, Point to) override;
    void box(Point from, Point to) override;
    void circle(Point centre, float radius) override;
    void arc(Point centre, float radius, float start, float end) override;
    void print(std::string_view text, bool endLine) override;
    [[nodiscard]] double textWidth(std::string_view text) const override { return m_canvas.textWidth(text); }
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
    /// The part of the canvas that the finer image covers.
    [[nodiscard]] QRect coveredPart() const;
    /// The pixels of the finer image that show a part of the canvas.
    [[nodiscard]] QRect onScreen(const QRect& part) const;
    void enlarge(const QRegion& part);
    void enlargeOldInk(const QRegion& part);

    double m_ratio = 1;
    int m_screenNumber = 0; ///< increases with every change of the ratio
    QtSurface m_canvas;     ///< the picture
    /// The finer image, null at ratio 1. It is as large as the window has been since the last wipe.
    std::unique_ptr<QtSurface> m_screen;
    QRegion m_changed;   ///< by the stroke that is being drawn, in canvas pixels
    InkChange m_untaken; ///< what changed before the window grew or its ratio changed
};

} // namespace schemlet
