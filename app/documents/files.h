// Spreadsheets and PDF behind the host's door to files.
#pragma once

#include <functional>
#include <string>

#include "host/ports/document_files.h"

namespace app {

// Writes a document as PDF; "" or the sentence that says what kept it from being written.
using PdfWriter = std::function<std::string(const host::PaperDocument&, const std::string& path)>;

class Files final : public host::DocumentFiles {
public:
    // PDF is offered from then on; null: it is not.
    void offer_pdf(PdfWriter pdf) { pdf_ = std::move(pdf); }

    std::string write_spreadsheet(const host::Sheet& sheet, const std::string& path) override;
    bool offers_pdf() const override { return pdf_ != nullptr; }
    std::string write_pdf(const host::PaperDocument& document, const std::string& path) override;

private:
    PdfWriter pdf_;
};

} // namespace app
