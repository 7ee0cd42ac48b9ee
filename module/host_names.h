// Inside the module the host's names are written as they are, without their prefix.
#pragma once

namespace host {}

namespace module {

using namespace host;

} // namespace module
