// SPDX-License-Identifier: MIT
#include "platform/undo_stack.h"

#include "platform/numbers.h"

#include <utility>

namespace twk {

void UndoStack::Command::deleted(Text name, TakeBack take_back) {
    if (!step_) {
        step_ = std::make_shared<Step>(Step{kind_, std::move(name), {}});
        stack_.steps_.push_back(step_);
    }
    step_->deletions.push_back(std::move(take_back));
}

Text UndoStack::description() const {
    if (steps_.empty()) return {};
    const Step& step = *steps_.back();
    const std::size_t count = step.deletions.size();
    if (count == 1) return step.kind + u" '" + step.name + u"'";
    return to_text(static_cast<int>(count)) + u" " + step.kind + (step.kind.ends_with(u'x') ? u"es" : u"s");
}

void UndoStack::undo() {
    if (steps_.empty()) return;
    const std::shared_ptr<Step> step = steps_.back();
    while (!step->deletions.empty()) {
        if (!step->deletions.back()()) return;
        step->deletions.pop_back();
    }
    std::erase(steps_, step);
}

} // namespace twk
