// The table of functions.
#include "host/contract/function_table.h"

namespace host {
namespace {

constexpr unsigned opens = 1, adds = 2, changes = 4, deletes = 8, audits = 16, posts = 32,
                   prints = 64, exports = 128;

constexpr RightsAction actions[] = {
    {opens, "open", "打开", false},   {adds, "add", "新增", true},
    {changes, "change", "修改", true}, {deletes, "delete", "删除", true},
    {audits, "audit", "审核", true},  {posts, "post", "登帐", true},
    {prints, "print", "打印", false}, {exports, "export", "导出", false}};

// What the forms of a kind offer.
constexpr unsigned report = opens | prints | exports;
constexpr unsigned list = report | adds | changes | deletes;
constexpr unsigned period_step = opens | posts;
constexpr unsigned statement = report | changes;
constexpr unsigned opening_figures = report | changes | posts;
constexpr unsigned opening_amounts = report | changes; // of parties that other modules keep

constexpr Function vouchers[] = {
    {661, "录凭证", list}, {662, "凭证审核", report | audits}, {663, "凭证登帐", period_step}};
constexpr Function ledgers[] = {{684, "科目汇总表", report},
                                {685, "明细分类帐", report},
                                {686, "总分类帐", report},
                                {689, "试算平衡表", report},
                                {690, "现金,银行存款日记帐", report}};
constexpr Function statements[] = {
    {671, "资产负债表", statement}, {673, "利 润 表", statement}, {672, "现金流量表", statement}};
constexpr Function period[] = {{667, "结转损溢", opens | adds}, {668, "期末结帐", period_step}};
constexpr Function trade[] = {
    {630, "销售收款 · 外币", list},   {631, "销售收款", list},
    {632, "销售收款明细表", report}, {633, "销售收款汇总表", report},
    {641, "采购付款", list},         {642, "采购付款明细表", report},
    {643, "采购付款汇总表", report}, {646, "其他收款单", list},
    {647, "其他付款单", list}};
constexpr Function cash[] = {{648, "银行存取款单", list},
                             {650, "现金银行总帐", report},
                             {652, "现金银行日记帐", report},
                             {653, "收支明细表", report}};
constexpr Function masterdata[] = {
    {681, "会计科目", list},              {682, "凭证字", list},
    {683, "常用摘要", list},              {687, "收支类别", list},
    {691, "现金流量项目", list},          {699, "会计科目初始", opening_figures},
    {628, "期初应收款", opening_amounts}, {629, "期初应付款", opening_amounts}};
constexpr Function administration[] = {{0, "用户", list, "users"},
                                       {0, "角色与权限", list, "roles"},
                                       {0, "帐套设置", opens | changes, "books"},
                                       {0, "操作日志", report, "log"},
                                       {0, "核对帐套", report, "check"},
                                       {0, "备份帐套", opens, "backup"},
                                       {0, "修改密码", 0, "password"}};

constexpr WorkArea areas[] = {
    {"凭证", "file-pen-line", 'V', vouchers},     {"帐簿", "book-open", 'B', ledgers},
    {"报表", "chart-column", 'R', statements},    {"期末", "calendar-check", 'P', period},
    {"应收应付", "arrow-left-right", 'A', trade}, {"现金银行", "landmark", 'C', cash},
    {"基础资料", "library", 'M', masterdata},     {"系统管理", "users", 'S', administration}};

} // namespace

std::span<const RightsAction> rights_actions() { return actions; }

std::string Function::key() const {
    return host.empty() ? std::to_string(code) : std::string(host);
}

std::span<const WorkArea> work_areas() { return areas; }

const Function* function_of(std::string_view key) {
    for (const WorkArea& area : areas)
        for (const Function& function : area.functions)
            if (function.key() == key) return &function;
    return nullptr;
}

bool for_administrators_only(std::string_view key) { return key == "users" || key == "roles"; }

} // namespace host
