// One field of a dataset: what it is called, how it is shown, what the current row holds in it.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "host/values/value.h"

namespace host {

class TClientDataSet;

// `AsText` and friends read the row the cursor is on; an empty dataset reads as NULL.
class TField {
public:
    std::string FieldName;
    FieldType Type = FieldType::Text;
    int Size = 0; // characters; 0 unlimited
    bool ReadOnly = false;
    // "0.00" shows two decimals; "" the shortest form; "yyyy-mm-dd" a day without its time.
    std::string DisplayFormat;
    std::string DisplayLabel; // what messages call it; empty: the field's name

    bool IsNull() const;
    std::string AsText() const;     // plain value
    std::int64_t AsInteger() const; // text is read as a number; NULL is 0
    Amount AsAmount() const;        // NULL is 0
    bool AsBoolean() const;         // 1, true, "1", "True" are true
    DateTime AsDateTime() const;
    Value AsValue() const;
    std::string DisplayText() const; // by OnGetText, else by DisplayFormat

    // Needs Edit or Insert state; converts to the field's type. A value that cannot be converted is
    // a mistake of the form: std::logic_error.
    void SetValue(Value value);
    void Clear() { SetValue(Value{}); }
    // What a person typed: runs OnSetText, or converts; a text that does not fit the type is
    // refused with a message and Abort(). Starts editing the row where it is only browsed.
    void SetText(const std::string& typed);
    // The conversion of SetText without OnSetText, for handlers that go on with it.
    void SetConverted(const std::string& typed);

    std::function<void(TField&, const std::string& typed)> OnSetText;
    std::function<std::string(const TField&)> OnGetText;

    TClientDataSet* dataset() const { return dataset_; }
    int index() const { return index_; }

private:
    friend class TClientDataSet;
    friend class DataSetLoader;
    TClientDataSet* dataset_ = nullptr;
    int index_ = 0;
    bool defined_ = false; // by the form, not only by a query: survives a query without it
};

} // namespace host
