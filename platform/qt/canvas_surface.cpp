#include "platform/qt/canvas_surface.h"

#include "platform/ink/finer_ink.h"

#include <algorithm>
#include <utility>

namespace schemlet {

namespace {

/// If the canvas starts between two screen pixels, it shows part of one more pixel at its far edge.
QSize withMargin(QSize window)
{
    return window + QSize(1, 1);
}

} // namespace

CanvasSurface::CanvasSurface()
{
    m_canvas.changed = [this](const QRect& part) { note(part); };
}

bool CanvasSurface::setRatio(double ratio)
{
    ratio = std::max(1.0, ratio);
    if (ratio == m_ratio) {
        return false;
    }
    m_untaken = takeChange(); // the finer image of this ratio goes
    m_ratio = ratio;
    ++m_screenNumber;
    m_screen.reset();
    if (ratio > 1) {
        makeScreen();
    }
    return true;
}

void CanvasSurface::makeScreen()
{
    m_screen = std::make_unique<QtSurface>(m_canvas.atScale(m_ratio));
    m_screen->growTo(withMargin(m_canvas.window()));
    m_screen->changed = [this](const QRect& part) {
        note(QRectF(QPointF(part.topLeft()) / m_ratio, QSizeF(part.size()) / m_ratio).toAlignedRect());
    };
    enlargeOldInk(coveredPart());
}

void CanvasSurface::growTo(QSize window)
{
    if (m_screen) {
        m_untaken = takeChange(); // so that the enlarged ink is told from it
    }
    m_canvas.growTo(window);
    if (m_screen) {
        // The last pixels may have ink from strokes beyond the picture, so they are enlarged again.
        const QSize kept = m_screen->image().size() / m_ratio - QSize(2, 2);
        m_screen->growTo(withMargin(window));
        enlargeOldInk(QRegion(coveredPart()) - QRect(QPoint(), kept));
    }
}

void CanvasSurface::setPicture(const QImage& picture)
{
    m_canvas.setPicture(picture);
    if (m_screen) {
        m_screen->clear();
        enlarge(coveredPart());
        reportChanged();
    }
}

InkChange CanvasSurface::takeChange()
{
    InkChange change{.picture = m_canvas.takePatch(),
                     .screen = m_screen ? m_screen->takePatch() : ink::Patch(),
                     .screenNumber = m_screenNumber};
    if (m_untaken.empty()) {
        return change;
    }
    InkChange whole = std::exchange(m_untaken, {});
    whole.add(std::move(change));
    return whole;
}

void CanvasSurface::exchange(InkChange& change)
{
    m_canvas.exchangePatch(change.picture);
    if (change.screenNumber == m_screenNumber) {
        if (m_screen) {
            m_screen->exchangePatch(change.screen);
        }
    } else {
        change.screen = {};
        if (m_screen) {
            makeScreen(); // all ink that is left was drawn before this image existed
            note(m_canvas.image().rect());
        }
    }
    reportChanged();
}

void CanvasSurface::line(Point from, Point to)
{
    draw([=](QtSurface& surface) { surface.line(from, to); });
}

void CanvasSurface::box(Point from, Point to)
{
    draw([=](QtSurface& surface) { surface.box(from, to); });
}

void CanvasSurface::circle(Point centre, float radius)
{
    draw([=](QtSurface& surface) { surface.circle(centre, radius); });
}

void CanvasSurface::arc(Point centre, float radius, float start, float end)
{
    draw([=](QtSurface& surface) { surface.arc(centre, radius, start, end); });
}

void CanvasSurface::print(std::string_view text, bool endLine)
{
    draw([=](QtSurface& surface) { surface.print(text, endLine); });
}

void CanvasSurface::clear()
{
    draw([](QtSurface& surface) { surface.clear(); });
}

void CanvasSurface::setBackColor(Color color)
{
    draw([=](QtSurface& surface) { surface.setBackColor(color); });
}

void CanvasSurface::setForeColor(Color color)
{
    draw([=](QtSurface& surface) { surface.setForeColor(color); });
}

void CanvasSurface::setDrawWidth(int pixels)
{
    draw([=](QtSurface& surface) { surface.setDrawWidth(pixels); });
}

void CanvasSurface::setCurrent(Point place)
{
    draw([=](QtSurface& surface) { surface.setCurrent(place); });
}

template <typename Draw> void CanvasSurface::draw(Draw stroke)
{
    stroke(m_canvas);
    if (m_screen) {
        stroke(*m_screen);
        for (const QRect& part : m_changed& coveredPart()) {
            ink::reconcile(m_canvas.pixels(), m_screen->pixels(), toArea(part));
            m_screen->mark(toArea(onScreen(part)));
        }
        reportChanged();
    }
}

void CanvasSurface::note(const QRect& part)
{
    if (m_screen) {
        m_changed += part.adjusted(-1, -1, 1, 1); // reconcile() needs one pixel beyond the stroke
    } else if (changed) {
        changed(part);
    }
}

void CanvasSurface::reportChanged()
{
    const QRegion parts = std::exchange(m_changed, {});
    if (changed) {
        for (const QRect& part : parts) {
            changed(part);
        }
    }
}

QRect CanvasSurface::coveredPart() const
{
    const QSize screen = m_screen->image().size() / m_ratio + QSize(1, 1);
    return m_canvas.image().rect() & QRect(QPoint(), screen);
}

/// The last pixels of the canvas extend to the edges of the finer image.
QRect CanvasSurface::onScreen(const QRect& part) const
{
    const QRect screen = m_screen->image().rect();
    QRect scaled = QRectF(QPointF(part.topLeft()) * m_ratio, QSizeF(part.size()) * m_ratio).toAlignedRect() & screen;
    if (part.right() == m_canvas.image().rect().right()) {
        scaled.setRight(screen.right());
    }
    if (part.bottom() == m_canvas.image().rect().bottom()) {
        scaled.setBottom(screen.bottom());
    }
    return scaled;
}

void CanvasSurface::enlarge(const QRegion& part)
{
    for (const QRect& rect : part) {
        ink::enlarge(m_canvas.pixels(), m_screen->pixels(), toArea(rect));
    }
}

/// Enlarges ink that was drawn before. Undo must not take that as a change.
void CanvasSurface::enlargeOldInk(const QRegion& part)
{
    enlarge(part);
    const QRect screen = m_screen->image().rect();
    for (const QRect& rect : part) {
        m_screen->accept(toArea(QRect(onScreen(rect).topLeft(), screen.bottomRight())));
    }
}

} // namespace schemlet
