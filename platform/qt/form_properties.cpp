#include "platform/qt/form_properties.h"

#include <QVariant>
#include <QWidget>

namespace schemlet {

void applyFormProperties(QWidget& control)
{
    // A label keeps the size of the widest text it may show, which is its text in the form: a new text then repaints
    // the label and lays out nothing.
    if (control.property("fixedToText").toBool()) {
        control.ensurePolished();
        control.setFixedSize(control.sizeHint());
    }
    // The same where a text may ask for more.
    if (control.property("atLeastItsText").toBool()) {
        control.ensurePolished();
        control.setMinimumSize(control.sizeHint());
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

} // namespace schemlet
