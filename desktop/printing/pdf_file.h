// A document as a PDF file.
#pragma once

#include <string>

class QPageLayout;

namespace host {
class PaperDocument;
}

namespace desktop {

// Works without a window too: a program that shows nothing gets what drawing needs on the first
// call. Returns "" or the sentence that says what kept the file from being written; a file that was
// begun and given up is removed.
std::string write_pdf(const host::PaperDocument& document, const std::string& path);

// The document's paper without margins: a page brings its own.
QPageLayout layout_of(const host::PaperDocument& document);

} // namespace desktop
