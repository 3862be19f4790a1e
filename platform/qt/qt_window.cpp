#include "platform/qt/qt_window.h"

#include "platform/qt/blinking_picture.h"
#include "platform/qt/canvas_widget.h"
#include "platform/qt/colors.h"
#include "platform/qt/panel_keys.h"
#include "platform/qt/printing.h"
#include "platform/qt/text.h"
#include "platform/qt/wishes.h"

#include <QAbstractButton>
#include <QAction>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QProgressBar>
#include <QTimer>
#include <QToolBar>
#include <cmath>

namespace {

int toPixels(double twips)
{
    return static_cast<int>(std::lround(twips / twipsPerPixel));
}

/// The relative luminance of a colour, 0 to 1, as the web's contrast guidelines define it.
double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// Black or white, whichever stands out more.
QColor readableOn(const QColor& ground)
{
    constexpr double equalContrast = 0.179;
    return luminance(ground) > equalContrast ? Qt::black : Qt::white;
}

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

/// What the form says of a control in properties of our own.
void applyFormProperties(QWidget& control)
{
    // A label keeps the size of the widest text it may show, which is its text in the form: a new text then repaints
    // the label and lays out nothing.
    if (control.property("fixedToText").toBool()) {
        control.ensurePolished();
        control.setFixedSize(control.sizeHint());
    }
    // It lies on the canvas, which gets the mouse all the same.
    if (control.property("mouseGoesThrough").toBool()) {
        control.setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    // The controls around it do not move when it is shown and hidden.
    if (control.property("keepsItsPlace").toBool()) {
        QSizePolicy policy = control.sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        control.setSizePolicy(policy);
    }
}

} // namespace

QtWindow::QtWindow(QWidget& form, std::function<void(const Event&)> report)
    : m_form(form), m_canvas(form.findChild<CanvasWidget*>()), m_name(form.objectName().toStdString()),
      m_closeWish(new CloseWish(form, [this] { this->report({.kind = Event::Kind::close}); })),
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
    if (m_canvas != nullptr) {
        m_canvas->report = [this](const Event& event) { this->report(event); };
        m_canvas->setFocus();
    }
}

void QtWindow::connectControls()
{
    for (const auto& [name, object] : m_named) {
        if (auto* const button = qobject_cast<QAbstractButton*>(object)) {
            connect(button, &QAbstractButton::clicked, this,
                    [this, name = Name(name)] { report({.kind = Event::Kind::click, .name = name}); });
        } else if (auto* const text = qobject_cast<QLineEdit*>(object)) {
            connect(text, &QLineEdit::returnPressed, this, [this, name = Name(name)] {
                report({.kind = Event::Kind::keyPress, .name = name, .code = character::enter});
            });
        } else if (object->property("reportsHovering").toBool()) {
            reportHovering(dynamic_cast<QWidget&>(*object));
        } else if (object->property("isClickable").toBool()) {
            new LabelClick(dynamic_cast<QLabel&>(*object),
                           [this, name = Name(name)] { report({.kind = Event::Kind::click, .name = name}); });
        } else if (object->property("isPanel").toBool()) {
            new PanelKeys(dynamic_cast<QWidget&>(*object), [this, name = Name(name)] {
                report({.kind = Event::Kind::keyPress, .name = name, .code = character::escape});
            });
        }
    }
}

/// A frame that lies on the canvas keeps the mouse to itself and its controls.
void QtWindow::reportHovering(QWidget& frame)
{
    QList<QWidget*> widgets = frame.findChildren<QWidget*>();
    widgets.push_back(&frame);
    for (QWidget* const widget : widgets) {
        widget->setMouseTracking(true);
        widget->installEventFilter(this);
    }
}

bool QtWindow::filterHovering(QObject& watched, const QEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseMove:
        if (dynamic_cast<const QMouseEvent&>(event).buttons() != Qt::NoButton) {
            break;
        }
        if (const auto found = m_named.find(watched.objectName().toStdString()); found != m_named.end()) {
            report({.kind = Event::Kind::hover, .name = found->first});
        }
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease: break;
    default: return false;
    }
    return watched.property("reportsHovering").toBool(); // the rest goes no further than the frame
}

void QtWindow::report(const Event& event) const
{
    Event named = event;
    named.window = m_name;
    m_report(named);
}

void QtWindow::setCaption(std::string_view title)
{
    m_form.setWindowTitle(toQString(title));
}

void QtWindow::showWindow()
{
    m_form.show();
    m_form.raise();
    m_form.activateWindow();
}

void QtWindow::showWithoutKeyboard()
{
    m_form.setAttribute(Qt::WA_ShowWithoutActivating, true);
    m_form.show();
    m_form.setAttribute(Qt::WA_ShowWithoutActivating, false);
}

void QtWindow::hideWindow()
{
    m_form.hide();
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
    m_form.setFixedHeight(toPixels(twips));
}

void QtWindow::printForm()
{
    printPicture(m_canvas != nullptr ? pictureOfCanvas() : m_form.grab().toImage(), m_form.windowTitle());
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
    const QImage picture = m_canvas->parentWidget()->grab(m_canvas->geometry()).toImage();
    for (const Name name : hidden) {
        setVisible(name, true);
    }
    return picture;
}

void QtWindow::endProgram()
{
    QCoreApplication::exit();
}

void QtWindow::addToolButton(Name key, std::string_view tip)
{
    auto& bar = *m_form.findChild<QToolBar*>();
    if (key.empty()) {
        bar.addSeparator();
        return;
    }
    QAction* const button = bar.addAction(QIcon(":/pictures/toolbar/" + toQString(key) + ".svg"), toQString(key));
    button->setToolTip(toQString(tip));
    connect(button, &QAction::triggered, this, [this, key] { report({.kind = Event::Kind::click, .name = key}); });
    connect(button, &QAction::hovered, this, [this, key] { report({.kind = Event::Kind::hover, .name = key}); });
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
    const bool separator = item.caption == "-";
    auto* const action = new QAction(separator ? QString() : toQString(item.caption), &m_form);
    action->setSeparator(separator);
    action->setShortcut(QKeySequence::fromString(toQString(item.shortcut), QKeySequence::PortableText));
    action->setCheckable(item.look == Look::unchecked || item.look == Look::checked);
    action->setChecked(item.look == Look::checked);
    action->setVisible(item.look != Look::hidden);
    if (!item.name.empty()) {
        addNamed(item.name, *action);
    }
    connect(action, &QAction::triggered, this, [this, action, name = item.name](bool checked) {
        // A check item flips itself first, but its mark is the command's to flip.
        if (action->isCheckable()) {
            action->setChecked(!checked);
        }
        report({.kind = Event::Kind::click, .name = name});
    });
    menuAt(depth).addAction(action);
    m_lastItems.resize(static_cast<std::size_t>(depth));
    m_lastItems.push_back(action);
}

QWidget& QtWindow::menuAt(int depth)
{
    if (depth == 0) {
        return *m_form.findChild<QMenuBar*>();
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
    if (qobject_cast<QMenu*>(watched) == nullptr) {
        return filterHovering(*watched, *event) || QObject::eventFilter(watched, event);
    }
    // An open popup menu gets the release of the button that opened it; it is the canvas's all the same.
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto& release = dynamic_cast<const QMouseEvent&>(*event);
        if (m_owedReleases.testFlag(release.button())) {
            m_owedReleases.setFlag(release.button(), false);
            m_canvas->reportRelease(release.button(), m_canvas->mapFromGlobal(release.globalPosition()));
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

void QtWindow::focus(Name control)
{
    find<QWidget>(control).setFocus(Qt::TabFocusReason); // for this reason a text box selects its text
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
    const QColor ground = toQColor(color);
    QPalette palette;
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::WindowText, readableOn(ground));
    find<QWidget>(control).setPalette(palette);
}

void QtWindow::drawPicture(Name control, void (*draw)(Surface&))
{
    auto* const button = findIf<QAbstractButton>(control);
    auto* const label = findIf<QLabel>(control);
    const double scale = m_form.devicePixelRatioF();
    QtSurface surface(scale);
    surface.growTo(button != nullptr ? button->iconSize() : label->minimumSize());
    draw(surface);
    QPixmap picture = QPixmap::fromImage(surface.image());
    picture.setDevicePixelRatio(scale);
    if (button != nullptr) {
        button->setIcon(picture);
    } else {
        label->setPixmap(picture);
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

void QtWindow::placeAwayFrom(Name control, double x, double y)
{
    auto& widget = find<QWidget>(control);
    const Qt::Alignment side = x / twipsPerPixel < m_canvas->width() / 2.0 ? Qt::AlignRight : Qt::AlignLeft;
    const Qt::Alignment end = y / twipsPerPixel < m_canvas->height() / 2.0 ? Qt::AlignBottom : Qt::AlignTop;
    widget.parentWidget()->layout()->setAlignment(&widget, side | end);
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

template <typename Kind> Kind* QtWindow::findIf(Name name) const
{
    const auto found = m_named.find(name);
    return found == m_named.end() ? nullptr : qobject_cast<Kind*>(found->second);
}

template <typename Kind> Kind& QtWindow::find(Name name) const
{
    auto* const object = findIf<Kind>(name);
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
