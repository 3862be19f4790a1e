#include "platform/qt/qt_pictures.h"

#include "platform/qt/picture_files.h"
#include "platform/qt/text.h"

namespace schemlet {

void QtPictures::loadBackground(std::string_view path)
{
    m_surface.setPicture(loadPicture(toQString(path)));
}

void QtPictures::saveImage(std::string_view path)
{
    savePicture(m_surface.picture(), toQString(path));
}

} // namespace schemlet
