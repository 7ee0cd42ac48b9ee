// Pages as they are drawn: in a PDF file, in the preview, in their boxes.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QPageLayout>
#include <QPainter>
#include <QRegularExpression>
#include <QTableView>
#include <QTest>

#include "desktop/printing/page_canvas.h"
#include "desktop/printing/pdf_file.h"
#include "desktop/printing/preview_dialog.h"
#include "desktop/theme/text.h"
#include "host/ports/host.h"
#include "host/printing/grid_sheet.h"
#include "host/printing/table_document.h"
#include "tests/desktop/desk.h"
#include "tests/desktop/forms.h"
#include "tests/support/long_ledger.h"
#include "tests/support/temporary_folder.h"

namespace tests {
namespace {

using host::PaperPage;
using host::PaperText;

const host::PaperWords words = {"苏州嘉禾贸易有限公司", "李敏", "2016-06-28 17:20"};

int pages_in(const std::string& file) {
    QFile pdf(desktop::qt(file));
    if (!pdf.open(QIODevice::ReadOnly)) return -1;
    const QByteArray bytes = pdf.readAll();
    if (!bytes.startsWith("%PDF-")) return -1;
    return static_cast<int>(bytes.count("/Type /Page\n") + bytes.count("/Type /Page\r"));
}

// Where a page drawn at 10 units a pixel has ink.
QRect ink(const PaperPage& page) {
    QImage image(300, 200, QImage::Format_Grayscale8);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(0.1, 0.1);
    desktop::PagePainter().paint(painter, page);
    painter.end();
    QRect inked;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qGray(image.pixel(x, y)) < 128) inked |= QRect(x, y, 1, 1);
    return inked;
}

TEST(Printing, a_pdf_file_has_the_pages_of_its_document) {
    TemporaryFolder folder;
    const host::TableDocument document(long_ledger(200), words);
    ASSERT_GT(document.page_count(), 4);
    const std::string file = folder.file("帐.pdf");
    EXPECT_EQ(desktop::write_pdf(document, file), "");
    EXPECT_EQ(pages_in(file), document.page_count());
}

TEST(Printing, a_pdf_file_that_cannot_be_written_is_told) {
    const host::TableDocument document(long_ledger(1), words);
    EXPECT_NE(desktop::write_pdf(document, "/no/such/folder/a.pdf").find("不能写入"),
              std::string::npos);
}

TEST(Printing, paper_lies_as_the_document_does) {
    host::Sheet wide = long_ledger(1);
    EXPECT_EQ(desktop::layout_of(host::TableDocument(wide, words)).orientation(),
              QPageLayout::Portrait);
    for (int i = 0; i < 5; ++i) wide.columns.push_back({.field = "E", .title = "栏", .width = 14});
    wide.cell = [](int, int) { return host::SheetCell{}; };
    const QPageLayout layout = desktop::layout_of(host::TableDocument(wide, words));
    EXPECT_EQ(layout.orientation(), QPageLayout::Landscape);
    EXPECT_EQ(layout.pageSize().id(), QPageSize::A4);
}

TEST(Printing, a_text_stays_inside_its_box_however_long_it_is) {
    for (const char* text : {"短", "收常熟盛源建材货款及代垫运费并转付第二季度的仓库租金和水电费用",
                             "1234567890123456.78", "Wwwwwwwwwwwwwwwwwwwwwwwwwwwwwww"}) {
        PaperPage page;
        page.texts.push_back({.box = {500, 500, 1200, 600}, .text = text, .size = 90});
        const QRect inked = ink(page);
        ASSERT_FALSE(inked.isEmpty()) << text;
        EXPECT_TRUE(QRect(48, 48, 124, 64).contains(inked))
            << text << ": " << inked.left() << "," << inked.top() << " to " << inked.right() << ","
            << inked.bottom();
    }
}

TEST(Printing, a_text_stands_at_its_edge_of_the_box) {
    const auto placed = [](host::Alignment align) {
        PaperPage page;
        page.texts.push_back({.box = {500, 500, 2000, 600}, .text = "88", .align = align});
        return ink(page);
    };
    EXPECT_LT(placed(host::Alignment::Left).left(), 55);
    EXPECT_GT(placed(host::Alignment::Right).right(), 243);
    EXPECT_NEAR(placed(host::Alignment::Center).center().x(), 150, 2);
}

TEST(Printing, paper_follows_the_columns_of_the_screen) {
    Desk desk;
    auto* form = new TListForm(9);
    form->Show();
    desk.settle();
    auto* header = desk.window().findChild<QTableView*>("grid")->horizontalHeader();
    const host::Sheet before = host::sheet_of(form->DBGridEh, "表");
    header->moveSection(2, 0);
    header->resizeSection(2, 300);
    desk.settle();
    const host::Sheet after = host::sheet_of(form->DBGridEh, "表");
    EXPECT_EQ(after.columns[0].field, before.columns[2].field);
    EXPECT_EQ(after.columns[1].field, before.columns[0].field);
    EXPECT_GT(after.columns[0].width, 2 * before.columns[2].width);
}

TEST(Printing, the_preview_turns_pages_and_zooms_by_key) {
    Desk desk;
    const host::TableDocument document(long_ledger(90), words);
    const int pages = document.page_count();
    ASSERT_GT(pages, 2);
    desktop::PreviewDialog preview(document, &desk.window());
    auto* place = preview.findChild<QLabel*>("place");
    auto* canvas = static_cast<desktop::PageCanvas*>(preview.findChild<QWidget*>("page"));
    desk.when_modal([&] {
        const auto press = [&](int key) {
            QTest::keyClick(&preview, static_cast<Qt::Key>(key));
            desk.settle();
        };
        const QString count = QString::number(pages);
        EXPECT_EQ(place->text(), "第 1 页 共 " + count + " 页");
        press(Qt::Key_PageDown);
        EXPECT_EQ(place->text(), "第 2 页 共 " + count + " 页");
        desk.keep("preview_ledger");
        press(Qt::Key_End);
        press(Qt::Key_PageDown);
        EXPECT_EQ(preview.page(), pages - 1) << "behind the last page there is none";
        press(Qt::Key_Home);
        EXPECT_EQ(preview.page(), 0);
        const int width = canvas->width();
        press(Qt::Key_Plus);
        EXPECT_GT(canvas->width(), width);
        press(Qt::Key_0);
        desk.keep("preview_whole_page");
        EXPECT_LE(canvas->height(), preview.height());
        QTest::keyClick(&preview, Qt::Key_Escape);
    });
    preview.run();
    EXPECT_FALSE(preview.isVisible());
}

} // namespace
} // namespace tests
