// Searching lists by text and by ear.
#include "host/forms/parts/list_search.h"

#include "host/contract/Zpy.h"
#include "host/dataset/client_dataset.h"
#include "host/values/text.h"

namespace host {

bool matches_typed(const std::string& text, const std::string& typed) {
    return contains_text(text, typed) || contains_text(GetPY(text), typed);
}

bool row_matches_typed(const TClientDataSet& dataset, const std::string& typed) {
    for (const auto& field : dataset.Fields())
        if (field->Type == FieldType::Text && matches_typed(field->AsText(), typed)) return true;
    return false;
}

std::string current_key(const TClientDataSet& dataset, const std::string& key_field) {
    const TField* key = dataset.FindField(key_field);
    return key == nullptr || dataset.IsEmpty() ? "" : key->AsText();
}

bool return_to_key(TClientDataSet& dataset, const std::string& key_field, const std::string& key) {
    if (key.empty() || dataset.FindField(key_field) == nullptr) return false;
    return dataset.Locate(key_field, key);
}

} // namespace host
