#include "platform/qt/qt_main_window.h"

#include "platform/qt/blinking_picture.h"
#include "platform/qt/canvas_widget.h"
#include "platform/qt/colors.h"
#include "platform/qt/double_clicks.h"
#include "platform/qt/fit_screen.h"
#include "platform/qt/form_events.h"
#include "platform/qt/swatch_icon.h"
#include "platform/qt/text.h"

#include <QAbstractButton>
#include <QAction>
#include <QCoreApplication>
#include <QDialog>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QRegion>
#include <QStyle>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>
#include <tuple>
#include <vector>

namespace schemlet {

namespace {

constexpr QSize cursorSize(24, 24); // pixels

// Absolute, because the canvas is not mirrored for languages that are written from right to left.
constexpr Qt::Alignment corners[] = {
    Qt::AlignAbsolute | Qt::AlignRight | Qt::AlignBottom, Qt::AlignAbsolute | Qt::AlignLeft | Qt::AlignBottom,
    Qt::AlignAbsolute | Qt::AlignRight | Qt::AlignTop, Qt::AlignAbsolute | Qt::AlignLeft | Qt::AlignTop};

QIcon toolPicture(Name key)
{
    return QIcon(":/pictures/toolbar/" + toQString(key) + ".svg");
}

/// In a narrow window, Qt adds a button for the entries that do not fit. It has no name, and its picture is black even
/// on a dark desktop, so it gets a name and a text.
void labelOverflow(const QWidget& form, const char* button, const char* name)
{
    if (auto* const overflow = form.findChild<QToolButton*>(button)) {
        overflow->setAccessibleName(name);
        overflow->setText("»");
        overflow->setToolButtonStyle(Qt::ToolButtonTextOnly);
    }
}

} // namespace

QtMainWindow::QtMainWindow(QWidget& form, std::function<void(const Event&)> report)
    : QtWindow(form, [this, report = std::move(report)](
                         const Event& event) { m_canvas.showTogether([&] { report(event); }); }),
      m_canvas(*form.findChild<CanvasWidget*>()),
      m_menus(form, [this](Name item) { this->report({.kind = Event::Kind::click, .name = item.text()}); })
{
    for (const auto& [name, object] : named()) {
        if (auto* const button = qobject_cast<QAbstractButton*>(object)) {
            new KeyDetour(*button, m_canvas);
        }
    }
    labelOverflow(form, "qt_toolbar_ext_button", "More tools");
    labelOverflow(form, "qt_menubar_ext_button", "More menus");
    new DoubleClicks(m_canvas);
    m_canvas.report = [this](const Event& event) { this->report(event); };
    m_canvas.setFocus();
    form.setAttribute(Qt::WA_Hover, false); // Qt wants each move of the mouse for dock windows, of which there are none
}

void QtMainWindow::showWindow()
{
    if (form().isHidden()) {
        resizeOnScreen(form(), form().size().expandedTo(form().findChild<QMenuBar*>()->sizeHint()));
    }
    QtWindow::showWindow();
}

void QtMainWindow::printForm()
{
    std::vector<QWidget*> hidden;
    for (const auto& [name, object] : named()) {
        auto* const blinking = qobject_cast<BlinkingPicture*>(object);
        if (blinking != nullptr && blinking->isOn()) {
            blinking->setVisible(false);
            hidden.push_back(blinking);
        }
    }
    const QImage picture = m_canvas.parentWidget()->grab(m_canvas.geometry()).toImage();
    for (QWidget* const blinking : hidden) {
        blinking->setVisible(true);
    }
    print(picture);
}

void QtMainWindow::setVisible(Name control, bool visible)
{
    if (!visible) {
        takeFocusFrom(control);
    }
    QtWindow::setVisible(control, visible);
}

void QtMainWindow::setEnabled(Name control, bool enabled)
{
    if (!enabled) {
        takeFocusFrom(control);
    }
    QtWindow::setEnabled(control, enabled);
}

/// Qt would pass the focus on to the next controls, as Tab does, and a screen reader would read out each of them.
void QtMainWindow::takeFocusFrom(Name control) const
{
    const auto* const widget = findIf<QWidget>(control);
    const QWidget* const focused = form().focusWidget();
    if (widget != nullptr && focused != nullptr && (focused == widget || widget->isAncestorOf(focused))) {
        m_canvas.setFocus();
    }
}

void QtMainWindow::endProgram()
{
    QCoreApplication::exit();
}

void QtMainWindow::addMenuItem(int depth, const MenuItem& item)
{
    QAction& action = m_menus.add(depth, item);
    if (!item.name.empty()) {
        addNamed(item.name, action);
    }
}

void QtMainWindow::addShortcut(const Shortcut& shortcut)
{
    auto* const action = new QAction(this);
    action->setShortcuts(QKeySequence::listFromString(toQString(shortcut.keys), QKeySequence::PortableText));
    action->setAutoRepeat(shortcut.repeats);
    connect(action, &QAction::triggered, this, [this, shortcut] {
        if (shortcut.repeats || !m_repeats.isRepeating()) { // Qt lets some repeats through
            report({.kind = Event::Kind::click, .name = shortcut.name.text()});
        }
    });
    form().addAction(action);
    for (auto* const text : form().findChildren<QLineEdit*>()) {
        new OwnKeys(*text, action->shortcuts());
    }
}

void QtMainWindow::popUp(Name menu, Point place)
{
    const QRect canvas = m_canvas.rect();
    const QPoint inside(std::clamp(toPixels(place.x), canvas.left(), canvas.right()),
                        std::clamp(toPixels(place.y), canvas.top(), canvas.bottom()));
    find<QAction>(menu).menu()->popup(m_canvas.mapToGlobal(inside));
}

void QtMainWindow::addToolButton(Name key, std::string_view tip, Look look)
{
    auto& bar = *form().findChild<QToolBar*>();
    if (key.empty()) {
        bar.widgetForAction(bar.addSeparator())->setProperty("isDecoration", true);
        return;
    }
    QAction* const button = bar.addAction(toolPicture(key), toQString(key));
    addNamed(key, *button);
    button->setToolTip(toQString(tip));
    button->setCheckable(look != Look::plain);
    connect(button, &QAction::triggered, this, [this, key, button](bool checked) {
        button->setChecked(!checked); // undoes Qt's flip, because only the core checks a button
        report({.kind = Event::Kind::click, .name = key.text()});
    });
    connect(button, &QAction::hovered, this, [this, key] { report({.kind = Event::Kind::hover, .name = key.text()}); });
}

void QtMainWindow::setSwatch(Name key, Color color)
{
    auto& button = find<QAction>(key);
    if (button.data() != color) {
        button.setData(color);
        button.setIcon(swatchIcon(toolPicture(key), toQColor(color)));
    }
}

void QtMainWindow::setChecked(Name item, bool checked)
{
    find<QAction>(item).setChecked(checked);
}

bool QtMainWindow::checked(Name item) const
{
    return find<QAction>(item).isChecked();
}

void QtMainWindow::setCursor(const Cursor& cursor)
{
    if (cursor.picture != m_cursor) {
        m_cursor = cursor.picture;
        const QIcon picture(":/pictures/cursors/" + toQString(cursor.picture) + ".svg");
        m_canvas.setCursor(QCursor(picture.pixmap(cursorSize, form().devicePixelRatioF()), cursor.hotX, cursor.hotY));
    }
}

bool QtMainWindow::isOnCanvas(Point place) const
{
    return place.x >= 0 && place.y >= 0 && place.x < m_canvas.width() * twipsPerPixel &&
           place.y < m_canvas.height() * twipsPerPixel;
}

void QtMainWindow::setLeft(Name control, double twips)
{
    auto& widget = find<QWidget>(control);
    widget.move(toPixels(twips), widget.y());
}

void QtMainWindow::setTop(Name control, double twips)
{
    auto& widget = find<QWidget>(control);
    widget.move(widget.x(), toPixels(twips));
}

void QtMainWindow::placeAwayFrom(Name control, Point from, Name other)
{
    auto& widget = find<QWidget>(control);
    if (widget.isHidden()) {
        return;
    }
    QRegion covered; // by the other windows
    for (const auto* const dialog : form().findChildren<QDialog*>(Qt::FindDirectChildrenOnly)) {
        if (dialog->isVisible()) {
            covered += dialog->frameGeometry().translated(-m_canvas.mapToGlobal(QPoint()));
        }
    }
    const QPoint place(toPixels(from.x), toPixels(from.y));
    const auto& neighbour = find<QWidget>(other);
    const QRect taken = neighbour.isHidden() ? QRect() : neighbour.geometry();
    const QSize size = widget.sizeHint();
    const auto badness = [&](Qt::Alignment corner) {
        const QRect there = QStyle::alignedRect(Qt::LeftToRight, corner, size, m_canvas.rect());
        const QPoint away = there.center() - place;
        return std::tuple(there.contains(place), there.intersects(taken), covered.intersects(there),
                          -QPoint::dotProduct(away, away));
    };
    const Qt::Alignment best = *std::ranges::min_element(corners, {}, badness);
    QLayout& layout = *widget.parentWidget()->layout();
    if (layout.itemAt(layout.indexOf(&widget))->alignment() != best) {
        layout.setAlignment(&widget, best);
    }
}

} // namespace schemlet
