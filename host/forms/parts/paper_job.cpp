// What every printed list carries beside its rows.
#include "host/forms/parts/paper_job.h"

#include "host/contract/U_function.h"
#include "host/contract/U_glo.h"
#include "host/ports/host.h"
#include "host/printing/table_document.h"
#include "host/values/errors.h"

namespace host {

bool can_print() {
    const UserInterface* ui = the_host().ui;
    return ui != nullptr && ui->offers_printing();
}

std::unique_ptr<PaperDocument> paper_of(Sheet sheet) {
    if (sheet.rows == 0) {
        DISPINFO("没有可打印的内容，请先选择查询条件或录入数据!", 5);
        Abort();
    }
    const std::string moment = the_host().clock->now().to_text().substr(0, 16);
    return std::make_unique<TableDocument>(for_paper(std::move(sheet)),
                                           PaperWords{G_CoName, G_UserName, moment});
}

} // namespace host
