// Between Qt's key events and the host's key strokes.
#pragma once

#include "host/controls/key.h"

class QKeyEvent;

namespace desktop {

// The key stroke of an event; code None for a bare modifier or a key the host has no name for.
host::Key to_key(const QKeyEvent& event);

// A character a person typed, without Ctrl or Alt: it belongs to whatever takes text.
bool is_plain_character(const host::Key& key);

} // namespace desktop
