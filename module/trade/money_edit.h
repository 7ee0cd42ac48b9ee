// The field of an amount in the head of a document.
#pragma once

#include "host/controls/edits.h"
#include "module/host_names.h"

namespace module {

// A number that stays as it was typed as long as that is a plain one: "95" does not become "95.00".
// The head's statement carries it as it stands, so the log repeats what the user typed.
class MoneyEdit : public TNumberEdit {
public:
    MoneyEdit(TForm* form, std::string name, std::string caption = "", int decimals = 2)
        : TNumberEdit(form, std::move(name), std::move(caption), decimals) {}
    void enter_text(const std::string& text) override;
    void leave() override;
    std::string sent_text() const { return Text->empty() ? "0" : Text.get(); }

private:
    bool plain(const std::string& text) const;
};

} // namespace module
