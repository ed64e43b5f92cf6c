// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <optional>

namespace twk {

/// Visible words of a page and the ends of its lines, as they are met; single blanks between words.
class VisibleLines {
  public:
    /// `most` is about how many units to expect.
    explicit VisibleLines(std::size_t most = 0) { out_.reserve(most); }

    void words(TextView text);
    void cell_end() { blank_ = true; }
    void line_end();
    Text take() { return std::move(out_); }

  private:
    Text out_;
    bool blank_ = false;
};

/// Visible text of a page that holds nothing but what the pages of this program hold, and nests it so that
/// the parser's tree keeps its order; nothing for any other page. What it gives equals the text that
/// the HTML parser leads to.
std::optional<Text> plain_page_text(TextView html);

} // namespace twk
