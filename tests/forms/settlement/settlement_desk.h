// A person with receipts and payments on real books of March 2024; every figure derived by hand.
#pragma once

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/support/books.h"
#include "tests/support/person.h"

namespace tests {

// What stands open with the party 甲 (K1), the same on either side of trade:
//
//   初K1  opening       03-01   3600
//   S1    document      03-04  46800
//   S2    document      03-05  28431 less 1170 credited: 27261
//   T1    return        03-10  -3510
//   S3    document      03-12  52650
//   Q1    other amount  03-12   1280
//
// together 128081; an opening advance of 500 and two documents of the party 乙 (K2), 1000 and
// 2000, besides. Documents that are settled, returns paid in money and other parties' documents
// stand there to be passed over.
struct Side {
    const char* name;
    int code;
    std::string entry;      // "TF6631_1"
    std::string heads, lines, documents, others, returns; // tables
    std::string number;     // first of a new document
    std::string word;       // "收" or "付"
};
extern const Side receipts, payments;
extern const Side currency_receipts; // function 630, on the tables of the receipts

// The opening rows above, as a batch.
std::string open_documents(const Side& side);

class SettlementDesk : public testing::Test {
protected:
    explicit SettlementDesk(const Side& side);
    void TearDown() override; // whatever the forms did, the books are sound

    void new_document(const std::string& party = "K1"); // opens the list and a blank document
    void pay(const std::string& money, const std::string& discount = "");
    void save();                                        // and back to the list
    // "3600.00 46800.00 …": what each item listed gets.
    std::string shares();
    std::string columns(bool visible); // "C_NAME 单据类型,D8102NOID 单号,"
    std::string last_batch(); // what was saved last; "" when nothing was since the last mark
    // "SUMMONEY YSMONEY" of a document.
    std::string settled(const std::string& table, const std::string& document);
    std::string document(const std::string& number) { return settled(side.documents, number); }
    void expect_not_saved(const std::string& message);

    const Side& side;
    Books books;
    Person anna;
};

// Both sides, one after the other.
class BothSides : public SettlementDesk, public testing::WithParamInterface<const Side*> {
protected:
    BothSides() : SettlementDesk(*GetParam()) {}
};
std::string name_of_side(const testing::TestParamInfo<const Side*>& side);

} // namespace tests
