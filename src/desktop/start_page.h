// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLabel;
class QPushButton;
class QTreeWidget;

namespace twk {

/// What the main window shows while no screen is open: the projects, and what the program does.
class StartPage : public QWidget {
    Q_OBJECT
  public:
    StartPage();

    /// Reads the projects from the store; `last` is selected when it is among them.
    void list_projects(const QString& last);

  Q_SIGNALS:
    void project_wanted(const QString& name);
    void new_project_wanted();

  private:
    void open_selected();

    QTreeWidget* projects_;
    QLabel* trouble_;
    QPushButton* open_;
    QPushButton* new_;
    QPushButton* sample_;
};

} // namespace twk
