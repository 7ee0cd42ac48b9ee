// Hands the pages chosen to the printer chosen.
#include "desktop/printing/print_job.h"

#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include "desktop/dialogs/message_dialog.h"
#include "desktop/printing/page_painter.h"
#include "desktop/printing/pdf_file.h"
#include "desktop/theme/text.h"
#include "host/printing/paper.h"

namespace desktop {
namespace {

// Paper smaller than the document's own: everything is set smaller, so that nothing is lost.
double scale_for(const host::PaperDocument& document, const QPrinter& printer) {
    const QSizeF paper = printer.pageLayout().fullRect(QPageLayout::Millimeter).size() * 100;
    const host::PaperSize size = document.size();
    return qMin(1.0, qMin(paper.width() / size.width, paper.height() / size.height) + 0.005);
}

bool print_pages(const host::PaperDocument& document, QPrinter& printer) {
    const bool some = printer.printRange() == QPrinter::PageRange;
    const int first = some ? qMax(printer.fromPage(), 1) - 1 : 0;
    const int end = some ? qMin(printer.toPage(), document.page_count()) : document.page_count();
    QPainter painter;
    if (first >= end || !painter.begin(&printer)) return false;
    PagePainter pages;
    scale_to_paper(painter, printer.resolution() * scale_for(document, printer));
    for (int i = first; i < end; ++i) {
        if (i > first && !printer.newPage()) return false;
        pages.paint(painter, document.page(i));
    }
    return painter.end();
}

} // namespace

bool printer_at_hand() { return !QPrinterInfo::availablePrinterNames().isEmpty(); }

void print_document(const host::PaperDocument& document, QWidget* over) {
    const QString title = qt(document.title());
    if (!printer_at_hand())
        return show_message(title, "没有找到打印机：请先安装打印机，或在预览中存为 PDF 文件!", over);
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(title);
    printer.setFullPage(true);
    printer.setPageLayout(layout_of(document));
    printer.setFullPage(true);
    QPrintDialog dialog(&printer, over);
    dialog.setWindowTitle(QStringLiteral("打印 ") + title);
    dialog.setMinMax(1, document.page_count());
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, true);
    if (dialog.exec() != QDialog::Accepted) return;
    if (!print_pages(document, printer))
        show_message(title, "打印没有完成，请检查打印机和页码范围后再试!", over);
}

} // namespace desktop
