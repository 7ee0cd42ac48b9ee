// A grid as a whole: the table, its footer, the scroll bar below both.
#include <QScrollBar>
#include <QVBoxLayout>

#include "desktop/grid/cell_text.h"
#include "desktop/grid/grid_footer.h"
#include "desktop/grid/grid_view.h"
#include "desktop/renderers/form_view.h"
#include "desktop/renderers/layout_builder.h"
#include "desktop/renderers/renderers.h"
#include "desktop/theme/tokens.h"
#include "host/forms/form.h"

namespace desktop {
namespace {

class GridFrame : public QFrame {
public:
    GridFrame(host::TDBGridEh& grid, FormView& form)
        : QFrame(&form), view_(new GridView(grid, form, this)),
          footer_(new GridFooter(*view_, this)), across_(new QScrollBar(Qt::Horizontal, this)) {
        // Only a list fills its window to the edges; elsewhere the grid has a border.
        const bool bordered = form.form() && kind_of(form.form()->layout) != FormKind::List;
        setFrameShape(bordered ? QFrame::Box : QFrame::NoFrame);
        QPalette border = palette();
        border.setColor(QPalette::WindowText, token::rule_3);
        setPalette(border);
        setFocusProxy(view_);
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(bordered ? QMargins(1, 1, 1, 1) : QMargins());
        column->setSpacing(0);
        if (!bordered) column->addWidget(top_rule());
        column->addWidget(view_, 1);
        column->addWidget(footer_);
        column->addWidget(across_);
        QScrollBar* inner = view_->horizontalScrollBar();
        QObject::connect(inner, &QScrollBar::rangeChanged, this, [this](int low, int high) {
            across_->setRange(low, high);
            across_->setPageStep(view_->horizontalScrollBar()->pageStep());
            across_->setVisible(high > 0);
        });
        QObject::connect(inner, &QScrollBar::valueChanged, across_, &QScrollBar::setValue);
        QObject::connect(across_, &QScrollBar::valueChanged, inner, &QScrollBar::setValue);
        across_->hide();
        view_->on_geometry = [this] { footer_->refresh(); };
        footer_->refresh();
        form.listen(grid, [this, &grid] {
            setVisible(grid.Visible);
            footer_->refresh();
        });
        form.at_release([this] { footer_->hide(); });
        setMinimumHeight(120);
    }

private:
    QWidget* top_rule() {
        auto* rule = new QFrame(this);
        rule->setFixedHeight(1);
        rule->setAutoFillBackground(true);
        QPalette ink = rule->palette();
        ink.setColor(QPalette::Window, token::rule_2);
        rule->setPalette(ink);
        return rule;
    }
    GridView* view_;
    GridFooter* footer_;
    QScrollBar* across_;
};

} // namespace

QWidget* draw_grid(host::TDBGridEh& grid, FormView& view) { return new GridFrame(grid, view); }

} // namespace desktop
