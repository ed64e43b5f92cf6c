// SPDX-License-Identifier: MIT
#pragma once

#include "shell/wizard_state.h"

#include <QAbstractButton>
#include <array>
#include <string>
#include <vector>

class QLabel;

namespace twk {

struct SideTool;

/// One line of the rail: a mark, a name, and a few words below it.
class RailEntry : public QAbstractButton {
    Q_OBJECT
  public:
    enum class Mark { open, missing, done, tool };

    RailEntry(QString name, int number, QWidget* parent);

    void show_state(Mark mark, const QString& detail);
    /// Whether this is the screen in front.
    void set_here(bool here);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    void paint_mark(QPainter& painter, const QRect& place, const QColor& text) const;
    void describe();
    QFont name_font(bool here) const;
    QFont small_font() const;
    int words_begin() const;

    const QString name_;
    const int number_; ///< of the step, 0 for a tool
    QString detail_;
    Mark mark_ = Mark::open;
    bool here_ = false;
};

/// The rail beside the room: the project, the six steps with their state, the tools.
class Rail : public QWidget {
    Q_OBJECT
  public:
    Rail();

    void show_state(const WizardState& state);
    /// Marks the screen in front by its name.
    void show_front(const std::string& screen);

  Q_SIGNALS:
    void step_wanted(int number);
    void tool_wanted(const twk::SideTool* tool);

  private:
    QLabel* heading(const QString& text);

    QLabel* project_;
    std::array<RailEntry*, wizard_steps> steps_{};
    std::vector<RailEntry*> tools_;
};

} // namespace twk
