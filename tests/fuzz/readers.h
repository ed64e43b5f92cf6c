// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// Any bytes as files that the program reads: what must hold for every input. A breach is std::logic_error.
/// All inputs of a process share one application folder.
namespace twk::fuzz {

/// As a settings file: loaded, saved, and loaded again. Gives whether it could be saved.
bool settings(std::string_view bytes);
/// As a keyword list, general when the first byte is odd: what the list shows is what the store holds. Gives
/// the number of keywords.
int keywords(std::string_view bytes);
/// As a list of page names, behind a byte that tells how many there are: never more names than there were.
int page_names(std::string_view bytes);

} // namespace twk::fuzz
