// The menu bar of the frame.
#pragma once

class QMenuBar;

namespace desktop {

class MainWindow;

// One menu an area of work besides those for files, windows and help. Their keys are the frame's
// own (Ctrl+G, Ctrl+W, Ctrl+Tab); the keys of forms stay with the forms.
QMenuBar* build_menus(MainWindow& window);

} // namespace desktop
