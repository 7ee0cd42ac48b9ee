// The forms of the module, worked by requests instead of a person at a screen.
#pragma once

#include "automation/drive/ports.h"

namespace app {

// Answers requests until they end, on the workplace that stands; forms still open then go. Throws
// Refusal when the module is missing.
void run_driver(automation::RequestLines& requests, automation::AnswerLines& answers,
                automation::QueryPort* query = nullptr);

} // namespace app
