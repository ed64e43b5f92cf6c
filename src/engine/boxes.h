// SPDX-License-Identifier: MIT
#pragma once

#include "engine/counting/spaced_text.h"
#include "platform/text.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace twk {

class PageChoices;
struct Project;

inline constexpr int max_boxes = 101; ///< content boxes 0 to 100

/// The content boxes as the pages draw them.
struct Boxes {
    std::array<Text, max_boxes> contenidos;
    std::array<std::int16_t, max_boxes> palabras_caja{};
    std::array<std::vector<std::int16_t>, max_boxes> densidades; ///< [box][keyword], per cent
    std::array<std::int32_t, max_boxes> cids{};                  ///< their keys in the store
    std::int16_t ultima_caja = -1;

    /// Number of the box with the key; `PageRecord::no_box` when none of these has it.
    std::uint8_t number_of(std::int32_t cid) const;
    /// Prepared text of a box. Fault 9 outside 0 to 100.
    const Text& box(int index) const;
    /// The same with every sentence in a paragraph of its own, made when first asked for: many pages draw the
    /// same box.
    const Text& split(int index);
    /// That text, ready to get sentences.
    const SpacedText& spaced(int index);

  private:
    std::array<std::optional<Text>, max_boxes> split_;
    std::array<std::unique_ptr<const SpacedText>, max_boxes> spaced_;
};

/// A text with every sentence in a paragraph of its own.
Text split_sentences(TextView text);

/// Loads and measures the content boxes. The measuring leaves column 0 of the keyword table trimmed and in
/// lower case. Fault 9 at the 102nd box.
void measure_boxes(Boxes& boxes, Project& project, const PageChoices& choices);

} // namespace twk
