// What must be true of a voucher's lines before it is saved.
#include "module/vouchers/voucher_line.h"

namespace module {
namespace {

std::optional<LineRefusal> why_line_is_unfinished(const VoucherLine& line, int position) {
    if (line.has_account() && !line.has_summary()) return LineRefusal{"摘要不能为空!", position};
    const bool named = line.has_summary() && line.has_account();
    if (named && (line.debit + line.credit).is_zero()) {
        return LineRefusal{"请填写借或贷的金额!", position};
    }
    return std::nullopt;
}

bool balanced(const std::vector<VoucherLine>& lines, bool booked_only) {
    Amount difference;
    for (const VoucherLine& line : lines) {
        if (!booked_only || line.is_booked()) difference += line.debit - line.credit;
    }
    return difference.is_zero();
}

} // namespace

std::optional<LineRefusal> why_not_saved(const std::vector<VoucherLine>& lines) {
    const int count = static_cast<int>(lines.size());
    int with_account = 0;
    for (int i = count - 1; i >= 0; --i) {
        if (auto refusal = why_line_is_unfinished(lines[i], i)) return refusal;
        if (lines[i].has_account()) ++with_account;
    }
    if (count < 2 || with_account < 2) {
        return LineRefusal{"必须有两行以上完整地填写科目，及借或贷金额!"};
    }
    // Also the lines that will be left out count here, because the totals on the screen show them.
    if (!balanced(lines, false) || !balanced(lines, true)) return LineRefusal{"借贷不平衡!"};
    for (int i = 0; i < count; ++i) {
        if (lines[i].is_booked() && !lines[i].has_account()) {
            return LineRefusal{
                "第 " + std::to_string(i + 1) + " 行没有科目!请录入科目代号,或删除该行。", i};
        }
    }
    return std::nullopt;
}

std::vector<VoucherLine> lines_to_save(const std::vector<VoucherLine>& lines) {
    std::vector<VoucherLine> kept;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const bool repeats = i > 0 && lines[i].summary == lines[i - 1].summary;
        const bool remark = lines[i].has_summary() && !repeats;
        if (lines[i].is_booked() || remark) kept.push_back(lines[i]);
    }
    return kept;
}

} // namespace module
