// The lookup hint of a code field, and what it offers while a code is typed.
#include "host/contract/U_linkedit.h"

#include "host/contract/Zpy.h"
#include "host/forms/parts/code_picker.h"
#include "host/values/code_match.h"
#include "host/values/text.h"

namespace host {
namespace {

std::string select_codes(const std::string& table, const std::string& code,
                         const std::string& name, const std::string& condition) {
    const std::string where = trimmed(condition).empty() ? "" : " where " + condition;
    return "select " + code + "," + name + " from " + table + where + " order by " + code;
}

struct CodeName {
    std::string code, name, pinyin;
};

// The codes of one edit, as they were when the text in it was begun.
class OfferedCodes {
public:
    OfferedCodes(const TLinkEdit& edit, std::string query)
        : edit_(&edit), query_(std::move(query)) {}

    std::vector<Suggestion> matching(const std::string& typed) {
        if (trimmed(typed).empty()) return {};
        if (begun(typed)) read();
        last_ = typed;
        std::vector<Suggestion> suggestions;
        for (const CodeName* row : rows_fitting(rows_, typed))
            suggestions.push_back({row->code, {row->code, row->name}, ""});
        return suggestions;
    }

private:
    // A first character, or a text put in place of another.
    bool begun(const std::string& typed) const {
        const bool goes_on = starts_with_text(typed, last_) || starts_with_text(last_, typed);
        return last_.empty() || character_count(typed) == 1 || !goes_on;
    }

    void read() {
        const auto* form = dynamic_cast<const TFrm_Base_Common*>(edit_->form());
        TClientDataSet found;
        opensql(found, form == nullptr ? "" : form->FunctionCode, query_);
        rows_.clear();
        const bool has_pinyin = found.Fields().size() > 2;
        for (int row = 0; row < found.RecordCount(); ++row) {
            const std::string name = found.text_at(row, 1);
            rows_.push_back({found.text_at(row, 0), name,
                             has_pinyin ? found.text_at(row, 2) : GetPY(name)});
        }
    }

    const TLinkEdit* edit_;
    std::string query_, last_;
    std::vector<CodeName> rows_;
};

} // namespace

void CommonHint(TLinkEdit& edit, TClientDataSet& rows, const std::string& table,
                const std::string& code, const std::string& code_title, const std::string& name,
                const std::string& caption, const std::string& condition) {
    CodePicker picker(edit.form());
    opensql(rows, picker.FunctionCode, select_codes(table, code, name, condition));
    picker.init(rows, code_title, caption, edit.Text);
    if (picker.ShowModal() != mrOk) return;
    edit.Text = picker.chosen_code();
    edit.DisplayName = picker.chosen_name(); // after the code, whose change may clear it
}

void OfferCodes(TLinkEdit& edit, const std::string& query) {
    edit.OnSuggest = [codes = OfferedCodes(edit, query)](const std::string& typed) mutable {
        return codes.matching(typed);
    };
}

void OfferHint(TLinkEdit& edit, const std::string& table, const std::string& code,
               const std::string& name, const std::string& condition) {
    OfferCodes(edit, select_codes(table, code, name, condition));
}

void TakeSuggestion(TLinkEdit& edit, const Suggestion& chosen) {
    edit.enter_text(chosen.value);
    // After the code, whose change may clear it.
    edit.DisplayName = chosen.cells.size() > 1 ? chosen.cells[1] : "";
}

} // namespace host
