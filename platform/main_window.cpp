#include "platform/main_window.h"

namespace schemlet {

void MainWindow::flipChecked(Name item)
{
    setChecked(item, !checked(item));
}

} // namespace schemlet
