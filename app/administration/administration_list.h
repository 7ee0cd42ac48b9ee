// What the lists of users and of roles share.
#pragma once

#include "host/forms/Base_Outer.h"

namespace app {

// A code list of the host: it knows its function by name, and shows the rows anew after its dialog
// has saved, for a row tells what other tables hold.
class AdministrationList : public host::TFrm_Base_Outer {
public:
    AdministrationList(host::TForm* frame, const std::string& function,
                       const std::string& caption);

protected:
    void Act_AddExecute() override;
    void Act_CopyAddExecute() override;
    void Act_ModifyExecute() override;

private:
    void show_saved();
};

} // namespace app
