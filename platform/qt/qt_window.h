#pragma once

#include "platform/event.h"
#include "platform/window.h"

#include <QObject>
#include <functional>
#include <map>
#include <string>

class QImage;
class QWidget;

namespace schemlet {

class CloseRequest;

/// A window made from a form. Its controls are found by their object names.
class QtWindow : public QObject, public virtual Window {
    Q_OBJECT

public:
    /// The form must be complete. Calls report with every event of the window.
    QtWindow(QWidget& form, std::function<void(const Event&)> report);

    void setCaption(std::string_view title) override;
    void showWindow() override;
    void showWithoutKeyboard() override;
    void hideWindow() override;
    void unload() override;
    void setHeight(int twips) override;
    [[nodiscard]] int height() const override { return m_height; }
    void printForm() override;
    void setVisible(Name control, bool visible) override;
    [[nodiscard]] bool visible(Name control) const override;
    void setEnabled(Name control, bool enabled) override;
    [[nodiscard]] bool enabled(Name control) const override;
    void focus(Name control) override;
    void setText(Name control, std::string_view text) override;
    [[nodiscard]] std::string text(Name control) const override;
    void setDescription(Name control, std::string_view text) override;
    void setTip(Name control, std::string_view text) override;
    void setValue(Name control, int value) override;
    [[nodiscard]] int value(Name control) const override;
    void setBackColor(Name control, Color color) override;
    void drawPicture(Name control, void (*draw)(Surface&)) override;
    void setInterval(Name timer, int milliseconds) override;

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    [[nodiscard]] static int toPixels(double twips);
    [[nodiscard]] QWidget& form() const { return m_form; }
    /// The controls, menu items, tool buttons and timers, by their names.
    [[nodiscard]] const std::map<std::string, QObject*, std::less<>>& named() const { return m_named; }
    void addNamed(Name name, QObject& object);
    void report(const Event& event) const;
    void print(const QImage& picture) const;
    /// The object with this name if it is of this type, otherwise null.
    template <typename Kind> [[nodiscard]] Kind* findIf(std::string_view name) const
    {
        const auto found = m_named.find(name);
        return found == m_named.end() ? nullptr : qobject_cast<Kind*>(found->second);
    }
    template <typename Kind> [[nodiscard]] Kind& find(std::string_view name) const
    {
        auto* const object = findIf<Kind>(name);
        if (object == nullptr) {
            qFatal("No such control: %.*s", static_cast<int>(name.size()), name.data());
        }
        return *object;
    }
    template <typename Kind> [[nodiscard]] Kind* findIf(Name name) const { return findIf<Kind>(name.text()); }
    template <typename Kind> [[nodiscard]] Kind& find(Name name) const { return find<Kind>(name.text()); }

private:
    void connectControls();
    void connectControl(std::string_view name, QObject& control);
    void reportClick(std::string_view name) const { report({.kind = Event::Kind::click, .name = name}); }
    void reportHover(const QWidget& widget) const;

    QWidget& m_form;
    std::string m_name;
    int m_height = 0;
    CloseRequest* m_closeRequest; ///< keeps the window open until unload()
    std::function<void(const Event&)> m_report;
    std::map<std::string, QObject*, std::less<>> m_named;
};

} // namespace schemlet
