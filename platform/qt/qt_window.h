#pragma once

#include "platform/event.h"
#include "platform/qt/menu_tree.h"
#include "platform/window.h"

#include <QObject>
#include <functional>
#include <map>
#include <string>

class CanvasWidget;
class CloseWish;
class QAction;
class QWidget;

/// A window made from a form: its controls are found by their object names, its menus are built from rows. Menus, the
/// popup menu and places on the canvas are for the form with the canvas.
class QtWindow final : public QObject, public Window {
    Q_OBJECT

public:
    /// The form's controls must be set up. Every event of the window goes to report.
    QtWindow(QWidget& form, std::function<void(const Event&)> report);

    void setCaption(std::string_view title) override;
    void showWindow() override;
    void showWithoutKeyboard() override;
    void hideWindow() override;
    void unload() override;
    void setHeight(int twips) override;
    [[nodiscard]] int height() const override { return m_height; }
    void printForm() override;
    void endProgram() override;
    void addToolButton(Name key, std::string_view tip, Look look) override;
    void setSwatch(Name key, Color color) override;
    void setCursor(const Cursor& cursor) override;
    void addMenuItem(int depth, const MenuItem& item) override;
    void popUp(Name menu, Point place) override;
    void setChecked(Name item, bool checked) override;
    [[nodiscard]] bool checked(Name item) const override;
    void setVisible(Name control, bool visible) override;
    [[nodiscard]] bool visible(Name control) const override;
    void setEnabled(Name control, bool enabled) override;
    [[nodiscard]] bool enabled(Name control) const override;
    void focus(Name control) override;
    void setText(Name control, std::string_view text) override;
    [[nodiscard]] std::string text(Name control) const override;
    void setDescription(Name control, std::string_view text) override;
    void setValue(Name control, int value) override;
    [[nodiscard]] int value(Name control) const override;
    void setBackColor(Name control, Color color) override;
    void drawPicture(Name control, void (*draw)(Surface&)) override;
    void setLeft(Name control, double twips) override;
    void setTop(Name control, double twips) override;
    void placeAwayFrom(Name control, Point place, Name other) override;
    [[nodiscard]] bool isOnCanvas(Point place) const override;
    void setInterval(Name timer, int milliseconds) override;

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] static int toPixels(double twips);
    void connectControls();
    void takeKeyboardFrom(const QWidget& control);
    void reportHover(const QWidget& widget) const;
    [[nodiscard]] QImage pictureOfForm();
    [[nodiscard]] QImage pictureOfCanvas();
    void report(const Event& event) const;
    /// The object with this name if it is of this kind, else null.
    template <typename Kind> [[nodiscard]] Kind* findIf(Name name) const
    {
        const auto found = m_named.find(name);
        return found == m_named.end() ? nullptr : qobject_cast<Kind*>(found->second);
    }
    template <typename Kind> [[nodiscard]] Kind& find(Name name) const
    {
        auto* const object = findIf<Kind>(name);
        if (object == nullptr) {
            qFatal("No such control: %.*s", static_cast<int>(name.size()), name.data());
        }
        return *object;
    }
    void addNamed(Name name, QObject& object);

    QWidget& m_form;
    CanvasWidget* m_canvas; ///< null in a form without one
    std::string m_name;
    Name m_cursor;
    int m_height = 0;
    CloseWish* m_closeWish; ///< lets no window close before the program says so
    MenuTree m_menus;
    std::function<void(const Event&)> m_report;
    std::map<std::string, QObject*, std::less<>> m_named;
};
