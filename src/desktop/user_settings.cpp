// SPDX-License-Identifier: MIT
#include "desktop/user_settings.h"

#include <QMainWindow>
#include <QSplitter>

namespace twk {

namespace {

const QString window_place = QStringLiteral("Window/geometry");
const QString rail_width = QStringLiteral("Window/rail");
const QString project_key = QStringLiteral("Window/project");
const QString folder_key = QStringLiteral("Window/folder");

QString key_of(const QWidget& screen, const QSplitter& splitter) {
    return QStringLiteral("Splitters/%1.%2").arg(screen.objectName(), splitter.objectName());
}

/// Nothing is written, and no file touched, for what stays as it is.
void keep(const QString& key, const QVariant& value) {
    if (user_settings().value(key) != value) user_settings().setValue(key, value);
}

} // namespace

QSettings& user_settings() {
    static QSettings settings(QStringLiteral("Tarnwick"), QStringLiteral("Tarnwick"));
    return settings;
}

void keep_window(const QMainWindow& window, const QSplitter& splitter) {
    keep(window_place, window.saveGeometry());
    keep(rail_width, splitter.saveState());
    user_settings().sync(); // the program may end at once
}

void restore_window(QMainWindow& window, QSplitter& splitter) {
    window.restoreGeometry(user_settings().value(window_place).toByteArray());
    splitter.restoreState(user_settings().value(rail_width).toByteArray());
}

void keep_splitters(const QWidget& screen) {
    for (const QSplitter* each : screen.findChildren<QSplitter*>())
        keep(key_of(screen, *each), each->saveState());
}

void restore_splitters(QWidget& screen) {
    for (QSplitter* each : screen.findChildren<QSplitter*>())
        each->restoreState(user_settings().value(key_of(screen, *each)).toByteArray());
}

QString last_project() {
    return user_settings().value(project_key).toString();
}
void set_last_project(const QString& name) {
    keep(project_key, name);
}

QString last_folder() {
    return user_settings().value(folder_key).toString();
}
void set_last_folder(const QString& folder) {
    keep(folder_key, folder);
}

} // namespace twk
