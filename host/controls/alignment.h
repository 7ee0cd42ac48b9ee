// Where a text stands in its cell or box.
#pragma once

namespace host {

enum class Alignment { Left, Center, Right };

} // namespace host
