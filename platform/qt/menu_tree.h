#pragma once

#include "platform/main_window.h"

#include <QObject>
#include <functional>
#include <vector>

class QAction;
class QWidget;

namespace schemlet {

/// Builds the menus of a window with a menu bar, row by row.
class MenuTree final : public QObject {
    Q_OBJECT

public:
    MenuTree(QWidget& form, std::function<void(Name)> clicked);

    /// Appends a row. Depth 0 is the menu bar. A deeper row goes into the menu of the last row one level above.
    QAction& add(int depth, const MenuItem& item);

private:
    [[nodiscard]] QWidget& menuAt(int depth);

    QWidget& m_form;
    std::function<void(Name)> m_clicked;
    std::vector<QAction*> m_lastItems; ///< the last row of each depth
};

} // namespace schemlet
