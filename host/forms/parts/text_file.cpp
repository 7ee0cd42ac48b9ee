// Text files: where to, and what went wrong.
#include "host/forms/parts/text_file.h"

#include <filesystem>
#include <fstream>

#include "host/contract/U_function.h"
#include "host/ports/host.h"
#include "host/values/text.h"

namespace host {

namespace {

std::string file_name_of(const std::string& title) {
    std::string name;
    for (const char c : replaced(title, " ", ""))
        if (std::string_view("/\\:*?\"<>|").find(c) == std::string_view::npos) name += c;
    return name + ".csv";
}

} // namespace

void save_text_as(const std::string& title, const std::function<std::string()>& text,
                  const std::string& done) {
    const auto path = the_host().ui->choose_file_to_save("导出" + title, file_name_of(title));
    if (!path || path->empty()) return;
    const std::string content = text(); // made before the file is touched
    std::ofstream file(std::filesystem::path(*path), std::ios::binary | std::ios::trunc);
    file << content;
    file.close();
    DISPINFO(file ? done + *path
                  : "文件“" + *path + "”不能写入，请换一个位置，或关闭正在使用它的程序后再试。", 5);
}

std::string csv_field(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
    return "\"" + replaced(text, "\"", "\"\"") + "\"";
}

} // namespace host
