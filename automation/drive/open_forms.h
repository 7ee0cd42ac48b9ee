// The forms that stand open, which of them is active, and the names requests call them by.
#pragma once

#include <string>
#include <vector>

namespace host {
class TForm;
}

namespace automation {

// A form is named by its class ("TF6661") or variable ("F6661"), without regard to case, with its
// instance behind it where several of one class stand open ("TF6661#2"). An instance keeps its
// number as long as it is open; a new one takes the lowest number that is free. Without an
// instance the active form is meant if it is of that class, else the one opened last.
class OpenForms {
public:
    void add(host::TForm& form, bool modal); // brings a form to the front that is open already
    void remove(host::TForm& form);
    void activate(host::TForm& form);

    // The modal form opened last, else the form used last; null when none is open.
    host::TForm* active() const;
    // The modal form that stands over all others, or null.
    host::TForm* modal() const;
    bool is_open(const host::TForm& form) const;
    bool is_modal(const host::TForm& form) const;

    std::string name_of(const host::TForm& form) const;
    host::TForm* find(const std::string& name) const; // null when no open form has that name
    // The active form first, then the others from the last used to the first.
    std::vector<host::TForm*> in_order() const;
    // "TF6661, TF6661F" for error texts; "none" when nothing is open.
    std::string listed() const;

private:
    struct Shown {
        host::TForm* form;
        int number;
        bool modal;
    };
    std::vector<Shown> shown_; // last used last
    std::vector<Shown>::const_iterator where(const host::TForm& form) const;
};

} // namespace automation
