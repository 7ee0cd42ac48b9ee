// Keeps the lines of a saved voucher as a template for later ones.
#include "module/vouchers/voucher_template.h"

#include "host/contract/U_dataop.h"
#include "host/contract/U_function.h"
#include "host/dataset/client_dataset.h"
#include "host/values/sql_text.h"

namespace module {
namespace {

std::string next_template_group(const std::string& function) {
    TClientDataSet group;
    opensql(group, function, "SELECT ISNULL(MAX(NOID)+1,10000) AS N FROM D6601M");
    return group.FieldByName("N").AsText();
}

std::string insert_template(const std::string& group, const std::string& voucher_key) {
    return "INSERT INTO D6601M SELECT " + quoted(group) +
           ",ZY,KM_ID,J,D,INX FROM D6601A WHERE NOID=" + quoted(voucher_key);
}

} // namespace

void save_as_template(const std::string& function, const std::string& voucher_key) {
    const std::string group = next_template_group(function);
    const std::string answer =
        ExecSql(function, "模板" + voucher_key, "pass", insert_template(group, voucher_key), 65535,
                false, true, false, true);
    if (answer == "Y") DISPINFO("已将当前凭证加入到模板,组别为:" + group, 5);
}

} // namespace module
