// Templates: the lines of a saved voucher kept for later ones, found again, deleted.
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

std::string run(const std::string& function, const std::string& name, const std::string& batch) {
    return ExecSql(function, "模板" + name, "pass", batch, 65535, false, true, false, true);
}

} // namespace

void save_as_template(const std::string& function, const std::string& voucher_key) {
    const std::string group = next_template_group(function);
    const std::string answer = run(function, voucher_key, insert_template(group, voucher_key));
    if (answer == "Y") DISPINFO("已将当前凭证加入到模板,组别为:" + group, 5);
}

std::string select_templates(const std::string& text) {
    const std::string all = "SELECT D6601M.*, V6801.KM_NAME_NEW AS KM_NAME_NEW FROM D6601M INNER "
                            "JOIN V6801 ON D6601M.KM_ID = V6801.KM_ID ";
    const std::string order = "ORDER BY D6601M.NOID, D6601M.INX";
    if (text.empty()) return all + order;
    const std::string like = "LIKE '%" + escaped(text) + "%'";
    return all +
           "INNER JOIN (SELECT D6601M.NOID FROM D6601M INNER JOIN V6801 ON D6601M.KM_ID = "
           "V6801.KM_ID WHERE (V6801.KM_NAME_NEW " +
           like + ") OR (V6801.PYM " + like + ") OR (ZY " + like +
           ") GROUP BY D6601M.NOID) T ON D6601M.NOID=T.NOID " + order;
}

bool delete_template(const std::string& function, const std::string& group) {
    return run(function, group, "delete from D6601M where noid=" + quoted(group)) == "Y";
}

} // namespace module
