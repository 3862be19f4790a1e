#include "platform/qt/wishes.h"

#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>

CloseWish::CloseWish(QWidget& window, std::function<void()> wished) : QObject(&window), m_wished(std::move(wished))
{
    window.installEventFilter(this);
}

bool CloseWish::eventFilter(QObject* watched, QEvent* event)
{
    const bool escape = event->type() == QEvent::KeyPress && qobject_cast<const QDialog*>(watched) != nullptr &&
                        dynamic_cast<const QKeyEvent&>(*event).matches(QKeySequence::Cancel);
    if (!escape && event->type() != QEvent::Close) {
        return QObject::eventFilter(watched, event);
    }
    event->ignore();
    m_wished();
    return true;
}

LabelClick::LabelClick(QLabel& label, std::function<void()> clicked)
    : QObject(&label), m_label(label), m_clicked(std::move(clicked))
{
    label.installEventFilter(this);
}

bool LabelClick::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto& release = dynamic_cast<const QMouseEvent&>(*event);
        if (release.button() == Qt::LeftButton && m_label.rect().contains(release.position().toPoint())) {
            m_clicked();
        }
    }
    return QObject::eventFilter(watched, event);
}
