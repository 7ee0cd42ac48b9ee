// Asks for the name of a file to write.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/ports/user_interface.h"

class QWidget;

namespace desktop {

// The kinds can be chosen; a name typed without an ending gets that of the kind chosen, and a file
// that exists is asked about before. The folder is the one chosen last.
std::optional<std::string> choose_file(const std::string& title, const std::string& suggested,
                                       const std::vector<host::FileKind>& kinds, QWidget* over);

} // namespace desktop
