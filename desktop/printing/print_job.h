// A document on a printer.
#pragma once

class QWidget;

namespace host {
class PaperDocument;
}

namespace desktop {

bool printer_at_hand();
// Asks which printer, which pages and how many copies, and prints; says what kept it from printing.
void print_document(const host::PaperDocument& document, QWidget* over);

} // namespace desktop
