// What every named part of a form is, and how it tells who listens that it changed.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace host {

class TForm;
class TComponent;

// A value of a component. Assigning what it already holds tells nobody.
template <class T> class Property {
public:
    explicit Property(TComponent* owner, T initial = T{})
        : owner_(owner), value_(std::move(initial)) {}
    Property(const Property&) = delete;
    Property& operator=(const Property& other) { return *this = other.value_; }
    Property& operator=(T value);
    operator const T&() const { return value_; }
    const T& get() const { return value_; }
    const T* operator->() const { return &value_; }

private:
    TComponent* owner_;
    T value_;
};

// A named part of a form, or the form itself. The name is the one the driver and tests use.
class TComponent {
public:
    // `form` may be null for a form without parent. A component registers itself with its form.
    TComponent(TForm* form, std::string name);
    TComponent(const TComponent&) = delete;
    TComponent& operator=(const TComponent&) = delete;
    virtual ~TComponent();

    const std::string& Name() const { return name_; }
    TForm* form() const { return form_; }
    virtual const char* ClassName() const = 0;

    int Tag = 0;

    // Renderers listen; they re-read the component when told. The listener goes with its handle.
    using Listener = std::function<void()>;
    int listen(Listener listener);
    void forget(int handle);
    virtual void changed(); // tells the listeners

private:
    TForm* form_;
    std::string name_;
    std::vector<std::pair<int, Listener>> listeners_;
    int next_handle_ = 1;
};

template <class T> Property<T>& Property<T>::operator=(T value) {
    if (value_ == value) return *this;
    value_ = std::move(value);
    owner_->changed();
    return *this;
}

} // namespace host
