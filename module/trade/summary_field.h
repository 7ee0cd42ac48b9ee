// The summary of a document: picked from the common summaries, or typed.
#pragma once

#include "host/controls/edits.h"
#include "host/forms/Base_Common.h"
#include "module/host_names.h"

namespace module {

// F4 opens the picker of common summaries, typing offers those that fit; any text may stand there.
void offer_summaries(TFrm_Base_Common& form, TLinkEdit& summary);

} // namespace module
