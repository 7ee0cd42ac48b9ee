// What the dialogs of the two lists share: party, number or summary, dates, type.
#include "module/other_documents/other_document_filter.h"

namespace module {

namespace {

const DocumentFilterKind receipts_asked_for{.caption = "其他收款单 · 查询条件",
                                            .table = "D651",
                                            .party = customers,
                                            .party_caption = "客户代号",
                                            .text_caption = "单 号/摘 要",
                                            .searched = {"noid", "ZY"}};

const DocumentFilterKind payments_asked_for{.caption = "其他付款单 · 查询条件",
                                            .table = "D652",
                                            .party = suppliers,
                                            .party_caption = "供应商号",
                                            .text_caption = "单 号/摘 要",
                                            .searched = {"noid", "ZY"}};

const DocumentFilterKind& filter_of(const OtherDocumentKind& kind) {
    return &kind == &other_receipts ? receipts_asked_for : payments_asked_for;
}

} // namespace

OtherDocumentFilter::OtherDocumentFilter(TForm* parent, const OtherDocumentKind& kind)
    : DocumentFilter(parent, filter_of(kind)) {
    CB1.Items = std::vector<std::string>{"全部", kind.settled, kind.open};
    std::vector<LayoutNode> all = rows();
    all.insert(all.end(), {Columns({Field("单据类型", CB1, 12), Spring()}),
                           Buttons({&btn_ok, &btn_Cancel})});
    layout = Rows(all);
}

void OtherDocumentFilter::InitForm() {
    DocumentFilter::InitForm();
    CB1.set_index(0);
}

std::string OtherDocumentFilter::more_terms() const {
    if (CB1.item_index() <= 0) return "";
    return " AND (c=" + std::to_string(CB1.item_index() - 1) + ")";
}

std::string OtherDocumentFilter::more_description() const {
    return CB1.item_index() <= 0 ? "" : "     ●单据类型:" + CB1.Text.get();
}

} // namespace module
