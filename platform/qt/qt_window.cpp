#include "platform/qt/qt_window.h"

#include "platform/qt/canvas_widget.h"
#include "platform/qt/fit_screen.h"
#include "platform/qt/form_events.h"
#include "platform/qt/form_properties.h"
#include "platform/qt/panel_keys.h"
#include "platform/qt/panel_room.h"
#include "platform/qt/printing.h"
#include "platform/qt/text.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <cmath>

namespace schemlet {

namespace {

/// Whether an object belongs to this window itself and not to another window that it owns.
bool liesIn(const QWidget& window, const QObject& object)
{
    const QObject* up = &object;
    while (qobject_cast<const QWidget*>(up) == nullptr) {
        up = up->parent();
    }
    return qobject_cast<const QWidget*>(up)->window() == &window;
}

} // namespace

int QtWindow::toPixels(double twips)
{
    return static_cast<int>(std::lround(twips / twipsPerPixel));
}

QtWindow::QtWindow(QWidget& form, std::function<void(const Event&)> report)
    : m_form(form), m_name(form.objectName().toStdString()),
      m_closeRequest(new CloseRequest(form, [this] { this->report({.kind = Event::Kind::close}); })),
      m_report(std::move(report))
{
    for (QObject* const object : form.findChildren<QObject*>()) {
        if (!liesIn(form, *object)) {
            continue;
        }
        m_named.emplace(object->objectName().toStdString(), object);
        if (auto* const control = qobject_cast<QWidget*>(object)) {
            applyFormProperties(*control);
        }
    }
    if (const int largest = form.property("largestFont").toInt(); largest > 0) {
        fitFont(form, largest, roomOnScreen(form).width());
    }
    connectControls();
    form.setAttribute(Qt::WA_KeyboardFocusChange); // shows the focus from the start, not from the first Tab on
}

void QtWindow::connectControls()
{
    for (const auto& [name, object] : m_named) {
        connectControl(name, *object);
    }
}

void QtWindow::connectControl(std::string_view name, QObject& control)
{
    if (auto* const button = qobject_cast<QAbstractButton*>(&control)) {
        connect(button, &QAbstractButton::clicked, this, [this, name] { reportClick(name); });
    } else if (const QVariant clicked = control.property("enterClicks"); clicked.isValid()) {
        connect(&dynamic_cast<QLineEdit&>(control), &QLineEdit::returnPressed, this,
                [this, button = clicked.toString().toStdString()] { reportClick(button); });
    } else if (control.property("reportsHovering").toBool()) {
        auto& frame = dynamic_cast<QWidget&>(control);
        new Hovering(frame, [this](const QWidget& widget) { reportHover(widget); });
        new Floating(frame);
    } else if (control.property("isClickable").toBool()) {
        new LabelClick(dynamic_cast<QLabel&>(control), [this, name] { reportClick(name); });
    } else if (const QVariant frame = control.property("showsWith"); frame.isValid()) {
        new ShowsWith(dynamic_cast<QWidget&>(control), find<QWidget>(frame.toString().toStdString()));
    } else if (control.property("isPanel").toBool()) {
        new PanelKeys(dynamic_cast<QWidget&>(control), [this, name] { reportClick(name); });
    } else if (control.property("isStatusBar").toBool()) {
        new PanelRoom(dynamic_cast<QWidget&>(control));
    }
}

void QtWindow::reportHover(const QWidget& widget) const
{
    if (const auto found = m_named.find(widget.objectName().toStdString()); found != m_named.end()) {
        report({.kind = Event::Kind::hover, .name = found->first});
    }
}

void QtWindow::report(const Event& event) const
{
    Event named = event;
    named.window = m_name;
    m_report(named);
}

void QtWindow::setCaption(std::string_view title)
{
    // Qt would replace a [*] with its mark for a changed document.
    m_form.setWindowTitle(toQString(title).replace("[*]", "[*][*]"));
}

void QtWindow::showWindow()
{
    m_form.show();
    m_form.raise();
    m_form.activateWindow();
}

void QtWindow::showWithoutKeyboard()
{
    const QWidget& owner = *m_form.parentWidget();
    if (!owner.windowHandle()->isExposed()) {
        owner.windowHandle()->installEventFilter(this); // wait until the window manager has placed the owner
        return;
    }
    const auto& canvas = *owner.findChild<CanvasWidget*>();
    const QSize frame = owner.frameGeometry().size() - owner.size();
    m_form.move(placeBeside(m_form.size() + frame, owner.frameGeometry(), {canvas.mapToGlobal(QPoint()), canvas.size()},
                            owner.screen()->availableGeometry()));
    m_form.setAttribute(Qt::WA_ShowWithoutActivating, true);
    m_form.show();
    m_form.setAttribute(Qt::WA_ShowWithoutActivating, false);
}

void QtWindow::hideWindow()
{
    const bool wasActive = m_form.isActiveWindow();
    m_form.hide();
    if (wasActive && m_form.parentWidget() != nullptr) {
        m_form.parentWidget()->activateWindow(); // without a window manager no window would get the focus
    }
}

void QtWindow::unload()
{
    for (auto* const timer : findChildren<QTimer*>()) {
        timer->stop();
    }
    m_form.removeEventFilter(m_closeRequest);
    m_form.close();
}

void QtWindow::setHeight(int twips)
{
    m_height = twips;
    m_form.setFixedSize(m_form.sizeHint().width(), toPixels(twips));
    if (m_form.isVisible()) {
        keepOnScreen(m_form);
    }
}

void QtWindow::print(const QImage& picture) const
{
    printPicture(picture, m_form.windowTitle().replace("[*][*]", "[*]"));
}

void QtWindow::printForm()
{
    QWidget* const focused = m_form.focusWidget();
    if (focused == nullptr) {
        return print(m_form.grab().toImage());
    }
    focused->clearFocus(); // a focus ring does not belong on paper
    const QImage picture = m_form.grab().toImage();
    focused->setFocus();
    print(picture);
}

bool QtWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Expose) {
        watched->removeEventFilter(this);
        showWithoutKeyboard();
    }
    return QObject::eventFilter(watched, event);
}

void QtWindow::setInterval(Name timer, int milliseconds)
{
    if (!m_named.contains(timer.text())) {
        auto* const made = new QTimer(this);
        made->setTimerType(Qt::PreciseTimer); // a coarse timer may be off by 5 %
        connect(made, &QTimer::timeout, this,
                [this, timer] { report({.kind = Event::Kind::tick, .name = timer.text()}); });
        addNamed(timer, *made);
    }
    auto& ticking = find<QTimer>(timer);
    if (milliseconds > 0) {
        ticking.start(milliseconds);
    } else {
        ticking.stop();
    }
}

void QtWindow::addNamed(Name name, QObject& object)
{
    object.setObjectName(toQString(name));
    if (!m_named.emplace(name.text(), &object).second) {
        qFatal("A second '%s' in '%s'", qPrintable(object.objectName()), qPrintable(m_form.objectName()));
    }
}

} // namespace schemlet
