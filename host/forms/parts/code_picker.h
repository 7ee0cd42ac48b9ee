// A picker over codes and their names.
#pragma once

#include <string>

#include "host/forms/Base_Link.h"

namespace host {

// What is typed into the search box narrows the rows by code, name or pinyin initials.
class CodePicker : public TBase_Link {
public:
    explicit CodePicker(TForm* parent);
    const char* ClassName() const override { return "TLinkHint"; }

    // `rows` hold the codes in their first field, the names in their second. The row of `current`
    // becomes the current one.
    void init(const TClientDataSet& rows, const std::string& code_title, const std::string& caption,
              const std::string& current);
    std::string chosen_code() const { return cell(0); }
    std::string chosen_name() const { return cell(1); }

private:
    std::string cell(int field) const;
    void narrow();
};

} // namespace host
