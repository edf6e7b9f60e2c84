// The menus of the demo planetarium's window, built from tables.
#pragma once

namespace vyn {

class MainWindow;

void BuildMenus(MainWindow& window);

}  // namespace vyn
