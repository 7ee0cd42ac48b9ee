// Pictures of the frame with whatever stands over it, and keys pressed for them.
#pragma once

#include <QImage>

#include <functional>
#include <string>
#include <vector>

class QWidget;

namespace desktop {

// The window and the dialogs over it in one picture.
QImage snapshot(QWidget& window);
// Presses the keys one by one from the event loop, each after the one before was settled; then
// runs `then`.
void press_keys_then(const std::vector<std::string>& keys, const std::function<void()>& then);

} // namespace desktop
