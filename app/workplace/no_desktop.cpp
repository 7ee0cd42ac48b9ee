// The desktop of a program that was built without one.
#include "app/refusal.h"
#include "app/workplace/desktop_session.h"
#include "app/workplace/pdf_writer.h"

namespace app {

PdfWriter pdf_writer() { return nullptr; }

int run_desktop(const DesktopWanted&) {
    throw Refusal("这个程序没有带桌面;请用 zhangfang drive、sql 或 check!");
}

} // namespace app
