#include "shell/colors.h"

#include "canvas/notice.h"
#include "circuit/supply_panel.h"
#include "shell/toolbox.h"

namespace schemlet {

void forec(Form1& form)
{
    pickColor<colored::wires>(form);
}

void bc(Form1& form)
{
    pickColor<colored::canvas>(form);
    if (form.canvasBackColor != black) {
        form.surface.setBackColor(form.canvasBackColor);
        form.paperColor = form.canvasBackColor;
        colorToolbox(form, form.canvasBackColor);
    } else {
        notify(form, "Black reaches the panel and the eraser only");
    }
    colorPanel(form);
}

void batterycolor(Form1& form)
{
    notify(form, "No effect: batteries are always black");
}

void Thyristorscolor(Form1& form)
{
    notify(form, "No effect: thyristors take the last color");
}

} // namespace schemlet
