#pragma once

#include <QIcon>

namespace schemlet {

/// A toolbar button's picture with a coloured bar across its lower end, sharp at every pixel ratio.
[[nodiscard]] QIcon swatchIcon(const QIcon& picture, const QColor& color);

} // namespace schemlet
