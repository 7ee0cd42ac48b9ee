// Back the open books up into a file of the person's choice.
#include "app/administration/books_backup.h"

#include "app/administration/audit_service.h"
#include "app/books/backup.h"
#include "app/refusal.h"
#include "host/forms/Base_Common.h"
#include "host/ports/host.h"

namespace app {

using namespace host;

namespace {

// Stands for the function's rights; it is never shown.
class BackupFunction : public TFrm_Base_Common {
public:
    explicit BackupFunction(TForm* frame) : TFrm_Base_Common(frame) {
        FunctionCode = "backup";
        Caption = "备份帐套";
        OpenFunction(Trecord());
    }
    const char* ClassName() const override { return "TFrm_Backup"; }
};

// "测试公司-2024-03-15.zf"
std::string suggested() {
    return G_CoName + "-" + the_host().clock->today().to_text() + ".zf";
}

} // namespace

void back_up_books(TForm* frame) {
    const BackupFunction function(frame);
    const auto file = the_host().ui->choose_file_to_save("备份帐套", suggested(),
                                                         {{"帐套", "zf"}});
    if (!file || file->empty()) return;
    try {
        backup_session(*open_books_again(), G_CoName, *file,
                       [](const std::string& what, std::int64_t done, std::int64_t all) {
                           return the_host().ui->progress(what, done, all);
                       });
        DISPINFO("已备份到 " + *file + "。", 5);
    } catch (const Refusal& refusal) {
        DISPINFO(refusal.what(), 5);
    }
}

} // namespace app
