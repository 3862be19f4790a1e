#include "platform/main_window.h"

void MainWindow::flipChecked(Name item)
{
    setChecked(item, !checked(item));
}
