// The help the frame gives itself: its keys, and what it is.
#pragma once

class QWidget;

namespace desktop {

void show_keys(QWidget* over);
void show_about(QWidget* over);

} // namespace desktop
