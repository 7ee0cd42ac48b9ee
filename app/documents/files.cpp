// Spreadsheets and PDF behind the host's door to files.
#include "app/documents/files.h"

#include "app/documents/spreadsheet.h"

namespace app {

std::string Files::write_spreadsheet(const host::Sheet& sheet, const std::string& path) {
    return app::write_spreadsheet(sheet, path);
}

std::string Files::write_pdf(const host::PaperDocument& document, const std::string& path) {
    return pdf_ ? pdf_(document, path) : host::cannot_write(path);
}

} // namespace app
