// A person with a blank voucher before him, on the small company's books.
#include "tests/forms/vouchers/voucher_desk.h"

namespace tests {

void VoucherDesk::SetUp() {
    answer_as_small_books(data);
}

void VoucherDesk::start(PersonOptions options) {
    options.user_id = "anna";
    options.user_name = "李敏";
    anna = std::make_unique<Person>(data, std::move(options));
    anna->open(661);
}

void VoucherDesk::new_voucher() {
    if (!anna) start();
    anna->click("Act_Add");
    anna->expect_active("TF6661_1");
}

void VoucherDesk::type_balanced_lines() {
    anna->line(0, {{"ZY", "收货款"}, {"KM_ID", "1001"}, {"J", "100"}});
    anna->line(1, {{"ZY", "收货款"}, {"KM_ID", "1131"}, {"D", "100"}});
}

std::string VoucherDesk::last_batch() const {
    return data.executed().empty() ? "" : data.executed().back().batch;
}

} // namespace tests
