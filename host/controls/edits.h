// Edits of one line: text, number, date, choice, code with a lookup button.
#pragma once

#include <optional>

#include "host/controls/control.h"
#include "host/controls/suggestion.h"
#include "host/values/amount.h"
#include "host/values/date.h"

namespace host {

// A line of text. `MaxLength` counts characters (0 no limit); what is typed beyond is refused.
class TEdit : public TWinControl {
public:
    TEdit(TForm* form, std::string name, std::string caption = "");
    const char* ClassName() const override { return "TEdit"; }
    Property<std::string> Text;
    int MaxLength = 0;
    bool UpperCase = false;
    bool Password = false;
    std::function<void()> OnChange;
    std::string value_text() const override { return Text; }
    void type(char32_t character) override;
    bool key_down(Key key) override;
    void enter_text(const std::string& text) override;
    void changed() override;
    // All of it is marked, so that the next character replaces it; set when the focus arrives.
    void SelectAll();
    bool all_selected() const { return all_selected_; }

protected:
    virtual bool several_lines() const { return false; }
    void check_text(const std::string& text) const; // MaxLength, characters; refuses by Abort()
    bool leaving_by_cancel() const;

private:
    void put(const std::u32string& characters, std::size_t caret);
    std::string last_text_;
    std::size_t caret_ = 0; // in characters
    bool all_selected_ = false;
};

// Several lines of text.
class TMemo : public TEdit {
public:
    using TEdit::TEdit;
    const char* ClassName() const override { return "TMemo"; }
    bool key_down(Key key) override; // Enter begins a line

protected:
    bool several_lines() const override { return true; }
};

// A number with `Decimals` places between `Min` and `Max`; up and down keys step by one.
// Empty counts as 0 unless `Min` is above it. Text that is no number is refused when typed.
class TNumberEdit : public TEdit {
public:
    TNumberEdit(TForm* form, std::string name, std::string caption = "", int decimals = 0);
    const char* ClassName() const override { return "TNumberEdit"; }
    int Decimals;
    std::optional<Amount> Min, Max;
    Amount value() const;
    std::int64_t as_integer() const;
    void set(Amount value);
    void set(std::int64_t whole);
    void enter_text(const std::string& text) override;
    void type(char32_t character) override;
    bool key_down(Key key) override;
    void leave() override; // "007" becomes "7"; outside the range is refused

private:
    [[noreturn]] void refuse(const std::string& text) const;
    std::optional<std::string> proper(const std::string& text) const;
};

// A day, shown YYYY-MM-DD. "20240305", "2024/3/5", "3-5" and "5" (of this year, of this month) are
// understood.
class TDateEdit : public TEdit {
public:
    TDateEdit(TForm* form, std::string name, std::string caption = "");
    const char* ClassName() const override { return "TDateEdit"; }
    std::optional<Date> date() const;
    Date value() const; // today's date of the clock when empty
    void set(Date day);
    void clear();
    void enter_text(const std::string& text) override; // refuses what is no day, with a message
    bool key_down(Key key) override;                   // up and down change the day
    void leave() override;
};

// A choice. `DropDownList` true: only an item can be chosen.
class TComboBox : public TWinControl {
public:
    TComboBox(TForm* form, std::string name, std::string caption = "");
    const char* ClassName() const override { return "TComboBox"; }
    Property<std::vector<std::string>> Items;
    Property<std::string> Text;
    bool DropDownList = true;
    std::function<void()> OnChange;
    int item_index() const; // -1 when Text is no item
    void set_index(int index);
    std::string value_text() const override { return Text; }
    void enter_text(const std::string& text) override; // an item's text
    bool key_down(Key key) override;
    void type(char32_t character) override; // the next item that begins with it
    void changed() override;

private:
    std::string last_text_;
};

// A code field with a lookup button; `Name` shows what the code means.
class TLinkEdit : public TEdit {
public:
    TLinkEdit(TForm* form, std::string name, std::string caption = "");
    const char* ClassName() const override { return "TLinkEdit"; }
    Property<std::string> DisplayName;
    std::function<void()> OnButtonClick;
    // Type-ahead: what matches the text typed so far.
    std::function<std::vector<Suggestion>(const std::string& typed)> OnSuggest;
    bool key_down(Key key) override; // F4 presses the button
};

} // namespace host
