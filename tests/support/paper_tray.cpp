// Remembers documents and spreadsheets.
#include "tests/support/paper_tray.h"

#include "host/forms/parts/sheet_export.h"

namespace tests {

bool PrintedPaper::says(const std::string& text, std::size_t page) const {
    const auto& texts = pages.at(page).texts;
    return std::any_of(texts.begin(), texts.end(),
                       [&](const host::PaperText& one) { return one.text == text; });
}

std::vector<std::string> PrintedPaper::line_of(const std::string& text, std::size_t page) const {
    const auto& texts = pages.at(page).texts;
    const auto found = std::find_if(texts.begin(), texts.end(), [&](const host::PaperText& one) {
        return one.text == text;
    });
    std::vector<host::PaperText> line;
    for (const host::PaperText& one : texts)
        if (found != texts.end() && one.box.top == found->box.top) line.push_back(one);
    std::stable_sort(line.begin(), line.end(), [](const auto& a, const auto& b) {
        return a.box.left < b.box.left;
    });
    std::vector<std::string> words;
    for (const host::PaperText& one : line) words.push_back(one.text);
    return words;
}

std::string PaperTray::write_spreadsheet(const host::Sheet& sheet, const std::string&) {
    exported.push_back(host::sheet_as_csv(sheet));
    return "";
}

std::string PaperTray::write_pdf(const host::PaperDocument& document, const std::string& path) {
    PrintedPaper paper{document.title(), path, document.size(), {}};
    for (int i = 0; i < document.page_count(); ++i) paper.pages.push_back(document.page(i));
    printed.push_back(std::move(paper));
    return "";
}

} // namespace tests
