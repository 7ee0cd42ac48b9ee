// Back the open books up into a file of the person's choice.
#pragma once

namespace host {
class TForm;
}

namespace app {

// Asks where to and tells what became of it. Others may go on working meanwhile.
void back_up_books(host::TForm* frame);

} // namespace app
