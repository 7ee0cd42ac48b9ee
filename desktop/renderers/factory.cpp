// Which renderer draws which class of control: one line a class, the special before the general.
#include "desktop/renderers/form_view.h"
#include "desktop/renderers/renderers.h"

#include <QLabel>

#include "desktop/theme/text.h"

namespace desktop {
namespace {

using Draw = QWidget* (*)(host::TControl&, FormView&);

template <class Class, QWidget* (*draw)(Class&, FormView&)>
QWidget* if_it_is(host::TControl& control, FormView& view) {
    auto* it = dynamic_cast<Class*>(&control);
    return it ? draw(*it, view) : nullptr;
}

constexpr Draw renderers[] = {
    if_it_is<host::TDBGridEh, draw_grid>,
    if_it_is<host::TLinkEdit, draw_link_edit>,
    if_it_is<host::TDateEdit, draw_date_edit>,
    if_it_is<host::TNumberEdit, draw_number_edit>,
    if_it_is<host::TMemo, draw_memo>,
    if_it_is<host::TEdit, draw_edit>,
    if_it_is<host::TComboBox, draw_combo_box>,
    if_it_is<host::TCheckBox, draw_check_box>,
    if_it_is<host::TRadioButton, draw_radio_button>,
    if_it_is<host::TButton, draw_button>,
    if_it_is<host::TSpeedButton, draw_speed_button>,
    if_it_is<host::TTreeView, draw_tree>,
    if_it_is<host::TProgressBar, draw_progress_bar>,
    if_it_is<host::TPanel, draw_panel>,
    if_it_is<host::TLabel, draw_label>,
};

} // namespace

QWidget* draw_control(host::TControl& control, FormView& view) {
    for (Draw draw : renderers)
        if (QWidget* widget = draw(control, view)) {
            widget->setObjectName(qt(control.Name()));
            return widget;
        }
    return new QLabel(qt(control.Caption.get()), &view);
}

} // namespace desktop
