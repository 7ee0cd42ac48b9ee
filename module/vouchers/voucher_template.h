// Templates: the lines of a saved voucher kept for later ones, found again, deleted.
#pragma once

#include <string>

#include "module/host_names.h"

namespace module {

// Copies the lines as they are saved, not what is being typed, into a new template group (groups
// count from 10000) and tells its number. Shows why when it cannot.
void save_as_template(const std::string& function, const std::string& voucher_key);

// The lines of the templates, each template whole, in which a summary or the name or pinyin of an
// account contains the text; of all templates when it is blank.
std::string select_templates(const std::string& text);

// True when it is gone; shows why when it cannot.
bool delete_template(const std::string& function, const std::string& group);

} // namespace module
