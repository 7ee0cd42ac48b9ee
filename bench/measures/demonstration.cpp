// The whole of the demonstration books: three years typed through the forms, checked, published.
#include <filesystem>

#include "app/demo/demo_books.h"
#include "bench/measures/all.h"

namespace bench {

std::vector<Row> demonstration(const BigBooks& books) {
    const auto file = std::filesystem::path(books.file).parent_path() / "bench-demonstration.zf";
    const auto remove = [&] { std::filesystem::remove(file); };
    Row all = measure_ours("the demonstration books, whole", 1,
                           {[&] {
                                app::create_demo_books(
                                    file, "",
                                    [](const std::string&, std::int64_t, std::int64_t) {
                                        return true;
                                    });
                            },
                            remove});
    all.budget_ms = 15'000;
    remove();
    return {all};
}

} // namespace bench
