#pragma once

#include <QIcon>

namespace schemlet {

/// A toolbar button's picture with a bar of a colour across its lower end, as sharp as the screen can.
[[nodiscard]] QIcon swatchIcon(const QIcon& picture, const QColor& color);

} // namespace schemlet
