// Numbers and keys of vouchers: counted from 1 within a period and a word.
#include "module/vouchers/voucher_number.h"

#include "host/contract/U_dataop.h"
#include "host/contract/U_function.h"
#include "host/dataset/client_dataset.h"
#include "host/values/sql_text.h"
#include "host/values/text.h"

namespace module {

std::string read_current_period(const std::string& function) {
    TClientDataSet parameter;
    opensql(parameter, function, "SELECT id,param  FROM d6600 where id=2");
    return parameter.IsEmpty() ? "" : trimmed(parameter.FieldByName("param").AsText());
}

std::int64_t next_voucher_number(const std::string& function, const std::string& period,
                                 const std::string& word) {
    TClientDataSet number;
    opensql(number, function,
            "SELECT * FROM ( SELECT 1 AS I  UNION ALL SELECT MAX(PZZ_H)+1 AS I  FROM D6601 "
            "WHERE (PZQJ = " +
                quoted(period) + ") AND (PZZ = " + quoted(word) + ")) A ORDER BY I DESC ");
    return number.FieldByName("I").AsInteger();
}

std::string voucher_key(const std::string& period, const std::string& word,
                        const std::string& number) {
    return getno(period + word, number, 3);
}

bool voucher_key_taken(const std::string& function, const std::string& key,
                       const std::string& own_key) {
    const bool changing = !own_key.empty();
    TClientDataSet vouchers;
    opensql(vouchers, function,
            "SELECT NOID FROM D6601 WHERE (NOID=" + quoted(key) + ")" +
                (changing ? "or  (NOID=" + quoted(own_key) + ")" : ""));
    return vouchers.RecordCount() > (changing ? 1 : 0);
}

} // namespace module
