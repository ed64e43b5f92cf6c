// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <vector>

namespace twk {

/// Visible text of a page's body: tags, scripts, style sheets, comments and hidden form fields dropped, words
/// kept; blocks and line breaks end a line (CR LF), runs of white space become one blank.
Text visible_text(TextView html);
/// The same through the HTML parser, whatever the page: `visible_text` spares it for pages as this program
/// writes them.
Text parsed_visible_text(TextView html);

/// Addresses of the page's `a href` elements in document order, as written.
std::vector<Text> page_links(TextView html);
/// The same, resolved against the page's address.
std::vector<Text> page_links(TextView html, TextView base);

} // namespace twk
