// Writes what forms show into files of other programs: spreadsheets and PDF.
#pragma once

#include <string>

namespace host {

class PaperDocument;
struct Sheet;

// Each call writes a whole file, over one that is there, and answers "" or the sentence that says
// what kept it from being written.
class DocumentFiles {
public:
    virtual ~DocumentFiles() = default;
    virtual std::string write_spreadsheet(const Sheet& sheet, const std::string& path) = 0;
    virtual bool offers_pdf() const = 0;
    virtual std::string write_pdf(const PaperDocument& document, const std::string& path) = 0;
};

// "文件“a.xlsx”不能写入，…": for a file that cannot be opened or written.
inline std::string cannot_write(const std::string& path) {
    return "文件“" + path + "”不能写入，请换一个位置，或关闭正在使用它的程序后再试。";
}

} // namespace host
