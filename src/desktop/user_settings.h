// SPDX-License-Identifier: MIT
#pragma once

#include <QSettings>
#include <QString>

class QMainWindow;
class QSplitter;
class QWidget;

/// What is remembered for the user from one start to the next.
namespace twk {

/// The settings, made once; written to disk by Qt when the program is idle or ends.
QSettings& user_settings();

void keep_window(const QMainWindow& window, const QSplitter& splitter);
/// A place that no screen shows any more is corrected.
void restore_window(QMainWindow& window, QSplitter& splitter);

/// The splitters inside a screen's window, by its name and theirs.
void keep_splitters(const QWidget& screen);
void restore_splitters(QWidget& screen);

QString last_project();
void set_last_project(const QString& name);
/// The folder in which a file was chosen last; empty before the first time.
QString last_folder();
void set_last_folder(const QString& folder);

} // namespace twk
