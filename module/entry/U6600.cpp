// Opens the form that belongs to the function code of a menu pick.
#include "module/entry/U6600.h"

#include "host/contract/U_function.h"
#include "host/ports/host.h"
#include "module/cash/U6648.h"
#include "module/cash/U6650.h"
#include "module/cash/U6652.h"
#include "module/cash/U6653.h"
#include "module/ledgers/U6684.h"
#include "module/ledgers/U6685.h"
#include "module/ledgers/U6686.h"
#include "module/ledgers/U6689.h"
#include "module/ledgers/U6690.h"
#include "module/masterdata/U6681.h"
#include "module/masterdata/U6682.h"
#include "module/masterdata/U6683.h"
#include "module/masterdata/U6687.h"
#include "module/masterdata/U6691.h"
#include "module/opening.h"
#include "module/other_documents/U6646.h"
#include "module/other_documents/U6647.h"
#include "module/period/U6667.h"
#include "module/period/U6668.h"
#include "module/period/U6699.h"
#include "module/receivables/U6628.h"
#include "module/receivables/U6629.h"
#include "module/receivables/U6632.h"
#include "module/receivables/U6633.h"
#include "module/receivables/U6642.h"
#include "module/receivables/U6643.h"
#include "module/settlement/U6630.h"
#include "module/settlement/U6631.h"
#include "module/settlement/U6641.h"
#include "module/statements/U6671.h"
#include "module/statements/U6672.h"
#include "module/statements/U6673.h"
#include "module/vouchers/U6661.h"
#include "module/vouchers/U6663.h"

namespace module {
namespace {

template <class Form, Form*& variable> void modeless(const Trecord& record, TForm* parent) {
    auto* form = new Form(parent);
    variable = form;
    form->Tag = record.code();
    open_or_release(form, [&record](Form& opened) { opened.InitForm(record); });
}

template <class Form, Form*& variable> void modal(const Trecord& record, TForm* parent) {
    the_host().ui->repaint_frame();
    const auto form = std::make_unique<Form>(parent);
    variable = form.get();
    const auto& user = record.user;
    form->SetUserParam(user[0], user[1], user[2], user[3], user[4], user[5]);
    form->InitForm(record);
    form->ShowModal();
}

struct Function {
    std::int32_t code;
    void (*open)(const Trecord& record, TForm* parent);
};

constexpr Function functions[] = {
    {628, modeless<TF6628, F6628>}, // 期初应收款
    {629, modeless<TF6629, F6629>}, // 期初应付款
    {630, modeless<TF6630, F6630>}, // 销售收款 · 外币
    {631, modeless<TF6631, F6631>}, // 销售收款
    {632, modeless<TF6632, F6632>}, // 销售收款明细表
    {633, modeless<TF6633, F6633>}, // 销售收款汇总表
    {641, modeless<TF6641, F6641>}, // 采购付款
    {642, modeless<TF6642, F6642>}, // 采购付款明细表
    {643, modeless<TF6643, F6643>}, // 采购付款汇总表
    {646, modeless<TF6646, F6646>}, // 其他收款单
    {647, modeless<TF6647, F6647>}, // 其他付款单
    {648, modeless<TF6648, F6648>}, // 银行存取款单
    {650, modeless<TF6650, F6650>}, // 现金银行总帐
    {652, modeless<TF6652, F6652>}, // 现金银行日记帐
    {653, modeless<TF6653, F6653>}, // 收支明细表
    {661, modeless<TF6661, F6661>}, // 录凭证
    {662, modeless<TF6661, F6661>}, // 凭证审核
    {663, modal<TF6663, F6663>},    // 凭证登帐
    {667, modal<TF6667, F6667>},    // 结转损溢
    {668, modal<TF6668, F6668>},    // 期末结帐
    {671, modeless<TF6671, F6671>}, // 资产负债表
    {672, modeless<TF6672, F6672>}, // 现金流量表
    {673, modeless<TF6673, F6673>}, // 利 润 表
    {681, modeless<TF6681, F6681>}, // 会计科目
    {682, modeless<TF6682, F6682>}, // 凭证字
    {683, modeless<TF6683, F6683>}, // 常用摘要
    {684, modeless<TF6684, F6684>}, // 科目汇总表
    {685, modeless<TF6685, F6685>}, // 明细分类帐
    {686, modeless<TF6686, F6686>}, // 总分类帐
    {687, modeless<TF6687, F6687>}, // 收支类别
    {689, modeless<TF6689, F6689>}, // 试算平衡表
    {690, modeless<TF6690, F6690>}, // 现金,银行存款日记帐
    {691, modeless<TF6691, F6691>}, // 现金流量项目
    {699, modeless<TF6699, F6699>}, // 会计科目初始
};

} // namespace

void open_function(const Trecord& record, TForm* parent) {
    const Trecord own = record;
    for (const Function& function : functions) {
        if (function.code == own.code()) return function.open(own, parent);
    }
    say_not_open(own.code());
}

void say_not_open(std::int32_t code) {
    DISPINFO("模块暂不开放!" + std::to_string(code), 5);
}

} // namespace module
