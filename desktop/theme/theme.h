// Dresses the application: style, palette, type, one style sheet, Chinese texts of Qt itself.
#pragma once

class QApplication;

namespace desktop {

// Once, before the first widget is made.
void apply_theme(QApplication& application);

} // namespace desktop
