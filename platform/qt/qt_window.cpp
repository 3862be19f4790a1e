#include "platform/qt/qt_window.h"

#include "platform/qt/canvas_widget.h"
#include "platform/qt/fit_screen.h"
#include "platform/qt/form_events.h"
#include "platform/qt/form_properties.h"
#include "platform/qt/panel_keys.h"
#include "platform/qt/printing.h"
#include "platform/qt/text.h"

#include <QAbstractButton>
#include <QAction>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr QSize cursorSize(24, 24); // pixels

/// Whether an object belongs to this window and not to another one that the window owns.
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
    : m_form(form), m_canvas(form.findChild<CanvasWidget*>()), m_name(form.objectName().toStdString()),
      m_closeWish(new CloseWish(form, [this] { this->report({.kind = Event::Kind::close}); })),
      m_menus(form, [this](Name item) { this->report({.kind = Event::Kind::click, .name = item}); }),
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
    connectControls();
    form.setAttribute(Qt::WA_KeyboardFocusChange); // what has the focus looks so from the start, not from the first Tab
    if (auto* const rest = form.findChild<QWidget*>("qt_toolbar_ext_button")) {
        rest->setAccessibleName("More tools"); // the toolkit's own button in a narrow window, nameless
    }
    if (m_canvas != nullptr) {
        m_canvas->report = [this](const Event& event) { this->report(event); };
        m_canvas->setFocus();
    }
}

void QtWindow::connectControls()
{
    for (const auto& [name, object] : m_named) {
        if (auto* const button = qobject_cast<QAbstractButton*>(object)) {
            if (m_canvas != nullptr) {
                new KeyDetour(*button, *m_canvas);
            }
            connect(button, &QAbstractButton::clicked, this,
                    [this, name = Name(name)] { report({.kind = Event::Kind::click, .name = name}); });
        } else if (auto* const text = qobject_cast<QLineEdit*>(object)) {
            connect(text, &QLineEdit::returnPressed, this, [this, name = Name(name)] {
                report({.kind = Event::Kind::keyPress, .name = name, .code = character::enter});
            });
        } else if (object->property("reportsHovering").toBool()) {
            auto& frame = dynamic_cast<QWidget&>(*object);
            new Hovering(frame, [this](const QWidget& widget) { reportHover(widget); });
            new Floating(frame);
        } else if (object->property("isClickable").toBool()) {
            new LabelClick(dynamic_cast<QLabel&>(*object),
                           [this, name = Name(name)] { report({.kind = Event::Kind::click, .name = name}); });
        } else if (const QVariant frame = object->property("showsWith"); frame.isValid()) {
            new ShowsWith(dynamic_cast<QWidget&>(*object), find<QWidget>(frame.toString().toStdString()));
        } else if (object->property("isPanel").toBool()) {
            new PanelKeys(dynamic_cast<QWidget&>(*object), [this, name = Name(name)] {
                report({.kind = Event::Kind::keyPress, .name = name, .code = character::escape});
            });
        }
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
    // The toolkit would leave out a [*], its place for the mark of a changed document.
    m_form.setWindowTitle(toQString(title).replace("[*]", "[*][*]"));
}

void QtWindow::showWindow()
{
    if (const auto* const main = qobject_cast<QMainWindow*>(&m_form); main != nullptr && main->isHidden()) {
        resizeOnScreen(m_form, m_form.size().expandedTo(main->menuBar()->sizeHint()));
    }
    m_form.show();
    m_form.raise();
    m_form.activateWindow();
}

void QtWindow::showWithoutKeyboard()
{
    const QWidget& owner = *m_form.parentWidget();
    if (!owner.windowHandle()->isExposed()) {
        owner.windowHandle()->installEventFilter(this); // the window manager has not placed it yet
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
    const bool hadKeyboard = m_form.isActiveWindow();
    m_form.hide();
    if (hadKeyboard && m_form.parentWidget() != nullptr) {
        m_form.parentWidget()->activateWindow(); // a screen without a window manager gives the keyboard to nobody
    }
}

void QtWindow::unload()
{
    for (auto* const timer : findChildren<QTimer*>()) {
        timer->stop();
    }
    m_form.removeEventFilter(m_closeWish);
    m_form.close();
}

void QtWindow::setHeight(int twips)
{
    m_height = twips;
    m_form.setFixedSize(m_form.sizeHint().width(), toPixels(twips));
}

void QtWindow::printForm()
{
    printPicture(m_canvas != nullptr ? pictureOfCanvas() : pictureOfForm(),
                 m_form.windowTitle().replace("[*][*]", "[*]"));
}

/// The window as it is without the keyboard: nothing on paper has the focus.
QImage QtWindow::pictureOfForm()
{
    QWidget* const focused = m_form.focusWidget();
    if (focused == nullptr) {
        return m_form.grab().toImage();
    }
    focused->clearFocus();
    QImage picture = m_form.grab().toImage();
    focused->setFocus();
    return picture;
}

/// The canvas with what lies on it, but without what only guides the hand.
QImage QtWindow::pictureOfCanvas()
{
    std::vector<Name> hidden;
    for (const auto& [name, object] : m_named) {
        if (object->property("notPrinted").toBool() && visible(name)) {
            hidden.emplace_back(name);
        }
    }
    for (const Name name : hidden) {
        setVisible(name, false);
    }
    QImage picture = m_canvas->parentWidget()->grab(m_canvas->geometry()).toImage();
    for (const Name name : hidden) {
        setVisible(name, true);
    }
    return picture;
}

void QtWindow::endProgram()
{
    QCoreApplication::exit();
}

void QtWindow::setCursor(const Cursor& cursor)
{
    if (cursor.picture != m_cursor) {
        m_cursor = cursor.picture;
        const QIcon picture(":/pictures/cursors/" + toQString(cursor.picture) + ".svg");
        m_canvas->setCursor(QCursor(picture.pixmap(cursorSize, m_form.devicePixelRatioF()), cursor.hotX, cursor.hotY));
    }
}

void QtWindow::addMenuItem(int depth, const MenuItem& item)
{
    QAction& action = m_menus.add(depth, item);
    if (!item.name.empty()) {
        addNamed(item.name, action);
    }
}

void QtWindow::popUp(Name menu, Point place)
{
    const QRect canvas = m_canvas->rect();
    const QPoint inside(std::clamp(toPixels(place.x), canvas.left(), canvas.right()),
                        std::clamp(toPixels(place.y), canvas.top(), canvas.bottom()));
    find<QAction>(menu).menu()->popup(m_canvas->mapToGlobal(inside));
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
    if (!m_named.contains(timer)) {
        auto* const made = new QTimer(this);
        made->setTimerType(Qt::PreciseTimer); // a coarse one may be late by a twentieth
        connect(made, &QTimer::timeout, this, [this, timer] { report({.kind = Event::Kind::tick, .name = timer}); });
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
    if (!m_named.emplace(name, &object).second) {
        qFatal("A second '%s' in '%s'", qPrintable(object.objectName()), qPrintable(m_form.objectName()));
    }
}
