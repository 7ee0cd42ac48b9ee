// Names and contents of the files a person asked for.
#pragma once

#include <string>

namespace host {

// "现金,银行存款日记帐" → "现金,银行存款日记帐.csv": without blanks and what a file system does not
// take.
std::string file_name(const std::string& title, const std::string& ending);

// Writes over what is there; "", or the sentence that says what kept it from being written.
std::string write_text_file(const std::string& path, const std::string& text);

} // namespace host
