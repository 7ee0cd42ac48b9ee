// The goods of the firm with their packing units, found by code, bar code, name or pinyin.
#include "module/invoicing/goods.h"

#include <algorithm>

#include "host/contract/U_dataop.h"
#include "host/contract/Zpy.h"
#include "host/values/code_match.h"
#include "module/invoicing/invoice_statements.h"

namespace module {

void Goods::load(const std::string& function) {
    TClientDataSet rows;
    opensql(rows, function, select_goods());
    goods_.clear();
    for (rows.First(); !rows.Eof(); rows.Next()) {
        const auto text = [&rows](const char* field) { return rows.FieldByName(field).AsText(); };
        const std::string name = text("WL_NAME");
        goods_.push_back({text("WL_ID"), name, GetPY(name), text("WL_GG"), text("ADW"),
                          text("DW_ID"), text("DW_NAME"), text("TM")});
    }
}

const Good* Goods::find(const std::string& typed) const {
    for (const Good& good : goods_)
        if (!good.bar_code.empty() && same_text(good.bar_code, typed)) return &good;
    for (const Good& good : goods_)
        if (same_text(good.code, typed)) return &good;
    return nullptr;
}

const Good* Goods::in_unit(const std::string& code, const std::string& unit) const {
    for (const Good* good : units_of(code))
        if (same_text(good->unit, unit) || same_text(good->unit_name, unit)) return good;
    return nullptr;
}

std::vector<const Good*> Goods::units_of(const std::string& code) const {
    std::vector<const Good*> units;
    for (const Good& good : goods_)
        if (same_text(good.code, code)) units.push_back(&good);
    return units;
}

std::vector<const Good*> Goods::matching(const std::string& typed) const {
    std::vector<const Good*> found = rows_fitting(goods_, typed);
    // A good in several units is offered once; its units stand side by side.
    const auto same_good = [](const Good* a, const Good* b) { return a->code == b->code; };
    found.erase(std::unique(found.begin(), found.end(), same_good), found.end());
    return found;
}

std::vector<const Good*> Goods::all() const { return matching(""); }

} // namespace module
