// Rows whose other half is missing: lines without a head, codes that no table holds.
#include "automation/check/findings.h"

namespace automation {

namespace {

// Table, its column, the table it refers to, that one's key, what to say, and which column tells
// where the row is found, with its name.
struct Reference {
    const char* table;
    const char* column;
    const char* target;
    const char* key;
    const char* says;
    const char* where = nullptr;
    const char* where_says = "";
    const char* may_be = nullptr; // the rows that refer to nothing by right
};

// A line of a voucher that is a remark has neither account nor amount.
constexpr const char* remark = "A.KM_ID = '' AND A.J = 0 AND A.D = 0";

constexpr Reference references[] = {
    {"D6601A", "NOID", "D6601", "NOID", "分录没有凭证头"},
    {"D6601A", "KM_ID", "D6801", "KM_ID", "分录的科目不存在", "NOID", "凭证", remark},
    {"D6601B", "NOID", "D6601", "NOID", "现金流量分配没有凭证"},
    {"D6601B", "D6820ID", "D6820", "ID", "现金流量分配的项目不存在", "NOID", "凭证"},
    {"D6601M", "KM_ID", "D6801", "KM_ID", "凭证模板的科目不存在", "NOID", "模板", remark},
    {"D6602", "KM_ID", "D6801", "KM_ID", "余额的科目不存在", "QJ", "期间"},
    {"D6601", "USER_ID", "SYS_USER", "USER_ID", "凭证的制单人不存在", "NOID", "凭证"},
    {"D6804", "KM_ID", "D6801", "KM_ID", "收支类别的科目不存在", "SZLB", "类别"},
    {"D631A", "NOID", "D631", "NOID", "核销行没有收款单"},
    {"D631A", "D8102NOID", "D8102", "NOID", "核销的销售单不存在", "NOID", "收款单"},
    {"D631A", "D651NOID", "D651", "NOID", "核销的其他应收不存在", "NOID", "收款单"},
    {"D631A", "D8103NOID", "D8103", "NOID", "核销的销售退回不存在", "NOID", "收款单"},
    {"D631B", "NOID", "D631", "NOID", "分帐户的金额没有收款单"},
    {"D641A", "NOID", "D641", "NOID", "核销行没有付款单"},
    {"D641A", "D8202NOID", "D8202", "NOID", "核销的采购单不存在", "NOID", "付款单"},
    {"D641A", "D652NOID", "D652", "NOID", "核销的其他应付不存在", "NOID", "付款单"},
    {"D641A", "D8203NOID", "D8203", "NOID", "核销的采购退回不存在", "NOID", "付款单"},
    {"D651A", "NOID", "D651", "NOID", "明细行没有其他收款单"},
    {"D651A", "D631NOID", "D631", "NOID", "溢收明细没有收款单"},
    {"D652A", "NOID", "D652", "NOID", "明细行没有其他付款单"},
    {"D8102A", "NOID", "D8102", "NOID", "明细行没有销售单"},
};

std::string query_of(const Reference& reference) {
    const std::string column = std::string("A.") + reference.column;
    std::string place;
    if (reference.where)
        place = ", '(" + std::string(reference.where_says) + " ' + CAST(A." + reference.where +
                " AS nvarchar(50)) + ')'";
    const std::string but =
        reference.may_be ? " AND NOT (" + std::string(reference.may_be) + ")" : "";
    return "SELECT DISTINCT '" + std::string(reference.says) + ":', " + column + place + " FROM " +
           reference.table + " A WHERE " + column + " IS NOT NULL AND NOT EXISTS (SELECT * FROM " +
           reference.target + " B WHERE B." + reference.key + " = " + column + ")" + but +
           " ORDER BY " + column;
}

} // namespace

void check_orphans(engines::Session& session, Findings& findings) {
    for (const Reference& reference : references) add_rows(session, query_of(reference), findings);
    add_rows(session, "SELECT '未完成的删除:', NOID FROM SYS_6601_GONE", findings);
}

} // namespace automation
