// Names, registration with the form, and listeners.
#include "host/controls/component.h"

#include <algorithm>

#include "host/forms/form.h"

namespace host {

TComponent::TComponent(TForm* form, std::string name) : form_(form), name_(std::move(name)) {
    if (form_ != nullptr) form_->components_.push_back(this);
}

TComponent::~TComponent() {
    if (form_ != nullptr) form_->forget_component(this);
}

int TComponent::listen(Listener listener) {
    listeners_.emplace_back(next_handle_, std::move(listener));
    return next_handle_++;
}

void TComponent::forget(int handle) {
    std::erase_if(listeners_, [handle](const auto& entry) { return entry.first == handle; });
}

void TComponent::changed() {
    // A listener may add or forget others while it is told.
    for (const auto& one : std::vector(listeners_)) {
        const bool listens =
            std::any_of(listeners_.begin(), listeners_.end(),
                        [&](const auto& entry) { return entry.first == one.first; });
        if (listens) one.second();
    }
}

} // namespace host
