#pragma once

#include "platform/name.h"

#include <QString>
#include <string_view>

namespace schemlet {

/// The core's texts are UTF-8.
inline QString toQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline QString toQString(Name name)
{
    return toQString(name.text());
}

} // namespace schemlet
