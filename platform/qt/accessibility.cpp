#include "platform/qt/accessibility.h"

#include <QAccessibleWidget>
#include <QWidget>
#include <algorithm>
#include <iterator>

namespace schemlet {

namespace {

/// A widget without its decorative children.
class Undecorated final : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    [[nodiscard]] int childCount() const override { return static_cast<int>(children().size()); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override { return children().value(index); }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override
    {
        return static_cast<int>(children().indexOf(child));
    }

private:
    [[nodiscard]] QList<QAccessibleInterface*> children() const
    {
        QList<QAccessibleInterface*> list;
        for (int i = 0; i < QAccessibleWidget::childCount(); ++i) {
            QAccessibleInterface* const child = QAccessibleWidget::child(i);
            if (!child->object()->property("isDecoration").toBool()) {
                list.push_back(child);
            }
        }
        return list;
    }
};

struct ClassRole {
    QLatin1String name;
    QAccessible::Role role{};
};

/// The classes that may contain decorations, or whose default role is wrong: screen readers would call a frame a
/// window. Qt asks for a class before its base classes.
constexpr ClassRole classes[] = {
    {QLatin1String("schemlet::CanvasWidget"), QAccessible::Canvas},
    {QLatin1String("QDialog"), QAccessible::Dialog},
    {QLatin1String("QFrame"), QAccessible::Grouping},
    {QLatin1String("QToolBar"), QAccessible::ToolBar},
    {QLatin1String("QWidget"), QAccessible::Client},
};

QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    const auto* const found = std::ranges::find(classes, className, &ClassRole::name);
    auto* const widget = qobject_cast<QWidget*>(object);
    if (found == std::end(classes) || widget == nullptr) {
        return nullptr;
    }
    return new Undecorated(widget, widget->property("isStatusBar").toBool() ? QAccessible::StatusBar : found->role);
}

} // namespace

void installAccessibility()
{
    QAccessible::installFactory(makeInterface);
}

} // namespace schemlet
