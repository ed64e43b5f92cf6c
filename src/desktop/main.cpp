// SPDX-License-Identifier: MIT
#include "desktop/qt_desktop.h"
#include "desktop/qt_text.h"
#include "shell/mdi1.h"

#include <QApplication>
#include <QDir>

#include <unistd.h>

namespace {

/// Where there is no graphics card, OpenGL itself is drawn by the processor: pages come sooner without it,
/// and the program starts in half the time. A user's own choice of a backend stays.
void draw_without_graphics_card() {
    if (!QDir(QStringLiteral("/dev/dri")).isEmpty(QDir::System | QDir::NoDotAndDotDot) ||
        qEnvironmentVariableIsSet("QT_QUICK_BACKEND"))
        return;
    qputenv("QT_QUICK_BACKEND", "software");
    qputenv("QT_XCB_GL_INTEGRATION", "none");
}

} // namespace

int main(int, char** argv) {
    int arguments = 1; // the command line is not read, Qt's own options included
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    // The sandbox of the browser engine does not work for root; without this the first page would end the
    // program.
    if (geteuid() == 0) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    draw_without_graphics_card();
    QApplication app(arguments, argv);
    QApplication::setApplicationName(QStringLiteral("Tarnwick"));
    QGuiApplication::setDesktopFileName(QStringLiteral("tarnwick"));
    twk::set_app_path(twk::from_qt(QApplication::applicationDirPath()));

    twk::QtDesktop desktop;
    twk::set_desktop(&desktop);
    twk::screens().dispatch([] { twk::screens().show<twk::mdi1>(); });
    desktop.window().show();
    const int status = QApplication::exec();
    twk::set_desktop(nullptr);
    return status;
}
