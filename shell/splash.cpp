#include "shell/splash.h"

#include "shell/main_window.h"
#include "shell/product_picture.h"

namespace schemlet {

void form6::load(Window& splash)
{
    splash.drawPicture(control::Picture1, drawProductPicture);
    splash.showWindow();
    splash.setInterval(control::Timer1, 1000);
}

void form6::Timer1(Form1& form)
{
    form.form6.setInterval(control::Timer2, 50);
    form.form6.setInterval(control::Timer1, 0);
}

void form6::Timer2(Form1& form)
{
    constexpr int full = 100;
    constexpr int step = 5;
    if (form.form6.value(control::ProgressBar1) >= full) {
        return finish(form);
    }
    form.splashProgress += step;
    form.form6.setValue(control::ProgressBar1, form.splashProgress);
}

void form6::finish(Form1& form)
{
    openMainWindow(form);
    form.form6.unload();
}

} // namespace schemlet
