// The controls and the toolbar of a window; qt_window.cpp has the window itself.
#include "platform/qt/blinking_picture.h"
#include "platform/qt/canvas_widget.h"
#include "platform/qt/colors.h"
#include "platform/qt/qt_surface.h"
#include "platform/qt/qt_window.h"
#include "platform/qt/swatch_icon.h"
#include "platform/qt/text.h"

#include <QAbstractButton>
#include <QAction>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QProgressBar>
#include <QRegion>
#include <QStyle>
#include <QToolBar>
#include <algorithm>
#include <tuple>

namespace {

// Left is left in every language: the canvas is never mirrored.
constexpr Qt::Alignment corners[] = {
    Qt::AlignAbsolute | Qt::AlignRight | Qt::AlignBottom, Qt::AlignAbsolute | Qt::AlignLeft | Qt::AlignBottom,
    Qt::AlignAbsolute | Qt::AlignRight | Qt::AlignTop, Qt::AlignAbsolute | Qt::AlignLeft | Qt::AlignTop};

QIcon toolPicture(Name key)
{
    return QIcon(":/pictures/toolbar/" + toQString(key) + ".svg");
}

} // namespace

void QtWindow::addToolButton(Name key, std::string_view tip, Look look)
{
    auto& bar = *m_form.findChild<QToolBar*>();
    if (key.empty()) {
        bar.widgetForAction(bar.addSeparator())->setProperty("isDecoration", true);
        return;
    }
    QAction* const button = bar.addAction(toolPicture(key), toQString(key));
    addNamed(key, *button);
    button->setToolTip(toQString(tip));
    button->setCheckable(look != Look::plain);
    connect(button, &QAction::triggered, this, [this, key, button](bool checked) {
        button->setChecked(!checked); // the toolkit has flipped it; the program says what it shows
        report({.kind = Event::Kind::click, .name = key});
    });
    connect(button, &QAction::hovered, this, [this, key] { report({.kind = Event::Kind::hover, .name = key}); });
}

void QtWindow::setSwatch(Name key, Color color)
{
    auto& button = find<QAction>(key);
    if (button.data() != color) {
        button.setData(color);
        button.setIcon(swatchIcon(toolPicture(key), toQColor(color)));
    }
}

void QtWindow::setChecked(Name item, bool checked)
{
    find<QAction>(item).setChecked(checked);
}

bool QtWindow::checked(Name item) const
{
    return find<QAction>(item).isChecked();
}

void QtWindow::setVisible(Name control, bool visible)
{
    // An option that nobody is to see is an action, which has nothing but its switches.
    if (auto* const action = findIf<QAction>(control)) {
        action->setVisible(visible);
    } else {
        auto& widget = find<QWidget>(control);
        if (!visible) {
            takeKeyboardFrom(widget);
        }
        widget.setVisible(visible);
    }
}

/// For a control that is about to go away. The toolkit would pass its focus on to the next controls, as Tab does, and a
/// screen reader would speak each of them.
void QtWindow::takeKeyboardFrom(const QWidget& control)
{
    const QWidget* const keyboard = m_form.focusWidget();
    if (m_canvas != nullptr && keyboard != nullptr && (keyboard == &control || control.isAncestorOf(keyboard))) {
        m_canvas->setFocus();
    }
}

bool QtWindow::visible(Name control) const
{
    if (const auto* const action = findIf<QAction>(control)) {
        return action->isVisible();
    }
    const auto& widget = find<QWidget>(control);
    const auto* const picture = qobject_cast<const BlinkingPicture*>(&widget);
    return picture != nullptr ? picture->isOn() : !widget.isHidden();
}

void QtWindow::setEnabled(Name control, bool enabled)
{
    if (auto* const action = findIf<QAction>(control)) {
        action->setEnabled(enabled);
    } else {
        auto& widget = find<QWidget>(control);
        if (!enabled) {
            takeKeyboardFrom(widget);
        }
        widget.setEnabled(enabled);
    }
}

bool QtWindow::enabled(Name control) const
{
    const auto* const action = findIf<QAction>(control);
    // Not isEnabled(), which asks the frames around it too.
    return action != nullptr ? action->isEnabled() : !find<QWidget>(control).testAttribute(Qt::WA_ForceDisabled);
}

void QtWindow::focus(Name control)
{
    find<QWidget>(control).setFocus();
    if (auto* const box = findIf<QLineEdit>(control)) {
        box->selectAll();
    }
}

void QtWindow::setText(Name control, std::string_view text)
{
    if (auto* const box = findIf<QLineEdit>(control)) {
        box->setText(toQString(text));
    } else {
        find<QLabel>(control).setText(toQString(text));
    }
}

std::string QtWindow::text(Name control) const
{
    return find<QLineEdit>(control).text().toStdString();
}

void QtWindow::setDescription(Name control, std::string_view text)
{
    auto& widget = find<QWidget>(control);
    const QString description = toQString(text);
    // Every setting counts as news, and a screen reader would say the same again.
    if (widget.accessibleDescription() != description) {
        widget.setAccessibleDescription(description);
    }
}

void QtWindow::setValue(Name control, int value)
{
    if (auto* const bar = findIf<QProgressBar>(control)) {
        return bar->setValue(value);
    }
    auto& button = find<QAbstractButton>(control);
    // The chosen one of a group cannot be taken back while it is exclusive.
    const bool exclusive = button.autoExclusive();
    button.setAutoExclusive(false);
    button.setChecked(value != 0);
    button.setAutoExclusive(exclusive);
}

int QtWindow::value(Name control) const
{
    if (const auto* const bar = findIf<QProgressBar>(control)) {
        return bar->value();
    }
    return find<QAbstractButton>(control).isChecked() ? 1 : 0;
}

void QtWindow::setBackColor(Name control, Color color)
{
    auto& widget = find<QWidget>(control);
    QPalette palette = paletteOn(toQColor(color));
    // The title of a group is painted as what is typed in a box, but on the group's ground.
    if (qobject_cast<const QGroupBox*>(&widget) != nullptr) {
        palette.setColor(QPalette::Text, palette.color(QPalette::WindowText));
    }
    widget.setPalette(palette);
}

void QtWindow::drawPicture(Name control, void (*draw)(Surface&))
{
    auto* const button = findIf<QAbstractButton>(control);
    const double scale = m_form.devicePixelRatioF();
    QtSurface surface(scale);
    surface.growTo(button != nullptr ? button->iconSize() : find<QLabel>(control).minimumSize());
    draw(surface);
    QPixmap picture = QPixmap::fromImage(surface.image());
    picture.setDevicePixelRatio(scale);
    if (button != nullptr) {
        button->setIcon(picture);
    } else {
        find<QLabel>(control).setPixmap(picture);
    }
}

void QtWindow::setLeft(Name control, double twips)
{
    auto& widget = find<QWidget>(control);
    widget.move(toPixels(twips), widget.y());
}

void QtWindow::setTop(Name control, double twips)
{
    auto& widget = find<QWidget>(control);
    widget.move(widget.x(), toPixels(twips));
}

bool QtWindow::isOnCanvas(Point place) const
{
    return place.x >= 0 && place.y >= 0 && place.x < m_canvas->width() * twipsPerPixel &&
           place.y < m_canvas->height() * twipsPerPixel;
}

void QtWindow::placeAwayFrom(Name control, Point from, Name other)
{
    auto& widget = find<QWidget>(control);
    if (widget.isHidden()) {
        return;
    }
    QRegion hidden; // by the other windows
    for (const auto* const dialog : m_form.findChildren<QDialog*>(Qt::FindDirectChildrenOnly)) {
        if (dialog->isVisible()) {
            hidden += dialog->frameGeometry().translated(-m_canvas->mapToGlobal(QPoint()));
        }
    }
    const QPoint place(toPixels(from.x), toPixels(from.y));
    const auto& neighbour = find<QWidget>(other);
    const QRect taken = neighbour.isHidden() ? QRect() : neighbour.geometry();
    const QSize size = widget.sizeHint();
    const auto badness = [&](Qt::Alignment corner) {
        const QRect there = QStyle::alignedRect(Qt::LeftToRight, corner, size, m_canvas->rect());
        const QPoint away = there.center() - place;
        return std::tuple(there.contains(place), hidden.intersects(there), there.intersects(taken),
                          -QPoint::dotProduct(away, away));
    };
    const Qt::Alignment best = *std::ranges::min_element(corners, {}, badness);
    QLayout& layout = *widget.parentWidget()->layout();
    if (layout.itemAt(layout.indexOf(&widget))->alignment() != best) {
        layout.setAlignment(&widget, best);
    }
}
