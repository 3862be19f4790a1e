#pragma once

#include "platform/dialogs.h"

class QWidget;

/// Boxes in front of one window.
class QtDialogs final : public Dialogs {
public:
    explicit QtDialogs(QWidget& owner) : m_owner(owner) {}

    int messageBox(std::string_view prompt, Box style, std::string_view title) override;

private:
    QWidget& m_owner;
};
