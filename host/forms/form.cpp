// The life of a form: created, shown, asked, closed.
#include "host/forms/form.h"

#include <algorithm>
#include <map>

#include "host/contract/U_function.h"
#include "host/forms/release_queue.h"
#include "host/ports/host.h"

namespace host {

namespace {

int next_instance(const std::string& class_name) {
    static std::map<std::string, int> counts;
    return ++counts[class_name];
}

// The nearest form in the frame from which `form` was opened, directly or over others; null for one
// that a menu pick opened.
TForm* opener_in_frame(const TForm& form) {
    for (TForm* up = form.Parent(); up != nullptr; up = up->Parent())
        if (up->Shown()) return up;
    return nullptr;
}

} // namespace

TForm::TForm(TForm* parent) : TControl(nullptr, ""), parent_(parent) {
    if (parent_ != nullptr) parent_->children_.push_back(this);
}

TForm::~TForm() {
    while (!children_.empty()) delete children_.back(); // each takes itself off the list
    if (shown_) disappear();
    cancel_release(this);
    if (parent_ != nullptr) std::erase(parent_->children_, this);
}

void TForm::forget_component(TComponent* component) {
    std::erase(components_, component);
    if (active_ == component) active_ = nullptr;
    if (target_ == component) target_ = nullptr;
}

bool TForm::Dirty() const { return has_unsaved_work(); }

void TForm::SetTabTitle(std::string title) {
    if (title == tab_title_) return;
    tab_title_ = std::move(title);
    changed();
}

void TForm::appear() {
    Host& host = the_host();
    if (instance_ == 0) instance_ = next_instance(ClassName());
    closed_ = false;
    if (!shown_) host.forms.push_back(this);
    shown_ = true;
    if (modal_) host.modal.push_back(this);
    FormShow();
    if (OnShow) OnShow();
    Activate();
    const std::vector<TWinControl*> order = TabOrder();
    if (!order.empty() && std::find(order.begin(), order.end(), active_) == order.end())
        SetFocusTo(*order.front());
}

void TForm::disappear() {
    Host& host = the_host();
    shown_ = false;
    std::erase(host.forms, this);
    std::erase(host.modal, this);
    if (host.ui != nullptr) host.ui->forget(*this);
    if (host.active != this) return;
    // What stood behind comes to the front: a modal form before any other, then the form this one
    // was opened from.
    host.active = nullptr;
    if (!host.modal.empty())
        host.active = host.modal.back();
    else if (TForm* opener = opener_in_frame(*this))
        host.active = opener;
    else if (!host.forms.empty())
        host.active = host.forms.back();
}

void TForm::Activate() {
    Host& host = the_host();
    if (host.active == this) return;
    host.active = this;
    FormActivate();
    if (OnActivate) OnActivate();
}

void TForm::Show() {
    modal_ = false;
    cancel_release(this);
    appear();
    the_host().ui->show(*this);
}

int TForm::ShowModal() {
    TForm* const before = the_host().active;
    modal_ = true;
    ModalResult = 0;
    try {
        appear();
        if (ModalResult == 0 && !closed_) the_host().ui->show_modal(*this);
    } catch (...) {
        modal_ = false;
        if (shown_) disappear();
        throw;
    }
    const int result = ModalResult == 0 ? 2 : ModalResult.get();
    FormClose();
    if (OnClose) OnClose();
    modal_ = false;
    closed_ = true;
    if (shown_) disappear();
    const auto& forms = the_host().forms;
    if (before != nullptr && std::find(forms.begin(), forms.end(), before) != forms.end())
        the_host().active = before;
    return result;
}

void TForm::Close() {
    if (closed_ || !shown_ || !CloseQuery()) return;
    closed_ = true;
    if (modal_) {
        if (ModalResult == 0) ModalResult = 2;
        return; // ShowModal does the rest
    }
    FormClose();
    if (OnClose) OnClose();
    disappear();
    if (FreeOnClose) release_later(this);
}

bool TForm::CloseQuery() {
    // What was opened from here goes with it, so it is asked first.
    for (TForm* child : std::vector(children_)) {
        if (!child->Shown() || child->Closed() || child->CloseQuery()) continue;
        child->Activate();
        return false;
    }
    if (!has_unsaved_work()) return true;
    return DISPINFO("“" + Caption.get() + "”中有尚未保存的内容，确定不保存就离开吗？", 2) == 'y';
}

} // namespace host
