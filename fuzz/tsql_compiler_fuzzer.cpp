// Any bytes at all, compiled against the catalogue of full books: a plan or a refusal, no crash.
#include "tests/support/schema_catalog.h"

namespace {

tsql::Catalog& books() {
    static tsql::Catalog catalog = [] {
        tsql::Catalog made;
        support::fill_catalog(made);
        return made;
    }();
    return catalog;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static tsql::Compiler compiler(books(), {});
    support::compile_refusal(compiler, {reinterpret_cast<const char*>(data), size});
    return 0;
}
