// SPDX-License-Identifier: MIT
#include "desktop/rail.h"

#include "desktop/looks.h"
#include "desktop/qt_text.h"
#include "desktop/tool_icons.h"
#include "shell/side_tools.h"

#include <QEnterEvent>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QVBoxLayout>

namespace twk {

namespace {

constexpr int margin = 8;
constexpr int gap = 10;

int mark_size(const QFontMetrics& metrics) {
    return metrics.height() + 6;
}

RailEntry::Mark mark_of(StepState state) {
    switch (state) {
    case StepState::done: return RailEntry::Mark::done;
    case StepState::missing: return RailEntry::Mark::missing;
    case StepState::not_yet: break;
    }
    return RailEntry::Mark::open;
}

} // namespace

RailEntry::RailEntry(QString name, int number, QWidget* parent)
    : QAbstractButton(parent), name_(std::move(name)), number_(number) {
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
    if (number_ == 0) mark_ = Mark::tool;
    describe();
}

void RailEntry::show_state(Mark mark, const QString& detail) {
    if (mark == mark_ && detail == detail_) return;
    mark_ = mark;
    detail_ = detail;
    describe();
    update();
}

void RailEntry::set_here(bool here) {
    if (here == here_) return;
    here_ = here;
    describe();
    update();
}

/// What a screen reader says.
void RailEntry::describe() {
    QStringList parts;
    parts << (number_ > 0 ? tr("Step %1 %2").arg(number_).arg(name_) : name_);
    if (here_) parts << tr("here");
    if (mark_ == Mark::done) parts << tr("done");
    if (mark_ == Mark::missing) parts << tr("something is missing");
    if (!detail_.isEmpty()) parts << detail_;
    setAccessibleName(parts.join(QStringLiteral(", ")));
}

QFont RailEntry::name_font(bool here) const {
    QFont name = font();
    name.setBold(here);
    return name;
}

QFont RailEntry::small_font() const {
    return sized(font(), Letters::small);
}

int RailEntry::words_begin() const {
    return margin + 1 + mark_size(fontMetrics()) + gap;
}

QSize RailEntry::sizeHint() const {
    const int height = number_ > 0 ? fontMetrics().height() + QFontMetrics(small_font()).height() + 12
                                   : fontMetrics().height() + 12;
    return {fontMetrics().averageCharWidth() * 20, height};
}

QSize RailEntry::minimumSizeHint() const {
    const int name = QFontMetrics(name_font(true)).horizontalAdvance(name_);
    return {words_begin() + name + margin, sizeHint().height()};
}

void RailEntry::enterEvent(QEnterEvent*) {
    update();
}
void RailEntry::leaveEvent(QEvent*) {
    update();
}

void RailEntry::paint_mark(QPainter& painter, const QRect& place, const QColor& text) const {
    const QPalette& colours = palette();
    if (number_ == 0) {
        paint_tool_icon(painter, place.adjusted(3, 3, -3, -3), objectName(), text);
        return;
    }
    const QColor accent = here_ ? text : colours.color(QPalette::Highlight);
    const QColor missing = here_ ? text : warning_colour(colours);
    QColor faint = text;
    faint.setAlphaF(0.45F);
    const QColor line = mark_ == Mark::done ? accent : mark_ == Mark::missing ? missing : faint;
    painter.setPen(QPen(line, 1.6));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QRectF(place).adjusted(1, 1, -1, -1));
    if (mark_ == Mark::done) {
        const QPointF at = place.topLeft();
        const qreal size = place.width();
        painter.setPen(QPen(line, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(
            QPolygonF({at + QPointF(size * 0.29, size * 0.52), at + QPointF(size * 0.44, size * 0.67),
                       at + QPointF(size * 0.72, size * 0.36)}));
        return;
    }
    painter.setPen(mark_ == Mark::missing ? missing : text);
    painter.drawText(place, Qt::AlignCenter, QString::number(number_));
}

void RailEntry::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPalette& colours = palette();
    const QRect room = rect().adjusted(4, 1, -4, -1);
    if (here_ || (underMouse() && isEnabled())) {
        QColor back = colours.color(QPalette::Highlight);
        if (!here_) back.setAlphaF(0.15F);
        painter.setPen(Qt::NoPen);
        painter.setBrush(back);
        painter.drawRoundedRect(room, 5, 5);
    }
    QColor text = colours.color(QPalette::Active, here_ ? QPalette::HighlightedText : QPalette::WindowText);
    if (!isEnabled()) text.setAlphaF(0.45F); // many a dark palette makes what is disabled hard to see
    const int size = mark_size(fontMetrics());
    const QRect mark(margin + 2, (height() - size) / 2, size, size);
    paint_mark(painter, mark, text);

    const QRect words(words_begin(), 0, width() - words_begin() - margin, height());
    const bool two_lines = number_ > 0 && !detail_.isEmpty();
    painter.setFont(name_font(here_));
    painter.setPen(text);
    const QString name = QFontMetrics(painter.font()).elidedText(name_, Qt::ElideRight, words.width());
    const int top = (height() - fontMetrics().height() - QFontMetrics(small_font()).height()) / 2;
    painter.drawText(two_lines ? words.adjusted(0, top, 0, 0) : words,
                     two_lines ? Qt::AlignTop | Qt::AlignLeft : Qt::AlignVCenter | Qt::AlignLeft, name);
    if (two_lines) {
        if (!here_) text = mark_ == Mark::missing ? warning_colour(colours) : faded(text);
        painter.setFont(small_font());
        painter.setPen(text);
        painter.drawText(words.adjusted(0, top + fontMetrics().height(), 0, 0), Qt::AlignTop | Qt::AlignLeft,
                         QFontMetrics(small_font()).elidedText(detail_, Qt::ElideRight, words.width()));
    }
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = room;
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

QLabel* Rail::heading(const QString& text) {
    auto* const label = new QLabel(text, this);
    QFont small = sized(label->font(), Letters::small);
    small.setBold(true);
    label->setFont(small);
    label->setContentsMargins(margin + 2, 10, margin, 2);
    label->setForegroundRole(QPalette::WindowText);
    return label;
}

Rail::Rail() {
    setObjectName(QStringLiteral("rail"));
    setAccessibleName(tr("Steps and tools"));
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 6, 0, 6);
    column->setSpacing(0);
    project_ = new QLabel(this);
    project_->setObjectName(QStringLiteral("rail_project"));
    project_->setTextFormat(Qt::PlainText);
    project_->setContentsMargins(margin + 2, 4, margin, 4);
    project_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    QFont large = sized(project_->font(), Letters::heading);
    large.setBold(true);
    project_->setFont(large);
    column->addWidget(project_);

    const WizardState state = look_at_wizard();
    for (int i = 0; i < wizard_steps; ++i) {
        const WizardStep& step = state.steps[static_cast<std::size_t>(i)];
        auto* const entry = new RailEntry(to_qt(Text(step.name)), i + 1, this);
        entry->setObjectName(QStringLiteral("rail_step_%1").arg(i + 1));
        entry->setToolTip(tr("Ctrl+%1").arg(i + 1));
        connect(entry, &QAbstractButton::clicked, this, [this, i] { Q_EMIT step_wanted(i + 1); });
        column->addWidget(entry);
        steps_[static_cast<std::size_t>(i)] = entry;
    }
    column->addWidget(heading(tr("TOOLS")));
    for (const SideTool& tool : side_tools()) {
        auto* const entry = new RailEntry(to_qt(Text(tool.name)), 0, this);
        entry->setObjectName(QStringLiteral("rail_") + QString::fromLatin1(tool.screen));
        connect(entry, &QAbstractButton::clicked, this, [this, &tool] { Q_EMIT tool_wanted(&tool); });
        column->addWidget(entry);
        tools_.push_back(entry);
    }
    column->addStretch(1);
    show_state(state);
}

void Rail::show_state(const WizardState& state) {
    project_->setText(state.project.empty() ? tr("No project") : to_qt(state.project));
    project_->setToolTip(project_->text());
    for (std::size_t i = 0; i < steps_.size(); ++i) {
        const WizardStep& step = state.steps[i];
        steps_[i]->show_state(mark_of(step.state), to_qt(step.detail));
        QString tip = tr("%1 (Ctrl+%2)").arg(to_qt(Text(step.name))).arg(i + 1);
        if (!step.reason.empty()) tip += u'\n' + to_qt(step.reason);
        steps_[i]->setToolTip(tip);
    }
    for (std::size_t i = 0; i < tools_.size(); ++i) {
        const SideTool& tool = side_tools()[i];
        const bool ready = can_open(tool);
        tools_[i]->setEnabled(ready);
        tools_[i]->setToolTip(ready ? QString() : to_qt(Text(tool.hint)));
    }
}

void Rail::show_front(const std::string& screen) {
    const int step = step_of(screen);
    for (int i = 0; i < wizard_steps; ++i) steps_[static_cast<std::size_t>(i)]->set_here(step == i + 1);
    for (std::size_t i = 0; i < tools_.size(); ++i) tools_[i]->set_here(screen == side_tools()[i].screen);
}

} // namespace twk
