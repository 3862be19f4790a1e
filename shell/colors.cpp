#include "shell/colors.h"

#include "circuit/supply_panel.h"

void forec(Form1& form)
{
    pickColor<colored::wires>(form);
}

void bc(Form1& form)
{
    pickColor<colored::canvas>(form);
    if (form.canvasBackColor != black) {
        form.surface.setBackColor(form.canvasBackColor);
        form.controls.setBackColor(control::Frame2, form.canvasBackColor);
    }
    colorPanel(form);
}
