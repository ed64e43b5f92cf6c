// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <string>
#include <string_view>

/// Texts as the bytes of files. Reading takes a UTF-8 mark, else valid UTF-8, else Windows-1252.
namespace twk {

/// How a text is written. All-ASCII text is plain unless it is `marked`.
enum class TextKind {
    list,    ///< UTF-8 without the mark
    page,    ///< UTF-8 with the mark in front when it holds more than ASCII
    marked,  ///< UTF-8 with the mark, ASCII too
    windows, ///< Windows-1252; as a page when a character has no place in it
};

std::string encode_text(TextView text, TextKind kind);
/// Kind of a file's bytes; `plain` for ASCII without the mark.
TextKind kind_of_bytes(std::string_view bytes, TextKind plain);
Text decode_text(std::string_view bytes);
/// Whether decoding gives back what was encoded: no half of a surrogate pair stands alone.
bool reads_back(TextView text);

} // namespace twk
