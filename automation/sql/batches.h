// Cuts what is typed into batches at the lines that say GO.
#pragma once

#include <istream>
#include <string>

namespace automation {

// Reads the next batch from `in`: everything up to a line that holds nothing but GO (in any case,
// blanks around it) or to the end. False when nothing but blanks is left. A GO inside a text that
// spans lines or inside a block comment still ends the batch, as it does in the server's own tools.
bool read_batch(std::istream& in, std::string& batch);

} // namespace automation
