// One function a control class: makes the widget that stands for the control.
#pragma once

#include "host/controls/buttons.h"
#include "host/controls/edits.h"
#include "host/controls/grid.h"
#include "host/controls/tree_view.h"

class QLineEdit;
class QWidget;

namespace desktop {

class FormView;

// Each makes a widget with the view as its parent, in step with the control from then on.
QWidget* draw_edit(host::TEdit& edit, FormView& view);
QWidget* draw_memo(host::TMemo& memo, FormView& view);
QWidget* draw_number_edit(host::TNumberEdit& edit, FormView& view);
QWidget* draw_date_edit(host::TDateEdit& edit, FormView& view);
QWidget* draw_link_edit(host::TLinkEdit& edit, FormView& view);
QWidget* draw_combo_box(host::TComboBox& box, FormView& view);
QWidget* draw_check_box(host::TCheckBox& box, FormView& view);
QWidget* draw_radio_button(host::TRadioButton& button, FormView& view);
QWidget* draw_button(host::TButton& button, FormView& view);
QWidget* draw_speed_button(host::TSpeedButton& button, FormView& view);
QWidget* draw_label(host::TLabel& label, FormView& view);
QWidget* draw_panel(host::TPanel& panel, FormView& view);
QWidget* draw_progress_bar(host::TProgressBar& bar, FormView& view);
QWidget* draw_grid(host::TDBGridEh& grid, FormView& view);
QWidget* draw_tree(host::TTreeView& tree, FormView& view);

// The widget for any control; a plain label for a class that has no renderer of its own.
QWidget* draw_control(host::TControl& control, FormView& view);

} // namespace desktop
