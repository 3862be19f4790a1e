#include "canvas/notice.h"

namespace schemlet {

void notify(Form1& form, std::string_view text)
{
    constexpr int duration = 5000; // milliseconds
    form.notice = text;
    form.window.setInterval(control::noticeTimer, duration);
}

void forgetNotice(Form1& form)
{
    form.notice.clear();
    form.window.setInterval(control::noticeTimer, 0);
}

void showError(Form1& form, const RuntimeError& error)
{
    form.dialogs.messageBox(error.what(), Box::okWarning, productName);
}

} // namespace schemlet
