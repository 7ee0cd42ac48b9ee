// Long work on screen: how far it has come, and the way to stop it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QTest>

#include "tests/desktop/desk.h"

#include "desktop/dialogs/progress_dialog.h"
#include "desktop/renderers/hinted_button.h"
#include "host/ports/host.h"

namespace tests {
namespace {

QDialog* dialog() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == "progress" && window->isVisible())
            return static_cast<QDialog*>(window);
    return nullptr;
}

// Reports again and again for so many milliseconds, as work does; false when it was stopped.
bool work(desktop::ProgressDialog& progress, int milliseconds, std::int64_t done = 3,
          std::int64_t total = 10) {
    QElapsedTimer since;
    since.start();
    while (since.elapsed() < milliseconds) {
        if (!progress.report("凭证登帐: 正在写入帐套…", done, total)) return false;
        QTest::qSleep(20);
    }
    return true;
}

TEST(Progress, short_work_shows_no_dialog) {
    desktop::ProgressDialog progress;
    EXPECT_TRUE(work(progress, 200));
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_TRUE(progress.report("", 1, 1));
}

TEST(Progress, long_work_shows_how_far_it_is_until_it_ends) {
    desktop::ProgressDialog progress;
    EXPECT_TRUE(work(progress, 700));
    ASSERT_NE(dialog(), nullptr);
    QStringList texts;
    for (const QLabel* label : dialog()->findChildren<QLabel*>()) texts << label->text();
    EXPECT_TRUE(texts.contains(QStringLiteral("凭证登帐: 正在写入帐套…")));
    EXPECT_TRUE(texts.contains(QStringLiteral("3 / 10")));
    EXPECT_TRUE(progress.report("", 1, 1));
    EXPECT_EQ(dialog(), nullptr);
}

TEST(Progress, escape_stops_the_work) {
    desktop::ProgressDialog progress;
    EXPECT_TRUE(work(progress, 600));
    ASSERT_NE(dialog(), nullptr);
    QTest::keyClick(dialog(), Qt::Key_Escape);
    EXPECT_FALSE(progress.report("凭证登帐", 4, 10));
    EXPECT_FALSE(progress.report("凭证登帐", 5, 10)) << "it stays stopped";
    progress.report("", 1, 1);
    EXPECT_TRUE(progress.report("下一次", 0, 10)) << "the next work begins anew";
    progress.end();
}

TEST(Progress, the_button_stops_the_work) {
    desktop::ProgressDialog progress;
    EXPECT_TRUE(work(progress, 600, 7, 0)); // of unknown length
    ASSERT_NE(dialog(), nullptr);
    auto* button = dialog()->findChild<QPushButton*>();
    ASSERT_NE(button, nullptr);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_FALSE(work(progress, 100));
    progress.end();
}

TEST(Progress, stands_over_the_frame) {
    Desk desk;
    QElapsedTimer since;
    since.start();
    while (since.elapsed() < 700)
        ASSERT_TRUE(host::the_host().ui->progress("凭证登帐: 正在写入帐套…", 13, 24));
    ASSERT_NE(dialog(), nullptr);
    EXPECT_EQ(dialog()->parentWidget(), &desk.window());
    EXPECT_EQ(QApplication::activeModalWidget(), dialog()) << "nothing else can be done meanwhile";
    desk.keep("progress");
    host::the_host().ui->progress("", 1, 1);
    EXPECT_EQ(dialog(), nullptr);
}

} // namespace
} // namespace tests
