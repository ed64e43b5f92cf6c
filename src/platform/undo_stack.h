// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <functional>
#include <memory>
#include <vector>

namespace twk {

/// What the commands of a screen have deleted, to be taken back, the newest command first. It lives as long
/// as its screen.
class UndoStack {
  private:
    struct Step;

  public:
    /// Brings one deleted thing back. False when something stands in its way, which it has told the user;
    /// then it has changed nothing. Any fault of a write.
    using TakeBack = std::function<bool()>;

    /// One command under way. What it has deleted can be taken back as soon as it is told, so that a command
    /// that breaks off is undone as far as it got.
    class Command {
      public:
        /// `kind` is what it deletes: "keyword".
        Command(UndoStack& stack, Text kind) : stack_(stack), kind_(std::move(kind)) {}
        void deleted(Text name, TakeBack take_back);

      private:
        UndoStack& stack_;
        Text kind_;
        std::shared_ptr<Step> step_; ///< none before the first deletion
    };

    bool empty() const { return steps_.empty(); }
    /// What `undo` would bring back: "keyword 'cedar roof'" or "3 keywords"; empty when there is nothing.
    Text description() const;
    /// Takes the newest command back, its last deletion first, as far as nothing stands in the way; the rest
    /// stays on the stack, likewise after a fault.
    void undo();

  private:
    struct Step {
        Text kind;
        Text name; ///< of the first deletion
        std::vector<TakeBack> deletions;
    };
    std::vector<std::shared_ptr<Step>> steps_;
};

} // namespace twk
