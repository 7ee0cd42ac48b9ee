// Where documents and spreadsheets go in a test: nothing is written, everything is remembered.
#pragma once

#include <string>
#include <vector>

#include "host/ports/document_files.h"
#include "host/printing/paper.h"

namespace tests {

// A document as it was printed.
struct PrintedPaper {
    std::string title;
    std::string path;
    host::PaperSize size;
    std::vector<host::PaperPage> pages;

    // Is the text on that page?
    bool says(const std::string& text, std::size_t page = 0) const;
    // Texts that stand on the same height as `text`, from left to right.
    std::vector<std::string> line_of(const std::string& text, std::size_t page = 0) const;
};

class PaperTray final : public host::DocumentFiles {
public:
    std::string write_spreadsheet(const host::Sheet& sheet, const std::string& path) override;
    bool offers_pdf() const override { return true; }
    std::string write_pdf(const host::PaperDocument& document, const std::string& path) override;

    std::vector<PrintedPaper> printed;
    std::vector<std::string> exported; // spreadsheets as comma-separated values
};

} // namespace tests
