// SPDX-License-Identifier: MIT
#include "desktop/tool_tips.h"

#include <QEvent>
#include <QHelpEvent>
#include <QToolTip>
#include <QWidget>

namespace twk {

namespace {

/// About as much as a screen holds.
constexpr qsizetype longest = 4000;

class FullText : public QObject {
  public:
    FullText(QWidget& widget, std::function<QString(QPoint)> text_at)
        : QObject(&widget), widget_(widget), text_at_(std::move(text_at)) {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::ToolTip) return false;
        const auto& help = static_cast<const QHelpEvent&>(*event);
        QString text = text_at_(help.pos());
        if (text.isEmpty()) return false;
        if (text.size() > longest) text = text.left(longest) + QStringLiteral(" ...");
        // As rich text it is broken into lines.
        QToolTip::showText(help.globalPos(),
                           QStringLiteral("<p>") + text.toHtmlEscaped() + QStringLiteral("</p>"), &widget_);
        return true;
    }

  private:
    QWidget& widget_;
    std::function<QString(QPoint)> text_at_;
};

} // namespace

void show_full_text(QWidget& widget, std::function<QString(QPoint)> text_at) {
    new FullText(widget, std::move(text_at));
}

} // namespace twk
