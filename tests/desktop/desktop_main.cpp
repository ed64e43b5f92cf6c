// SPDX-License-Identifier: MIT
#include "page_server.h"
#include "quit_run.h"

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    // Off screen and without the browser engine's sandbox, which does not work for root.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    std::string name = argv[0], engine = "--webEngineArgs",
                rules = "--host-resolver-rules=MAP suggest.tarnwick.example 127.0.0.1:" +
                        std::to_string(twk::test::service_port());
    char* arguments[] = {name.data(), engine.data(), rules.data(), nullptr};
    int count = 3;
    QApplication app(count, arguments);
    // What the tests remember is theirs alone, and is forgotten.
    const QTemporaryDir remembered;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, remembered.path());
    testing::InitGoogleTest(&argc, argv);
    if (argc > 1 && std::string(argv[1]) == twk::test::quit_argument)
        return twk::test::quit_in_the_middle(argv[2]);
    return RUN_ALL_TESTS();
}
