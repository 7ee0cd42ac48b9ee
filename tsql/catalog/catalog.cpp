// The catalogue's names and states. Changes copy the map: there are few objects and few changes,
// and a copy is what makes a state cheap to keep.
#include "tsql/catalog/catalog.h"

#include <algorithm>

namespace tsql {

namespace {

char upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
}

bool is_temporary_name(std::string_view name) {
    return name.starts_with('#');
}

} // namespace

std::string fold_name(std::string_view name) {
    std::string folded(name);
    std::transform(folded.begin(), folded.end(), folded.begin(), upper);
    return folded;
}

bool NameLess::operator()(std::string_view left, std::string_view right) const {
    return std::lexicographical_compare(
        left.begin(), left.end(), right.begin(), right.end(), [](char a, char b) {
            return static_cast<unsigned char>(upper(a)) < static_cast<unsigned char>(upper(b));
        });
}

std::shared_ptr<const CatalogObject> Catalog::find(std::string_view name) const {
    const Objects& objects = is_temporary_name(name) ? *temporary_ : *objects_;
    const auto found = objects.find(name);
    return found == objects.end() ? nullptr : found->second;
}

std::shared_ptr<const CatalogTable> Catalog::find_table(std::string_view name) const {
    return std::dynamic_pointer_cast<const CatalogTable>(find(name));
}

std::shared_ptr<const CatalogModule> Catalog::find_module(CatalogKind kind,
                                                          std::string_view name) const {
    auto object = find(name);
    if (!object || object->kind != kind) {
        return nullptr;
    }
    return std::dynamic_pointer_cast<const CatalogModule>(object);
}

std::vector<std::shared_ptr<const CatalogTrigger>>
Catalog::triggers_of(std::string_view table) const {
    std::vector<std::shared_ptr<const CatalogTrigger>> found;
    for (auto [it, end] = triggers_.equal_range(table); it != end; ++it) {
        found.push_back(it->second);
    }
    return found;
}

void Catalog::apply(const CatalogChange& change) {
    auto& target = change.temporary ? temporary_ : objects_;
    auto next = std::make_shared<Objects>(*target);
    for (const std::string& name : change.drop) {
        next->erase(name);
    }
    for (const auto& object : change.put) {
        next->insert_or_assign(object->name, object);
    }
    target = std::move(next);
    if (!change.temporary) {
        index_triggers();
    }
}

void Catalog::restore(const State& state) {
    temporary_ = state.temporary;
    if (objects_ != state.objects) {
        objects_ = state.objects;
        index_triggers();
    }
}

void Catalog::index_triggers() {
    ++version_;
    triggers_.clear();
    for (const auto& [name, object] : *objects_) {
        if (object->kind == CatalogKind::Trigger) {
            auto trigger = std::static_pointer_cast<const CatalogTrigger>(object);
            triggers_.emplace(trigger->table, trigger);
        }
    }
}

StoredObject Catalog::store(const CatalogObject& object) {
    StoredObject stored{static_cast<int>(object.kind), object.name, object.definition};
    const auto* trigger = dynamic_cast<const CatalogTrigger*>(&object);
    if (trigger != nullptr && trigger->disabled) {
        stored.definition.insert(0, "--disabled\n");
    }
    return stored;
}

} // namespace tsql
