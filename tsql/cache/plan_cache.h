// Plans by the shape of their text, and by the literals that decided how they look.
#pragma once

#include "tsql/plan/plan.h"

#include <set>
#include <string>
#include <unordered_map>

namespace tsql {

// A shape is the text without its literals. Most plans serve every text of their shape; where a
// literal's value decided (TOP 5 PERCENT, ORDER BY 2, a style), its ordinal is pinned and each
// value has a plan of its own.
class PlanCache {
public:
    explicit PlanCache(std::size_t limit) : limit_(limit) {}

    // Null when there is none for this catalogue version.
    std::shared_ptr<const Plan> find(const std::string& shape, const LiteralValues& literals,
                                     std::uint64_t version);
    void keep(const std::string& shape, const LiteralValues& literals, std::set<int> pinned,
              std::shared_ptr<const Plan> plan);

private:
    struct Shape {
        std::set<int> pinned;
        std::unordered_map<std::string, std::shared_ptr<const Plan>> plans;
    };
    std::unordered_map<std::string, Shape> shapes_;
    std::size_t limit_;
    std::size_t count_ = 0;
};

} // namespace tsql
