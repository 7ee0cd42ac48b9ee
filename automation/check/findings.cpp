// Collects the texts of one check.
#include "automation/check/findings.h"

#include "automation/sql/collected_result.h"

namespace automation {

namespace {

std::string joined(const TextRow& row) {
    std::string text;
    for (const TextCell& cell : row) {
        if (!text.empty()) text += ' ';
        text += cell.value_or("");
    }
    return text;
}

} // namespace

void Findings::Texts::add(std::string text) {
    if (texts_.size() < most)
        texts_.push_back(std::move(text));
    else
        ++left_out_;
}

std::vector<std::string> Findings::Texts::take() {
    if (left_out_ > 0) texts_.push_back("还有 " + std::to_string(left_out_) + " 处同样的问题");
    return std::move(texts_);
}

void add_rows(engines::Session& session, std::string_view query, Findings& findings) {
    for (const TextRow& row : rows_of(session, query)) findings.add(joined(row));
}

void add_hints(engines::Session& session, std::string_view query, Findings& findings) {
    for (const TextRow& row : rows_of(session, query)) findings.hint(joined(row));
}

} // namespace automation
