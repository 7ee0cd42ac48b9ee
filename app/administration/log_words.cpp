// Captions of functions and operations, and batches cut into statements.
#include "app/administration/log_words.h"

#include <algorithm>

#include "host/contract/function_table.h"

namespace app {

const std::vector<LogOperation>& log_operations() {
    static const std::vector<LogOperation> operations = {
        {"Add", "新增"},     {"CopyAdd", "复制新增"}, {"Edit", "修改"},  {"Delete", "删除"},
        {"Audit", "审核"},   {"UnAudit", "反审核"},   {"Update", "保存"}, {"pass", "存为模板"},
        {"Password", "改密码"}, {"Upgrade", "升级"},  {"Red", "红字冲销"}, {"Number", "取单据号"},
        {"Sql", "执行语句"},  {"Restore", "恢复"}};
    return operations;
}

std::string operation_caption(std::string_view name) {
    const auto& all = log_operations();
    const auto found = std::ranges::find(all, name, &LogOperation::name);
    return std::string(found == all.end() ? name : found->caption);
}

std::string function_caption(std::string_view key) {
    if (key == "new") return "建立帐套";
    if (key == "sql") return "直接执行语句";
    if (key == "restore") return "从备份恢复";
    const host::Function* function = host::function_of(key);
    if (function == nullptr) return std::string(key);
    const std::string name(function->name);
    return function->code == 0 ? name : std::string(key) + " " + name;
}

std::string statement_a_line(std::string_view batch) {
    std::string lines;
    bool quoted = false;
    for (std::size_t i = 0; i < batch.size(); ++i) {
        lines += batch[i];
        if (batch[i] == '\'') quoted = !quoted;
        const bool more = batch.find_first_not_of(" \r\n", i + 1) != std::string_view::npos;
        if (batch[i] == ';' && !quoted && more) lines += '\n';
    }
    return lines;
}

} // namespace app
