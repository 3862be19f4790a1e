#include "platform/qt/panel_room.h"

#include <QAbstractButton>
#include <QEvent>
#include <QLabel>
#include <QLayout>
#include <QVariant>
#include <algorithm>

namespace schemlet {

namespace {

int rank(const QLabel& label)
{
    return label.property("givesWay").toInt();
}

/// A panel that fills the remaining width needs only its smallest width.
int neededWidth(const QLabel& label, int smallest, int largest)
{
    return label.sizePolicy().horizontalPolicy() == QSizePolicy::Ignored
               ? smallest
               : std::clamp(label.sizeHint().width(), smallest, largest);
}

} // namespace

PanelRoom::PanelRoom(QWidget& bar) : QObject(&bar), m_bar(bar)
{
    for (auto* const label : bar.findChildren<QLabel*>()) {
        m_panels.push_back({label, label->minimumWidth(), label->maximumWidth()});
    }
    std::ranges::stable_sort(m_panels, {}, [](const Panel& panel) { return rank(*panel.label); });
    bar.installEventFilter(this);
}

bool PanelRoom::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) {
        fit();
    }
    return QObject::eventFilter(watched, event);
}

void PanelRoom::fit()
{
    const QMargins margins = m_bar.layout()->contentsMargins();
    int taken = margins.left() + margins.right();
    for (const auto* const button : m_bar.findChildren<QAbstractButton*>()) {
        taken += button->sizeHint().width(); // buttons never vanish
    }
    for (const auto& [label, smallest, largest] : m_panels) {
        if (label->isHidden()) {
            continue;
        }
        taken += neededWidth(*label, smallest, largest);
        // A panel vanishes by having no width. Hiding it is up to the core.
        const bool fits = taken <= m_bar.width() || rank(*label) == 0;
        label->setMinimumWidth(fits ? smallest : 0);
        label->setMaximumWidth(fits ? largest : 0);
        if (rank(*label) == 0) {
            label->setToolTip(label->text()); // the text may be longer than the bar
        }
    }
    m_bar.layout()->activate(); // now, so that nothing is painted in between
}

} // namespace schemlet
