// When the cache is full it starts anew: a program sends far fewer shapes than the limit.
#include "tsql/cache/plan_cache.h"

namespace tsql {

namespace {

std::string pinned_values(const std::set<int>& pinned, const LiteralValues& literals) {
    std::string text;
    for (const int ordinal : pinned) {
        text += literals[static_cast<std::size_t>(ordinal)].text;
        text += '\x1f';
    }
    return text;
}

} // namespace

std::shared_ptr<const Plan> PlanCache::find(const std::string& shape, const LiteralValues& literals,
                                            std::uint64_t version) {
    const auto found = shapes_.find(shape);
    if (found == shapes_.end()) {
        return nullptr;
    }
    Shape& known = found->second;
    const auto plan = known.plans.find(pinned_values(known.pinned, literals));
    if (plan == known.plans.end()) {
        return nullptr;
    }
    if (plan->second->catalog_version != version) {
        count_ -= known.plans.size();
        shapes_.erase(found);
        return nullptr;
    }
    return plan->second;
}

void PlanCache::keep(const std::string& shape, const LiteralValues& literals, std::set<int> pinned,
                     std::shared_ptr<const Plan> plan) {
    if (count_ >= limit_) {
        shapes_.clear();
        count_ = 0;
    }
    Shape& known = shapes_[shape];
    for (const int ordinal : known.pinned) {
        pinned.insert(ordinal);
    }
    if (pinned != known.pinned) {
        count_ -= known.plans.size();
        known.plans.clear();
        known.pinned = std::move(pinned);
    }
    if (known.plans.insert_or_assign(pinned_values(known.pinned, literals), std::move(plan))
            .second) {
        ++count_;
    }
}

} // namespace tsql
