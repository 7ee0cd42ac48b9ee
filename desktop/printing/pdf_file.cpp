// Writes pages one after the other into a PDF file.
#include "desktop/printing/pdf_file.h"

#include <QFile>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>

#include "desktop/printing/page_painter.h"
#include "desktop/theme/text.h"
#include "host/ports/document_files.h"
#include "host/ports/host.h"

namespace desktop {
namespace {

constexpr int dots_per_inch = 600, pages_between_reports = 20;

void need_application() {
    static int count = 1;
    static char name[] = "zhangfang";
    static char* arguments[] = {name, nullptr};
    if (QCoreApplication::instance()) return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // For the rest of the program's life.
    [[maybe_unused]] static auto* const application = new QGuiApplication(count, arguments);
}

// Long documents tell how far they are and can be stopped.
bool goes_on(const host::PaperDocument& document, int page) {
    const int count = document.page_count();
    host::UserInterface* ui = host::the_host().ui;
    if (!ui || count <= 2 * pages_between_reports || page % pages_between_reports != 0) return true;
    return ui->progress("正在打印 " + document.title(), page, count);
}

void tell_end(const host::PaperDocument& document) {
    host::UserInterface* ui = host::the_host().ui;
    if (ui && document.page_count() > 2 * pages_between_reports) ui->progress("", 1, 1);
}

bool write_pages(const host::PaperDocument& document, QPdfWriter& writer, QPainter& painter) {
    PagePainter pages;
    scale_to_paper(painter, dots_per_inch);
    for (int i = 0; i < document.page_count(); ++i) {
        if (!goes_on(document, i) || (i > 0 && !writer.newPage())) return false;
        pages.paint(painter, document.page(i));
    }
    return true;
}

} // namespace

QPageLayout layout_of(const host::PaperDocument& document) {
    const host::PaperSize size = document.size();
    const bool across = size.width > size.height;
    const QSizeF upright(qMin(size.width, size.height) / 100.0,
                         qMax(size.width, size.height) / 100.0);
    return QPageLayout(QPageSize(upright, QPageSize::Millimeter, QString(),
                                 QPageSize::FuzzyMatch),
                       across ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF());
}

std::string write_pdf(const host::PaperDocument& document, const std::string& path) {
    need_application();
    bool written = false;
    {
        QPdfWriter writer(qt(path));
        writer.setTitle(qt(document.title()));
        writer.setCreator(QStringLiteral("帐房"));
        writer.setResolution(dots_per_inch);
        writer.setPageLayout(layout_of(document));
        QPainter painter;
        if (!painter.begin(&writer)) return host::cannot_write(path);
        written = write_pages(document, writer, painter);
        tell_end(document);
        written = painter.end() && written;
    }
    if (written) return "";
    QFile::remove(qt(path));
    return "没有打印完，文件“" + path + "”没有保留。";
}

} // namespace desktop
