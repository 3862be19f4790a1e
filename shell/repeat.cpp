#include "shell/repeat.h"

#include "canvas/notice.h"
#include "circuit/supply_panel.h"

namespace schemlet {

void repeat(Form1& form)
{
    form.savedMark = 0;
    if (form.lastComponent == nullptr) {
        return notify(form, "Nothing to repeat yet");
    }
    form.lastComponent(form);
    if (form.lastComponent == suppl || form.lastComponent == batter) {
        chooseAgain(form);
    }
}

} // namespace schemlet
