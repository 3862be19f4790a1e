#pragma once

#include "platform/dialogs.h"
#include "platform/pictures.h"
#include "platform/window.h"

// A window and boxes for nobody to see: with them a symbol can be drawn on any surface, for a picture of it.

/// Keeps nothing but the option that is chosen; its text boxes hold the usual value.
class QuietWindow : public Window {
public:
    void setCaption(std::string_view /*title*/) override {}
    void showWindow() override {}
    void showWithoutKeyboard() override {}
    void hideWindow() override {}
    void unload() override {}
    void setHeight(int /*twips*/) override {}
    [[nodiscard]] int height() const override { return 0; }
    void printForm() override {}
    void endProgram() override {}
    void addToolButton(Name /*key*/, std::string_view /*tip*/, Look /*look*/) override {}
    void setSwatch(Name /*key*/, Color /*color*/) override {}
    void setCursor(const Cursor& /*cursor*/) override {}
    void addMenuItem(int /*depth*/, const MenuItem& /*item*/) override {}
    void popUp(Name /*menu*/, Point /*place*/) override {}
    void setChecked(Name /*item*/, bool /*checked*/) override {}
    [[nodiscard]] bool checked(Name /*item*/) const override { return false; }
    void setVisible(Name /*control*/, bool /*visible*/) override {}
    [[nodiscard]] bool visible(Name /*control*/) const override { return false; }
    void setEnabled(Name /*control*/, bool /*enabled*/) override {}
    [[nodiscard]] bool enabled(Name /*control*/) const override { return true; }
    void focus(Name /*control*/) override {}
    void setText(Name /*control*/, std::string_view /*text*/) override {}
    [[nodiscard]] std::string text(Name /*control*/) const override { return "10"; }
    void setDescription(Name /*control*/, std::string_view /*text*/) override {}
    void setValue(Name control, int value) override { m_chosen = value == 1 ? control : Name(); }
    [[nodiscard]] int value(Name control) const override { return control == m_chosen ? 1 : 0; }
    void setBackColor(Name /*control*/, Color /*color*/) override {}
    void drawPicture(Name /*control*/, void (* /*draw*/)(Surface&)) override {}
    void setLeft(Name /*control*/, double /*twips*/) override {}
    void setTop(Name /*control*/, double /*twips*/) override {}
    void placeAwayFrom(Name /*control*/, double /*x*/, double /*y*/, Name /*other*/) override {}
    [[nodiscard]] bool isOnCanvas(double /*x*/, double /*y*/) const override { return true; }
    void setInterval(Name /*timer*/, int /*milliseconds*/) override {}

private:
    Name m_chosen;
};

/// Types into every input box, or takes its preset, and says No to everything else.
class QuietDialogs final : public Dialogs {
public:
    std::string typed; ///< empty: the preset

    int messageBox(std::string_view /*prompt*/, Box /*style*/, std::string_view /*title*/) override
    {
        return answer::no;
    }
    std::string inputBox(std::string_view /*prompt*/, std::string_view /*title*/, std::string_view preset) override
    {
        return typed.empty() ? std::string(preset) : typed;
    }
    Color pickColor(std::string_view /*title*/) override { return black; }
    std::string openFile() override { return {}; }
    std::string saveFile(std::string_view /*name*/, std::string_view /*extension*/,
                         std::string_view /*filter*/) override
    {
        return {};
    }
};

/// Knows no files.
class QuietPictures final : public Pictures {
public:
    void loadBackground(std::string_view /*path*/) override {}
    void saveImage(std::string_view /*path*/) override {}
};
