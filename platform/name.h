#pragma once

#include <string_view>

namespace schemlet {

/// The name of a window, a control, a menu item or a timer. Only a constant can become a Name. So a Name may be stored,
/// and a text cannot be passed for one by mistake.
class Name {
public:
    constexpr Name() = default; ///< none
    consteval Name(const char* text) : m_text(text) {}

    [[nodiscard]] constexpr std::string_view text() const { return m_text; }
    [[nodiscard]] constexpr bool empty() const { return m_text.empty(); }
    friend constexpr bool operator==(Name, Name) = default;

private:
    std::string_view m_text;
};

inline constexpr Name mainWindow = "Form1";

} // namespace schemlet
