#pragma once

#include "platform/pictures.h"
#include "platform/qt/qt_surface.h"

/// The picture files of one canvas.
class QtPictures final : public Pictures {
public:
    explicit QtPictures(QtSurface& surface) : m_surface(surface) {}

    void loadBackground(std::string_view path) override;
    void saveImage(std::string_view path) override;

private:
    QtSurface& m_surface;
};
