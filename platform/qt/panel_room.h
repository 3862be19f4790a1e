#pragma once

#include <QObject>
#include <vector>

class QLabel;
class QWidget;

namespace schemlet {

/// Fits the panels of a status bar into its width. If room is short, the least important panels vanish, so that the
/// others show their whole text. The property `givesWay` sets the order: the highest number vanishes first, 0 never.
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
    std::vector<Panel> m_panels; ///< in the order of `givesWay`
};

} // namespace schemlet
