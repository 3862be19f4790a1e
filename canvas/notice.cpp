#include "canvas/notice.h"

void notify(Form1& form, std::string_view text)
{
    constexpr int duration = 5000; // milliseconds
    form.notice = text;
    form.controls.setInterval(control::noticeTimer, duration);
}
