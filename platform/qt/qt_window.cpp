#include "platform/qt/qt_window.h"

#include "platform/qt/blinking_picture.h"
#include "platform/qt/canvas_widget.h"
#include "platform/qt/text.h"
#include "platform/surface.h"

#include <QAction>
#include <QGuiApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QTimer>
#include <cmath>

namespace {

int toPixels(double twips)
{
    return static_cast<int>(std::lround(twips / twipsPerPixel));
}

/// What the form says of a label in properties of our own.
void applyFormProperties(QLabel& label)
{
    // It keeps the size of the widest text it may show, which is its text in the form: a new text then repaints the
    // label and lays out nothing.
    if (label.property("fixedToText").toBool()) {
        label.ensurePolished();
        label.setFixedSize(label.sizeHint());
    }
    // It lies on the canvas, which gets the mouse all the same.
    if (label.property("mouseGoesThrough").toBool()) {
        label.setAttribute(Qt::WA_TransparentForMouseEvents);
    }
}

} // namespace

QtWindow::QtWindow(QMainWindow& form, std::function<void(const Event&)> report)
    : m_form(form), m_canvas(*form.findChild<CanvasWidget*>()), m_report(std::move(report))
{
    for (QWidget* const control : form.findChildren<QWidget*>()) {
        m_named.emplace(control->objectName().toStdString(), control);
    }
    for (QLabel* const label : form.findChildren<QLabel*>()) {
        applyFormProperties(*label);
    }
    m_canvas.report = m_report;
    m_canvas.setFocus();
}

void QtWindow::setCaption(std::string_view title)
{
    m_form.setWindowTitle(toQString(title));
}

void QtWindow::showWindow()
{
    m_form.show();
}

void QtWindow::addMenuItem(int depth, const MenuItem& item)
{
    const bool separator = item.caption == "-";
    auto* const action = new QAction(separator ? QString() : toQString(item.caption), &m_form);
    action->setSeparator(separator);
    action->setShortcut(QKeySequence::fromString(toQString(item.shortcut), QKeySequence::PortableText));
    action->setCheckable(item.look == Look::unchecked);
    action->setVisible(item.look != Look::hidden);
    if (!item.name.empty()) {
        addNamed(item.name, *action);
    }
    connect(action, &QAction::triggered, this, [this, action, name = item.name](bool checked) {
        // A check item flips itself first, but its mark is the command's to flip.
        if (action->isCheckable()) {
            action->setChecked(!checked);
        }
        m_report({.kind = Event::Kind::click, .name = name});
    });
    menuAt(depth).addAction(action);
    m_lastItems.resize(static_cast<std::size_t>(depth));
    m_lastItems.push_back(action);
}

QWidget& QtWindow::menuAt(int depth)
{
    if (depth == 0) {
        return *m_form.menuBar();
    }
    QAction& parent = *m_lastItems.at(static_cast<std::size_t>(depth) - 1);
    if (parent.menu() == nullptr) {
        auto* const menu = new QMenu(&m_form);
        menu->setObjectName(parent.objectName() + "Menu");
        menu->setAccessibleName(parent.text().remove('&').trimmed());
        parent.setMenu(menu);
    }
    return *parent.menu();
}

void QtWindow::popUp(Name menu)
{
    QMenu& popup = *find<QAction>(menu).menu();
    m_owedReleases = QGuiApplication::mouseButtons();
    popup.installEventFilter(this);
    popup.popup(QCursor::pos());
}

bool QtWindow::eventFilter(QObject* watched, QEvent* event)
{
    // An open popup menu gets the release of the button that opened it; it is the canvas's all the same.
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto& release = dynamic_cast<const QMouseEvent&>(*event);
        if (m_owedReleases.testFlag(release.button())) {
            m_owedReleases.setFlag(release.button(), false);
            m_canvas.reportRelease(release.button(), m_canvas.mapFromGlobal(release.globalPosition()));
        }
    }
    return QObject::eventFilter(watched, event);
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
    find<QWidget>(control).setVisible(visible);
}

bool QtWindow::visible(Name control) const
{
    const auto& widget = find<QWidget>(control);
    const auto* const picture = qobject_cast<const BlinkingPicture*>(&widget);
    return picture != nullptr ? picture->isOn() : !widget.isHidden();
}

void QtWindow::setText(Name control, std::string_view text)
{
    find<QLabel>(control).setText(toQString(text));
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

void QtWindow::setInterval(Name timer, int milliseconds)
{
    if (!m_named.contains(timer)) {
        auto* const made = new QTimer(this);
        connect(made, &QTimer::timeout, this, [this, timer] { m_report({.kind = Event::Kind::tick, .name = timer}); });
        addNamed(timer, *made);
    }
    auto& ticking = find<QTimer>(timer);
    if (milliseconds > 0) {
        ticking.start(milliseconds);
    } else {
        ticking.stop();
    }
}

template <typename Kind> Kind& QtWindow::find(Name name) const
{
    const auto found = m_named.find(name);
    auto* const object = found == m_named.end() ? nullptr : qobject_cast<Kind*>(found->second);
    if (object == nullptr) {
        qFatal("No such control: %.*s", static_cast<int>(name.size()), name.data());
    }
    return *object;
}

void QtWindow::addNamed(Name name, QObject& object)
{
    object.setObjectName(toQString(name));
    m_named.emplace(name, &object);
}
