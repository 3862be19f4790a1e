#pragma once

#include <QObject>
#include <vector>

class QLabel;
class QWidget;

namespace schemlet {

/// Fits the panels of a status bar into its width: where room is short, those that matter least vanish, so that the
/// others are whole. A property of each panel, `givesWay`, says how soon: the highest number first, 0 never.
class PanelRoom final : public QObject {
    Q_OBJECT

public:
    /// Belongs to the bar, which must be complete.
    explicit PanelRoom(QWidget& bar);

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Panel {
        QLabel* label;
        int smallest, largest; // widths
    };

    void fit();

    QWidget& m_bar;
    std::vector<Panel> m_panels; // what stays longest comes first
};

} // namespace schemlet
