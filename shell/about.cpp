#include "shell/about.h"

#include "shell/product_picture.h"

namespace schemlet {

void about(Form1& form)
{
    form.form3.drawPicture(form3::control::Picture1, drawProductPicture);
    form.form3.showWindow();
}

void form3::Command1(Form1& form)
{
    form.form3.hideWindow();
}

} // namespace schemlet
