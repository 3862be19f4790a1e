#pragma once

#include "platform/event.h"
#include "platform/window.h"

#include <QObject>
#include <functional>
#include <map>
#include <string>
#include <vector>

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
    void addToolButton(Name key, std::string_view tip) override;
    void setCursor(const Cursor& cursor) override;
    void addMenuItem(int depth, const MenuItem& item) override;
    void popUp(Name menu) override;
    void setChecked(Name item, bool checked) override;
    [[nodiscard]] bool checked(Name item) const override;
    void setVisible(Name control, bool visible) override;
    [[nodiscard]] bool visible(Name control) const override;
    void setEnabled(Name control, bool enabled) override;
    void focus(Name control) override;
    void setText(Name control, std::string_view text) override;
    [[nodiscard]] std::string text(Name control) const override;
    void setValue(Name control, int value) override;
    [[nodiscard]] int value(Name control) const override;
    void setBackColor(Name control, Color color) override;
    void drawPicture(Name control, void (*draw)(Surface&)) override;
    void setLeft(Name control, double twips) override;
    void setTop(Name control, double twips) override;
    void placeAwayFrom(Name control, double x, double y) override;
    void setInterval(Name timer, int milliseconds) override;

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void connectControls();
    void reportHovering(QWidget& frame);
    [[nodiscard]] bool filterHovering(QObject& watched, const QEvent& event);
    [[nodiscard]] QImage pictureOfCanvas();
    void report(const Event& event) const;
    /// The object with this name if it is of this kind, else null.
    template <typename Kind> [[nodiscard]] Kind* findIf(Name name) const;
    template <typename Kind> [[nodiscard]] Kind& find(Name name) const;
    void addNamed(Name name, QObject& object);
    [[nodiscard]] QWidget& menuAt(int depth);

    QWidget& m_form;
    CanvasWidget* m_canvas; ///< null in a form without one
    std::string m_name;
    Name m_cursor;
    int m_height = 0;
    CloseWish* m_closeWish; ///< lets no window close before the program says so
    std::function<void(const Event&)> m_report;
    std::map<std::string, QObject*, std::less<>> m_named;
    std::vector<QAction*> m_lastItems; ///< the last menu row of each depth
    Qt::MouseButtons m_owedReleases;   ///< of the buttons that were down on the canvas when a popup menu opened
};
