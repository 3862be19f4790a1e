#include "platform/qt/qt_pictures.h"

#include "platform/qt/copied_picture.h"
#include "platform/qt/picture_files.h"
#include "platform/qt/text.h"

#include <QClipboard>
#include <QGuiApplication>

namespace schemlet {

void QtPictures::loadBackground(std::string_view path)
{
    m_surface.setPicture(loadPicture(toQString(path)));
}

void QtPictures::saveImage(std::string_view path)
{
    savePicture(m_surface.picture(), toQString(path));
}

bool QtPictures::copyInk()
{
    const QImage picture = pictureOfInk(m_surface);
    if (picture.isNull()) {
        return false;
    }
    QGuiApplication::clipboard()->setImage(picture); // offers PNG and BMP, both with the resolution
    return true;
}

} // namespace schemlet
