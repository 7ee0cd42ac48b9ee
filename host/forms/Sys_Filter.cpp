// The condition dialog of a list: dates, remembered values, OK.
#include "host/forms/Sys_Filter.h"

#include "host/dataset/client_dataset.h"
#include "host/forms/parts/date_ranges.h"
#include "host/ports/host.h"
#include "host/values/errors.h"
#include "host/values/sql_text.h"

namespace host {

namespace {

bool is_mark(const TWinControl& control) {
    return dynamic_cast<const TCheckBox*>(&control) != nullptr ||
           dynamic_cast<const TRadioButton*>(&control) != nullptr;
}

void take(TWinControl& control, const std::string& value) {
    if (auto* box = dynamic_cast<TCheckBox*>(&control)) box->Checked = value == "true";
    if (auto* radio = dynamic_cast<TRadioButton*>(&control)) radio->Checked = value == "true";
    if (auto* edit = dynamic_cast<TEdit*>(&control)) edit->Text = value;
    if (auto* combo = dynamic_cast<TComboBox*>(&control)) combo->Text = value;
}

} // namespace

TFrm_Sys_Filter::TFrm_Sys_Filter(TForm* parent) : TFrm_Base_Condition(parent) {
    Caption = "查询条件";
    // An OK that was not refused closes, whether or not the form says so itself.
    btn_ok.OnClick = [this] {
        try {
            btn_okClick();
            ModalResult = mrOk;
        } catch (...) {
            ModalResult = mrNone;
            throw;
        }
    };
}

void TFrm_Sys_Filter::InitForm() {}

void TFrm_Sys_Filter::InitFocu() {
    const auto order = TabOrder();
    if (!order.empty()) SetFocusTo(*order.front());
}

void TFrm_Sys_Filter::FormShow() {
    TFrm_Base_Condition::FormShow();
    InitFocu();
}

bool TFrm_Sys_Filter::Preset() {
    try {
        FormActivate();
        btn_okClick();
        ModalResult = mrNone;
        return true;
    } catch (const EAbort&) {
        ModalResult = mrNone;
        return false;
    }
}

void TFrm_Sys_Filter::ReadPeriods() {
    TClientDataSet periods;
    opensql(periods, FunctionCode,
            "SELECT param,(SELECT param  FROM d6600 where id=1) as fqj  FROM d6600 where id=2");
    CurrentPeriod = periods.IsEmpty() ? "" : periods.FieldByName("param").AsText();
    FirstPeriod = periods.IsEmpty() ? "" : periods.FieldByName("fqj").AsText().substr(0, 7);
}

void TFrm_Sys_Filter::btn_okClick() {
    if (!CheckAll()) Abort();
    SaveRemembered();
    ModalResult = mrOk;
}

std::string TFrm_Sys_Filter::DateCondition(const std::string& table, Date start, Date end) {
    return "(" + table + ".BDATE>=" + quoted(start.to_text()) + ") AND (" + table + ".BDATE<" +
           quoted(end.plus_days(1).to_text()) + ")";
}

void TFrm_Sys_Filter::CheckDates(TDateEdit& start, TDateEdit& end) {
    if (!start.date()) CheckDate(start, start.label());
    if (!end.date()) CheckDate(end, "结束日期");
    if (start.value() <= end.value()) return;
    DISPINFO("开始日期不能大于结束日期!", 5);
    SetFocusTo(start);
    start.SelectAll();
    Abort();
}

void TFrm_Sys_Filter::BindDayCount(TDateEdit& start, TDateEdit& end, TLabel& days) {
    const auto show = [&start, &end, &days] {
        const bool both = start.date() && end.date();
        days.Caption =
            both ? "(" + std::to_string(end.value() - start.value() + 1) + "天)" : "";
    };
    start.OnChange = show;
    end.OnChange = show;
}

void TFrm_Sys_Filter::BindDateMenu(TButton& button, TDateEdit& start, TDateEdit& end) {
    date_menu_ = std::make_unique<TPopupMenu>(this, "date_menu");
    for (const DateRangeChoice& choice : date_range_choices()) {
        auto item = std::make_unique<TMenuItem>(this, choice.name, choice.caption);
        item->OnExecute = [&start, &end, &choice] {
            const DateRange range = choice.of(the_host().clock->today());
            start.set(range.first);
            end.set(range.last);
        };
        date_menu_->Items.push_back(item.get());
        date_items_.push_back(std::move(item));
    }
    button.OnClick = [this, &button] { the_host().ui->popup(*date_menu_, button); };
}

std::string TFrm_Sys_Filter::setting_of(const TWinControl& control) const {
    return FormName() + "." + control.Name() + (is_mark(control) ? ".Checked" : ".Value");
}

void TFrm_Sys_Filter::Remember(TWinControl& control) {
    remembered_.push_back(&control);
    if (the_host().settings == nullptr) return;
    const std::string kept = the_host().settings->read(G_CoName, setting_of(control), "");
    if (!kept.empty()) take(control, kept);
}

void TFrm_Sys_Filter::SaveRemembered() {
    SettingsStore* settings = the_host().settings;
    if (settings == nullptr) return;
    for (const TWinControl* control : remembered_) {
        const std::string value = control->value_text();
        if (settings->read(G_CoName, setting_of(*control), "") != value)
            settings->write(G_CoName, setting_of(*control), value);
    }
}

} // namespace host
