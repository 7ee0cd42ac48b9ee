// The table of functions.
#include "desktop/navigation/functions.h"

namespace desktop {
namespace {

constexpr Function vouchers[] = {{661, "录凭证"}, {662, "凭证审核"}, {663, "凭证登帐"}};
constexpr Function ledgers[] = {{684, "科目汇总表"}, {685, "明细分类帐"}, {686, "总分类帐"},
                                {689, "试算平衡表"}, {690, "现金,银行存款日记帐"}};
constexpr Function statements[] = {{671, "资产负债表"}, {673, "利 润 表"}, {672, "现金流量表"}};
constexpr Function period[] = {{667, "结转损溢"}, {668, "期末结帐"}};
constexpr Function trade[] = {
    {630, "销售收款 · 外币"}, {631, "销售收款"},       {632, "销售收款明细表"},
    {633, "销售收款汇总表"},  {641, "采购付款"},       {642, "采购付款明细表"},
    {643, "采购付款汇总表"},  {646, "其他收款单"},     {647, "其他付款单"}};
constexpr Function cash[] = {{648, "银行存取款单"}, {650, "现金银行总帐"},
                             {652, "现金银行日记帐"}, {653, "收支明细表"}};
constexpr Function masterdata[] = {
    {681, "会计科目"},   {682, "凭证字"},       {683, "常用摘要"},     {687, "收支类别"},
    {691, "现金流量项目"}, {699, "会计科目初始"}, {628, "期初应收款"}, {629, "期初应付款"}};

constexpr WorkArea areas[] = {
    {"凭证", "file-pen-line", 'V', vouchers},   {"帐簿", "book-open", 'B', ledgers},
    {"报表", "chart-column", 'R', statements},  {"期末", "calendar-check", 'P', period},
    {"应收应付", "arrow-left-right", 'A', trade}, {"现金银行", "landmark", 'C', cash},
    {"基础资料", "library", 'M', masterdata}};

} // namespace

std::span<const WorkArea> work_areas() { return areas; }

std::string_view function_name(int code) {
    for (const WorkArea& area : areas)
        for (const Function& function : area.functions)
            if (function.code == code) return function.name;
    return {};
}

} // namespace desktop
