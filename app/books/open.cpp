// Opening, and what to say when it fails.
#include "app/books/open.h"

#include <filesystem>

#include "app/books/books_version.h"
#include "app/books/engines.h"
#include "app/data/error_sentence.h"
#include "app/refusal.h"
#include "automation/sql/collected_result.h"

namespace app {

namespace {

// What every set of books has and nothing else does.
constexpr std::string_view proof = "SELECT VALUE FROM SYS_SETTING WHERE NAME = 'company'";

} // namespace

std::string opening_sentence(const std::string& books, const engines::Error& error) {
    std::error_code ignored;
    if (is_file(books) && error.category == engines::ErrorCategory::access) {
        if (std::filesystem::is_directory(books, ignored))
            return "打不开帐套 " + books + ": 这是一个文件夹,请给出帐套文件!";
        if (!std::filesystem::exists(books, ignored))
            return "找不到帐套 " + books + ",请检查路径,或用 zhangfang new 建立新帐套!";
    }
    return "打不开帐套 " + books + ": " + sentence_for(error);
}

std::unique_ptr<engines::Session> open_database(const std::string& books, Access access) {
    const engines::Engine& engine = engine_for(books);
    engines::OpenOptions options;
    options.read_only = access == Access::ReadOnly;
    options.durable = access != Access::Unpublished;
    options.create = books == ":memory:";
    options.before_commit = {"SYS_TRANSACTION_END", "SYS_6601_GONE"};
    try {
        return engine.open(books, options);
    } catch (const engines::Failure& failure) {
        throw Refusal(opening_sentence(books, failure.error()));
    }
}

std::unique_ptr<engines::Session> open_books(const std::string& books, Access access) {
    auto session = open_database(books, access);
    const auto result = automation::collect(*session, proof);
    if (result.outcome.ok() && !result.sets.empty() && !result.sets[0].rows.empty()) {
        const std::string too_new = why_too_new(*session);
        if (!too_new.empty()) throw Refusal("打不开帐套 " + books + ": " + too_new);
        return session;
    }
    using engines::ErrorCategory;
    if (result.outcome.ok() || result.outcome.error->category == ErrorCategory::syntax)
        throw Refusal("打不开帐套 " + books + ": 这个数据库里没有帐套的数据表!");
    throw Refusal(opening_sentence(books, *result.outcome.error));
}

} // namespace app
