// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <vector>

namespace twk {

inline constexpr int max_columns = 101; ///< columns 0 to 100

/// Words of every row: column 0 the keyword, columns 1 up its subkeywords. Cells outside are fault 9.
class KeywordTable {
  public:
    void resize(int rows) { rows_.assign(static_cast<std::size_t>(rows), {}); }
    int rows() const { return static_cast<int>(rows_.size()); }
    /// A cell that was never set is empty.
    const Text& at(int row, int column = 0) const;
    Text& cell(int row, int column = 0);

  private:
    std::vector<std::vector<Text>> rows_;
};

} // namespace twk
