// STRING_AGG and CHECKSUM_AGG.
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "engines/sqlite/collation/compare_text.h"
#include "engines/sqlite/functions/families.h"

namespace engines {
namespace {

struct FreeValue {
    void operator()(sqlite3_value* value) const { sqlite3_value_free(value); }
};

struct Part {
    std::string text;
    std::unique_ptr<sqlite3_value, FreeValue> key;
};

struct Parts {
    std::vector<Part> parts;
    std::string separator;
    bool descending = false;
};

// SQLite keeps a pointer for us between rows.
Parts** slot(sqlite3_context* context, bool create) {
    return static_cast<Parts**>(
        sqlite3_aggregate_context(context, create ? static_cast<int>(sizeof(Parts*)) : 0));
}

// Order of keys: NULL, numbers, texts by the collation, bytes.
int compare_keys(sqlite3_value* a, sqlite3_value* b) {
    const auto rank = [](int type) {
        return type == SQLITE_NULL ? 0 : type == SQLITE_TEXT ? 2 : type == SQLITE_BLOB ? 3 : 1;
    };
    const int kind = rank(sqlite3_value_type(a));
    if (kind != rank(sqlite3_value_type(b))) return kind - rank(sqlite3_value_type(b));
    const tsql::Type none;
    const Stored left = read_stored(a, none);
    const Stored right = read_stored(b, none);
    if (kind == 2) return compare_text(left.text, right.text);
    if (kind == 3) return left.text.compare(right.text);
    if (left.form == Stored::Form::real || right.form == Stored::Form::real) {
        const double x = sqlite3_value_double(a);
        const double y = sqlite3_value_double(b);
        return (x > y) - (x < y);
    }
    return (left.integer > right.integer) - (left.integer < right.integer);
}

void add_part(sqlite3_context* context, int count, sqlite3_value** values) {
    if (sqlite3_value_type(values[0]) == SQLITE_NULL) return;
    Parts** parts = slot(context, true);
    if (parts == nullptr) return sqlite3_result_error_nomem(context);
    if (*parts == nullptr) *parts = new Parts;
    Runtime& runtime = *static_cast<Runtime*>(sqlite3_user_data(context));
    const Call call(context, count, values, runtime);
    (*parts)->separator = call.text(1);
    Part part{std::string(call.text(0)), nullptr};
    if (count == 4) {
        part.key.reset(sqlite3_value_dup(values[2]));
        (*parts)->descending = call.integer(3) != 0;
    }
    (*parts)->parts.push_back(std::move(part));
}

void give_parts(sqlite3_context* context) {
    Parts** kept = slot(context, false);
    if (kept == nullptr || *kept == nullptr) return sqlite3_result_null(context);
    const std::unique_ptr<Parts> parts(std::exchange(*kept, nullptr));
    std::stable_sort(parts->parts.begin(), parts->parts.end(), [&](const Part& a, const Part& b) {
        if (!a.key || !b.key) return false;
        const int order = compare_keys(a.key.get(), b.key.get());
        return parts->descending ? order > 0 : order < 0;
    });
    std::string text;
    for (std::size_t i = 0; i < parts->parts.size(); ++i) {
        if (i > 0) text += parts->separator;
        text += parts->parts[i].text;
    }
    sqlite3_result_text64(context, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

struct Checksum {
    std::int64_t count;
    std::int64_t bits;
};

void add_checksum(sqlite3_context* context, int, sqlite3_value** values) {
    if (sqlite3_value_type(values[0]) == SQLITE_NULL) return;
    auto* sum = static_cast<Checksum*>(sqlite3_aggregate_context(context, sizeof(Checksum)));
    if (sum == nullptr) return sqlite3_result_error_nomem(context);
    ++sum->count;
    sum->bits ^= sqlite3_value_int64(values[0]);
}

void give_checksum(sqlite3_context* context) {
    const auto* sum = static_cast<Checksum*>(sqlite3_aggregate_context(context, 0));
    if (sum == nullptr) return sqlite3_result_null(context);
    sqlite3_result_int64(context, sum->bits);
}

} // namespace

void register_text_aggregates(sqlite3* connection, Runtime& runtime) {
    constexpr int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    const auto aggregate = [&](const char* name, int count, auto step, auto value) {
        sqlite3_create_function_v2(connection, name, count, flags, &runtime, nullptr, step, value,
                                   nullptr);
    };
    aggregate("zf_string_agg", 2, add_part, give_parts);
    aggregate("zf_string_agg_by", 4, add_part, give_parts);
    aggregate("zf_checksum_agg", 1, add_checksum, give_checksum);
}

} // namespace engines
