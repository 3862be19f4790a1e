#pragma once

#include "platform/pictures.h"
#include "platform/qt/canvas_surface.h"

namespace schemlet {

/// Loads and saves the canvas as picture files, and copies it to the clipboard.
class QtPictures final : public Pictures {
public:
    explicit QtPictures(CanvasSurface& surface) : m_surface(surface) {}

    void loadBackground(std::string_view path) override;
    void saveImage(std::string_view path) override;
    bool copyInk() override;

private:
    CanvasSurface& m_surface;
};

} // namespace schemlet
