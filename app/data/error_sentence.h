// The one place where an error of the database becomes a sentence for a person.
#pragma once

#include <string>

#include "engines/error.h"

namespace app {

// A plain Chinese sentence that says what is wrong and what to do; never the engine's own words.
//
// Example: number 2627 → "这个编号或代码已被使用,请换一个后再保存!"
std::string sentence_for(const engines::Error& error);

} // namespace app
