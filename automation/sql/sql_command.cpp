// Reads batches, runs them, prints what they deliver.
#include "automation/sql/sql_command.h"

#include "automation/sql/batches.h"
#include "automation/sql/result_json.h"
#include "automation/sql/text_table.h"

namespace automation {

using nlohmann::ordered_json;

bool run_sql(engines::Session& session, std::istream& in, std::ostream& out,
             std::ostream& errors) {
    bool all_well = true;
    for (std::string batch; read_batch(in, batch);) {
        const CollectedResult result = collect(session, batch);
        for (const ResultSet& set : result.sets) {
            print_table(set, out);
            out << '(' << set.rows.size() << " 行)\n\n";
        }
        for (const std::string& message : result.messages) out << message << '\n';
        if (result.outcome.affected > 0) out << "(写入 " << result.outcome.affected << " 行)\n\n";
        out.flush();
        if (const auto& error = result.outcome.error) {
            all_well = false;
            errors << "错误 " << error->number << ",第 " << error->line << " 行第 "
                   << error->column << " 列: " << error->text << std::endl;
        }
    }
    return all_well;
}

namespace {

// Text that is not UTF-8 is shown with replacement characters: an answer line is always JSON.
std::string one_line(const ordered_json& answer) {
    return answer.dump(-1, ' ', false, ordered_json::error_handler_t::replace);
}

ordered_json refusal(const char* text) {
    const ordered_json error = {{"number", 0}, {"line", 0}, {"column", 0}, {"text", text}};
    return {{"affected", 0}, {"error", error}};
}

ordered_json answer_to(engines::Session& session, const std::string& line) {
    const ordered_json request = ordered_json::parse(line, nullptr, false);
    if (!request.is_object()) return refusal("这一行不是 JSON 对象");
    ordered_json answer = ordered_json::object();
    answer["id"] = request.value("id", ordered_json());
    const auto sql = request.find("sql");
    answer.update(sql != request.end() && sql->is_string()
                      ? json_of(collect(session, sql->get<std::string>()))
                      : refusal("缺少文本 \"sql\""));
    return answer;
}

} // namespace

bool run_sql_json_lines(engines::Session& session, std::istream& in, std::ostream& out) {
    for (std::string line; std::getline(in, line);) {
        if (line.find_first_not_of(" \t\r") == std::string::npos) continue;
        out << one_line(answer_to(session, line)) << std::endl;
    }
    return true;
}

} // namespace automation
