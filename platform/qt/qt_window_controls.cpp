// The controls of a window. The window itself is in qt_window.cpp.
#include "platform/qt/blinking_picture.h"
#include "platform/qt/colors.h"
#include "platform/qt/qt_surface.h"
#include "platform/qt/qt_window.h"
#include "platform/qt/text.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QRadioButton>

namespace schemlet {

void QtWindow::setVisible(Name control, bool visible)
{
    // Option1 is an action: it has the switches of a control, but no place in the window.
    if (auto* const action = findIf<QAction>(control)) {
        action->setVisible(visible);
    } else {
        find<QWidget>(control).setVisible(visible);
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
        find<QWidget>(control).setEnabled(enabled);
    }
}

bool QtWindow::enabled(Name control) const
{
    const auto* const action = findIf<QAction>(control);
    // Not isEnabled(), which also depends on the frames around the control.
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
    // Qt announces every call to screen readers, even if the text is the same.
    if (widget.accessibleDescription() != description) {
        widget.setAccessibleDescription(description);
    }
}

void QtWindow::setTip(Name control, std::string_view text)
{
    auto& widget = find<QWidget>(control);
    const QString tip = toQString(text);
    // Qt sends an event for each call, even with the same text.
    if (widget.toolTip() != tip) {
        widget.setToolTip(tip);
    }
}

void QtWindow::setValue(Name control, int value)
{
    if (auto* const bar = findIf<QProgressBar>(control)) {
        return bar->setValue(value);
    }
    auto& button = find<QAbstractButton>(control);
    // The chosen option of an exclusive group cannot be unchecked.
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
    // A group box paints its title with the text colour of fields, but on its own ground.
    if (qobject_cast<const QGroupBox*>(&widget) != nullptr) {
        palette.setColor(QPalette::Text, palette.color(QPalette::WindowText));
    }
    // The style outlines an option's circle a little darker than QPalette::Window, which an option does not paint
    // otherwise.
    if (qobject_cast<const QRadioButton*>(&widget) != nullptr) {
        palette.setColor(QPalette::Window, palette.color(QPalette::WindowText));
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

} // namespace schemlet
