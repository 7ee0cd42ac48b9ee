// A password that is typed twice.
#include "app/administration/password_entry.h"

#include "host/contract/U_function.h"
#include "host/values/errors.h"

namespace app {

void require_same_password(host::TForm& form, host::TEdit& first, host::TEdit& again) {
    if (first.Text.get() == again.Text.get()) return;
    host::DISPINFO("两次输入的密码不一样,请重新输入!", 5);
    form.SetFocusTo(first);
    first.SelectAll();
    host::Abort();
}

} // namespace app
