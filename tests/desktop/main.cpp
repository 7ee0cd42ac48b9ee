// The desktop's tests need an application around them, and an end whatever happens.
#include <gtest/gtest.h>

#include <QApplication>

#include <csignal>
#include <unistd.h>

#include "desktop/theme/theme.h"

int main(int argc, char** argv) {
    ::alarm(300); // no test may hang: five minutes end the program with SIGALRM
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    desktop::apply_theme(application);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
