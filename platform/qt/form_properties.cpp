#include "platform/qt/form_properties.h"

#include <QVariant>
#include <QWidget>

namespace schemlet {

void applyFormProperties(QWidget& control)
{
    // The text in the form is the widest that the label may show. With a fixed size, a new text repaints the label and
    // changes no layout.
    if (control.property("fixedToText").toBool()) {
        control.ensurePolished();
        control.setFixedSize(control.sizeHint());
    }
    // A longer text makes the control larger.
    if (control.property("atLeastItsText").toBool()) {
        control.ensurePolished();
        control.setMinimumSize(control.sizeHint());
    }
    // The canvas below gets the mouse events.
    if (control.property("mouseGoesThrough").toBool()) {
        control.setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    // The controls around it do not move when it is shown or hidden.
    if (control.property("keepsItsPlace").toBool()) {
        QSizePolicy policy = control.sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        control.setSizePolicy(policy);
    }
}

} // namespace schemlet
