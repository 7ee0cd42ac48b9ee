// The forms that stand open, which of them is active, and the names requests call them by.
#include "automation/drive/open_forms.h"

#include <algorithm>
#include <charconv>

#include "host/forms/form.h"
#include "host/values/text.h"

namespace automation {

namespace {

bool same_class(const host::TForm& a, const host::TForm& b) {
    return std::string_view(a.ClassName()) == b.ClassName();
}

} // namespace

std::vector<OpenForms::Shown>::const_iterator OpenForms::where(const host::TForm& form) const {
    return std::find_if(shown_.begin(), shown_.end(),
                        [&](const Shown& shown) { return shown.form == &form; });
}

void OpenForms::add(host::TForm& form, bool modal) {
    if (where(form) != shown_.end()) {
        activate(form);
        shown_.back().modal = modal;
        return;
    }
    int number = 1;
    const auto taken = [&](int candidate) {
        return std::any_of(shown_.begin(), shown_.end(), [&](const Shown& shown) {
            return same_class(*shown.form, form) && shown.number == candidate;
        });
    };
    while (taken(number)) ++number;
    shown_.push_back({&form, number, modal});
}

void OpenForms::remove(host::TForm& form) {
    const auto at = where(form);
    if (at != shown_.end()) shown_.erase(at);
}

void OpenForms::activate(host::TForm& form) {
    const auto at = where(form);
    if (at == shown_.end()) return;
    const Shown shown = *at;
    shown_.erase(at);
    shown_.push_back(shown);
}

host::TForm* OpenForms::modal() const {
    const auto at = std::find_if(shown_.rbegin(), shown_.rend(),
                                 [](const Shown& shown) { return shown.modal; });
    return at == shown_.rend() ? nullptr : at->form;
}

host::TForm* OpenForms::active() const {
    if (host::TForm* form = modal()) return form;
    return shown_.empty() ? nullptr : shown_.back().form;
}

bool OpenForms::is_open(const host::TForm& form) const {
    return where(form) != shown_.end();
}

bool OpenForms::is_modal(const host::TForm& form) const {
    const auto at = where(form);
    return at != shown_.end() && at->modal;
}

std::string OpenForms::name_of(const host::TForm& form) const {
    const auto at = where(form);
    const auto of_class = std::count_if(shown_.begin(), shown_.end(), [&](const Shown& shown) {
        return same_class(*shown.form, form);
    });
    std::string name = form.ClassName();
    if (of_class > 1 && at != shown_.end()) name += "#" + std::to_string(at->number);
    return name;
}

host::TForm* OpenForms::find(const std::string& name) const {
    const std::size_t hash = name.find('#');
    const std::string_view plain = std::string_view(name).substr(0, hash);
    int number = 0;
    if (hash != std::string::npos) {
        const char* end = name.data() + name.size();
        const auto [stop, error] = std::from_chars(name.data() + hash + 1, end, number);
        if (error != std::errc{} || stop != end) return nullptr;
    }
    const auto meant = [&](const host::TForm& form) {
        return host::same_text(plain, form.ClassName()) || host::same_text(plain, form.FormName());
    };
    host::TForm* front = active();
    if (number == 0 && front != nullptr && meant(*front)) return front;
    for (auto at = shown_.rbegin(); at != shown_.rend(); ++at) {
        if (meant(*at->form) && (number == 0 || at->number == number)) return at->form;
    }
    return nullptr;
}

std::vector<host::TForm*> OpenForms::in_order() const {
    std::vector<host::TForm*> forms;
    if (host::TForm* front = active()) forms.push_back(front);
    for (auto at = shown_.rbegin(); at != shown_.rend(); ++at) {
        if (forms.empty() || at->form != forms.front()) forms.push_back(at->form);
    }
    return forms;
}

std::string OpenForms::listed() const {
    std::string names;
    for (const host::TForm* form : in_order())
        names += (names.empty() ? "" : ", ") + name_of(*form);
    return names.empty() ? "none" : names;
}

} // namespace automation
