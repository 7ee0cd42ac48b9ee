// Forms that were closed while an event of theirs still ran, waiting to be destroyed.
#pragma once

namespace host {

class TForm;

void release_later(TForm* form);
void cancel_release(TForm* form); // destroyed by somebody else, or shown again

} // namespace host
