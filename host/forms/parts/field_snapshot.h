// What the fields of a form held when it was made ready, to tell whether a person changed them.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace host {

class TForm;
class TWinControl;

class FieldSnapshot {
public:
    void take(const TForm& form);
    bool differs() const; // of the controls that were there when it was taken
    void forget() { held_.clear(); }
    // Edits, choices and check marks of a form; no buttons and no grids.
    static std::vector<TWinControl*> fields(const TForm& form);

private:
    std::vector<std::pair<TWinControl*, std::string>> held_;
};

} // namespace host
