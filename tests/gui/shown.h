#pragma once

#include "platform/qt/qt_main_window.h"

#include <QMainWindow>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

namespace schemlet {

/// A window without the program behind it. It notes every event.
template <typename View, typename Form> struct Shown {
    View view;
    Form form = [this] {
        Form made;
        made.setupUi(&view);
        return made;
    }();
    std::vector<Event> events;
    using Made = std::conditional_t<std::is_same_v<View, QMainWindow>, QtMainWindow, QtWindow>;
    std::unique_ptr<Made> window =
        std::make_unique<Made>(view, [this](const Event& event) { events.push_back(event); });

    Shown()
    {
        window->showWindow();
        (void)QTest::qWaitForWindowActive(&view);
        events.clear();
    }

    /// The events since the last call.
    [[nodiscard]] std::string noted()
    {
        constexpr const char* kinds[] = {"keyDown", "keyPress", "mouseDown", "mouseMove", "mouseUp",
                                         "click",   "hover",    "tick",      "close"};
        std::string text;
        for (const Event& event : events) {
            text += std::string(kinds[static_cast<int>(event.kind)]) + " " + std::string(event.name) +
                    std::to_string(event.code) + "\n";
        }
        events.clear();
        return text;
    }
};

} // namespace schemlet
