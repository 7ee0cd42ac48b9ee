// How far a long step has come.
#include <QProgressBar>

#include "desktop/renderers/form_view.h"
#include "desktop/renderers/renderers.h"

namespace desktop {

QWidget* draw_progress_bar(host::TProgressBar& bar, FormView& view) {
    auto* widget = new QProgressBar(&view);
    widget->setTextVisible(false);
    widget->setRange(0, 1000);
    view.listen(bar, [widget, &bar] {
        const std::int64_t all = bar.Max.get() > 0 ? bar.Max.get() : 1;
        widget->setValue(static_cast<int>(bar.Position.get() * 1000 / all));
        widget->setVisible(bar.Visible);
    });
    return widget;
}

} // namespace desktop
