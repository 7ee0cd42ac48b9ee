// Reading and writing one field of the current row.
#include "host/dataset/field.h"

#include <stdexcept>

#include "host/contract/U_function.h"
#include "host/dataset/client_dataset.h"
#include "host/values/errors.h"
#include "host/values/text.h"

namespace host {

namespace {

std::string label_of(const TField& field) {
    return "“" + (field.DisplayLabel.empty() ? field.FieldName : field.DisplayLabel) + "”";
}

[[noreturn]] void refuse(const std::string& reason) {
    DISPINFO(reason, 5);
    Abort();
}

const char* wanted_shape(FieldType type) {
    switch (type) {
    case FieldType::Integer: return "请录入整数。";
    case FieldType::Amount: return "请录入数字。";
    case FieldType::Boolean: return "请录入 1(是)或 0(否)。";
    default: return "请录入日期，例如 2024-03-05。";
    }
}

} // namespace

Value TField::AsValue() const {
    const std::int64_t row = dataset_->current_slot();
    if (row == TClientDataSet::no_row) return {};
    return dataset_->store_.value(static_cast<Slot>(row), index_);
}

bool TField::IsNull() const {
    const std::int64_t row = dataset_->current_slot();
    return row == TClientDataSet::no_row ||
           dataset_->store_.is_null(static_cast<Slot>(row), index_);
}

std::string TField::AsText() const { return to_text(AsValue()); }

std::int64_t TField::AsInteger() const {
    const Value value = AsValue();
    if (const auto* whole = std::get_if<std::int64_t>(&value)) return *whole;
    return AsAmount().units() / Amount::scale;
}

Amount TField::AsAmount() const {
    const auto amount = converted(AsValue(), FieldType::Amount);
    return amount && !is_null(*amount) ? std::get<Amount>(*amount) : Amount();
}

bool TField::AsBoolean() const {
    const auto flag = converted(AsValue(), FieldType::Boolean);
    return flag && !is_null(*flag) && std::get<bool>(*flag);
}

DateTime TField::AsDateTime() const {
    const auto moment = converted(AsValue(), FieldType::DateTime);
    return moment && !is_null(*moment) ? std::get<DateTime>(*moment) : DateTime();
}

std::string TField::DisplayText() const {
    return OnGetText ? OnGetText(*this) : formatted(AsValue(), DisplayFormat);
}

void TField::SetValue(Value value) {
    const auto fitting = converted(value, Type);
    if (!fitting)
        throw std::logic_error("the value " + to_text(value) + " does not fit " + FieldName);
    dataset_->write(index_, *fitting);
}

void TField::SetText(const std::string& typed) {
    if (ReadOnly) refuse(label_of(*this) + "不能修改。");
    dataset_->Edit();
    if (OnSetText)
        OnSetText(*this, typed);
    else
        SetConverted(typed);
}

void TField::SetConverted(const std::string& typed) {
    if (const auto at = first_unprintable(typed))
        refuse(label_of(*this) + "的第 " + std::to_string(*at) + " 个字不能显示，请删去后再录入。");
    const std::size_t count = character_count(typed);
    if (Size > 0 && count > static_cast<std::size_t>(Size))
        refuse(label_of(*this) + "最多 " + std::to_string(Size) + " 个字，录入了 " +
               std::to_string(count) + " 个字，请缩短。");
    const auto fitting = converted(Value{typed}, Type);
    if (!fitting) refuse(label_of(*this) + "不能是“" + first_characters(typed, 30) + "”，" +
                         wanted_shape(Type));
    SetValue(*fitting);
}

} // namespace host
