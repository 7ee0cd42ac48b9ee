// Narrowing and finding by what a person types: part of a text, or pinyin initials.
#pragma once

#include <string>

namespace host {

class TClientDataSet;
class TField;

bool matches_typed(const std::string& text, const std::string& typed);
// Does any text of the dataset's current row match?
bool row_matches_typed(const TClientDataSet& dataset, const std::string& typed);

// Puts the cursor on the row with that key again after the dataset was filled anew; false when the
// row is gone.
bool return_to_key(TClientDataSet& dataset, const std::string& key_field, const std::string& key);
// The key of the current row; "" when there is none.
std::string current_key(const TClientDataSet& dataset, const std::string& key_field);

} // namespace host
