#include "tests/support/rig.h"

#include "shell/main_window.h"

#include <map>

namespace schemlet {

namespace {

float number(std::string_view word)
{
    return word.empty() ? 0 : std::stof(std::string(word));
}

/// The event that a script's words describe. Its names point into these words.
Event eventOf(std::span<const std::string_view> words)
{
    using enum Event::Kind;
    static const std::map<std::string_view, int> arrows{
        {"left", key::left}, {"up", key::up}, {"right", key::right}, {"down", key::down}};
    static const std::map<std::string_view, int> buttons{
        {"none", 0}, {"left", button::left}, {"right", button::right}, {"middle", button::middle}, {"left+right", 3}};
    static const std::map<std::string_view, Event::Kind> kinds{
        {"key", keyDown}, {"char", keyPress}, {"press", mouseDown}, {"move", mouseMove}, {"release", mouseUp},
        {"click", click}, {"hover", hover},   {"tick", tick},       {"close", close}};
    const std::string_view verb = words[0];
    if (const auto arrow = arrows.find(verb); arrow != arrows.end()) {
        return {.kind = keyDown, .code = arrow->second};
    }
    if (verb.size() == 1) {
        return {.kind = keyPress, .code = verb.front()};
    }
    Event event{.kind = kinds.at(verb), .place = {number(words[2]), number(words[3])}};
    switch (event.kind) {
    case keyDown:
    case keyPress: event.code = static_cast<int>(number(words[1])); break;
    case mouseDown:
    case mouseMove:
    case mouseUp: event.code = buttons.at(words[1]); break;
    default: event.name = words[1]; break;
    }
    if (event.name.starts_with("Form")) {
        event.window = event.name.substr(0, 5);
        event.name.remove_prefix(std::min(event.name.size(), event.window.size() + 1));
    }
    return event;
}

/// The steps that place a source, or else the event itself.
std::vector<std::string> stepsOf(std::string_view event)
{
    static const std::map<char, std::pair<const char*, const char*>> sources{{'A', {"S", "choose Option2"}},
                                                                             {'V', {"S", "choose Option3"}},
                                                                             {'+', {"b", "choose Option4"}},
                                                                             {'-', {"b", "choose Option5"}}};
    if (!event.starts_with("source ")) {
        return {std::string(event)};
    }
    const auto& [letter, kind] = sources.at(event[7]);
    return {letter, kind, "text " + std::string(event.substr(9)), "click Command3"};
}

} // namespace

std::vector<std::string_view> split(std::string_view text, std::string_view separator)
{
    std::vector<std::string_view> parts;
    std::size_t end = text.find(separator);
    for (; end != std::string_view::npos; end = text.find(separator)) {
        parts.push_back(text.substr(0, end));
        text.remove_prefix(end + separator.size());
    }
    parts.push_back(text);
    return parts;
}

Rig::Rig(Start start)
{
    for (const std::string_view label : output.names()) {
        output.at(label).visible = false; // output() shows them
    }
    dialogs.meanwhile = [this](std::string_view event) { happen(event); };
    form6::load(splash);
    if (start == Start::behindIt) {
        run("close Form6; hover"); // the first event makes the status bar due
        ink.take();
        changes.take();
    }
}

void Rig::run(std::string_view script)
{
    for (const std::string_view event : split(script, "; ")) {
        const auto parts = split(event, " < ");
        dialogs.replies.assign(parts.begin() + 1, parts.end());
        for (const std::string& step : stepsOf(parts.front())) {
            happen(step);
        }
        EXPECT_TRUE(dialogs.replies.empty()) << "not asked: " << event;
    }
}

void Rig::happen(std::string_view line)
{
    auto words = split(line, " ");
    words.resize(4);
    const std::string_view verb = words[0];
    if (verb == "canvas") {
        window.canvas = {number(words[1]), number(words[2])};
    } else if (verb == "ahead") {
        surface.ahead = static_cast<Color>(number(words[1]));
    } else if (verb == "text") {
        window.at("Text11").text = line.substr(5);
    } else if (verb == "choose") {
        window.at(words[1]).value = 1;
        events.deliver({.kind = Event::Kind::click, .name = words[1]});
    } else {
        const float times = verb == "tick" && !words[2].empty() ? number(words[2]) : 1;
        for (int i = 0; i < static_cast<int>(times); ++i) {
            events.deliver(eventOf(words));
        }
    }
}

} // namespace schemlet
