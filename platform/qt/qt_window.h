#pragma once

#include "platform/event.h"
#include "platform/window.h"

#include <QObject>
#include <functional>
#include <map>
#include <string>
#include <vector>

class CanvasWidget;
class QAction;
class QMainWindow;
class QMenu;
class QWidget;

/// A window made from a form: its controls are found by their object names, its menus are built from rows.
class QtWindow final : public QObject, public Window {
    Q_OBJECT

public:
    /// The form's controls must be set up. Every event of the window goes to report.
    QtWindow(QMainWindow& form, std::function<void(const Event&)> report);

    void setCaption(std::string_view title) override;
    void showWindow() override;
    void addMenuItem(int depth, const MenuItem& item) override;
    void popUp(Name menu) override;
    void setChecked(Name item, bool checked) override;
    [[nodiscard]] bool checked(Name item) const override;
    void setVisible(Name control, bool visible) override;
    [[nodiscard]] bool visible(Name control) const override;
    void setText(Name control, std::string_view text) override;
    void setLeft(Name control, double twips) override;
    void setTop(Name control, double twips) override;
    void setInterval(Name timer, int milliseconds) override;

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    template <typename Kind> [[nodiscard]] Kind& find(Name name) const;
    void addNamed(Name name, QObject& object);
    [[nodiscard]] QWidget& menuAt(int depth);

    QMainWindow& m_form;
    CanvasWidget& m_canvas;
    std::function<void(const Event&)> m_report;
    std::map<std::string, QObject*, std::less<>> m_named;
    std::vector<QAction*> m_lastItems; ///< the last menu row of each depth
    Qt::MouseButtons m_owedReleases;   ///< of the buttons that were down on the canvas when a popup menu opened
};
