#pragma once

#include "platform/main_window.h"
#include "platform/qt/key_repeats.h"
#include "platform/qt/menu_tree.h"
#include "platform/qt/qt_window.h"

namespace schemlet {

class CanvasWidget;

/// The window whose form has the canvas, a menu bar and a toolbar.
class QtMainWindow final : public QtWindow, public MainWindow {
    Q_OBJECT

public:
    QtMainWindow(QWidget& form, std::function<void(const Event&)> report);

    void showWindow() override;
    /// Prints the canvas without the pen marker and the eraser's outline.
    void printForm() override;
    // If a control has the focus when it is hidden or disabled, the focus goes to the canvas.
    void setVisible(Name control, bool visible) override;
    void setEnabled(Name control, bool enabled) override;

    void endProgram() override;
    void addMenuItem(int depth, const MenuItem& item) override;
    void addShortcut(const Shortcut& shortcut) override;
    void popUp(Name menu, Point place) override;
    void addToolButton(Name key, std::string_view tip, Look look) override;
    void setSwatch(Name key, Color color) override;
    void setChecked(Name item, bool checked) override;
    [[nodiscard]] bool checked(Name item) const override;
    void setCursor(const Cursor& cursor) override;
    [[nodiscard]] bool isOnCanvas(Point place) const override;
    void setLeft(Name control, double twips) override;
    void setTop(Name control, double twips) override;
    void placeAwayFrom(Name control, Point place, Name other) override;

private:
    void takeFocusFrom(Name control) const;

    CanvasWidget& m_canvas;
    std::string_view m_cursor;
    MenuTree m_menus;
    KeyRepeats m_repeats;
};

} // namespace schemlet
