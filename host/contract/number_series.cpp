// Document numbers: code, day, running number.
#include <algorithm>

#include "host/contract/U_dataop.h"
#include "host/dataset/client_dataset.h"
#include "host/ports/held_readings.h"
#include "host/values/errors.h"
#include "host/values/sql_text.h"
#include "host/values/text.h"

namespace host {

namespace {

constexpr int duplicate_key = 2627, duplicate_index_key = 2601;
constexpr int most_attempts = 200; // more users than any firm has at one counter

std::string padded(std::int64_t number) {
    const std::string digits = std::to_string(number);
    return digits.size() < 3 ? std::string(3 - digits.size(), '0') + digits : digits;
}

// The highest running number behind `prefix` that was handed out or stands in the table.
std::int64_t highest_number(const std::string& prefix, const std::string& table) {
    TClientDataSet taken;
    const std::string behind = " LIKE " + quoted(prefix + "%");
    opensql(taken, "", "SELECT NOID FROM SYS_NUMBER WHERE NOID" + behind +
                           " UNION SELECT NOID FROM " + table + " WHERE NOID" + behind);
    std::int64_t highest = 0;
    for (int row = 0; row < taken.RecordCount(); ++row) {
        const auto number = Amount::parse(trimmed(taken.text_at(row, 0)).substr(prefix.size()));
        if (number) highest = std::max(highest, number->units() / Amount::scale);
    }
    return highest;
}

} // namespace

// A number is taken by writing it down: whoever comes second is refused by the key and tries the
// next one.
std::string GetNOID(const std::string& code, const std::string& table, int) {
    const std::string day = replaced(the_host().clock->today().to_text(), "-", "").substr(2);
    const std::string prefix = code + day;
    std::int64_t number = highest_number(prefix, table);
    for (int attempt = 0; attempt < most_attempts; ++attempt) {
        const std::string noid = prefix + padded(++number);
        try {
            const HeldReadings none; // the key decides, not what the number was guessed from
            the_host().data->execute("INSERT INTO SYS_NUMBER (NOID) VALUES (" + quoted(noid) + ")",
                                     {code, noid, "Number"});
            return noid;
        } catch (const DataError& error) {
            if (error.number != duplicate_key && error.number != duplicate_index_key) throw;
        }
    }
    throw DataError("暂时取不到单据号，请稍后再试。", "no free number behind " + prefix);
}

} // namespace host
