// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <memory>

namespace twk {

/// The synonym dictionary of a run, read when first needed and again when a row has changed.
class Synonyms {
  public:
    Synonyms();
    ~Synonyms();
    Synonyms(const Synonyms&) = delete;
    Synonyms& operator=(const Synonyms&) = delete;

    /// The text with the words of its first part replaced, both ways: a word by its synonym and a synonym by
    /// its word. How large the part is depends on the seconds of the clock. Tags get blanks around them, runs
    /// of blanks become one. Faults of the store come out.
    Text sinonimo(Text t);

  private:
    class Dictionary;
    struct Known;
    Known& known();
    std::unique_ptr<Known> known_;
};

} // namespace twk
