// SPDX-License-Identifier: MIT
#include "quit_run.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    // Off screen and without the browser engine's sandbox, which does not work for root.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    if (argc > 1 && std::string(argv[1]) == twk::test::quit_argument)
        return twk::test::quit_in_the_middle(argv[2]);
    return RUN_ALL_TESTS();
}
