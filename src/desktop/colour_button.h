// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

namespace twk {

/// A button that shows the colour which a text box of its form holds: "#rrggbb", a colour's name, or a
/// decimal number with blue, green and red from the high byte down.
class ColourButton : public QPushButton {
    Q_OBJECT
    Q_PROPERTY(QString source READ source WRITE setSource)
  public:
    explicit ColourButton(QWidget* parent = nullptr);

    /// Name of the text box.
    const QString& source() const { return source_; }
    void setSource(const QString& source) { source_ = source; }

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void show_colour(const QString& text);

    QString source_;
    bool watching_ = false;
};

} // namespace twk
