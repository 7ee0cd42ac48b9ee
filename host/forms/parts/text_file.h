// Writing a text the person asked for into a file of his choice.
#pragma once

#include <functional>
#include <string>

namespace host {

// Asks where to, suggesting a file name made of `title`, writes what `text` answers, says `done`;
// what kept the file from being written is shown. Nothing happens when the person changes his mind.
void save_text_as(const std::string& title, const std::function<std::string()>& text,
                  const std::string& done);

// One line of comma-separated values is made of fields like this.
std::string csv_field(const std::string& text);

} // namespace host
