// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <string>
#include <string_view>

/// Joining and splitting paths of this machine, as texts and as the bytes that the system takes.
namespace twk {

/// Separator of local paths.
inline constexpr TextView path_separator = u"/";

/// The name in the folder. A folder that ends in the separator gets no second one.
Text joined_path(TextView folder, TextView name);
template <class... More> Text joined_path(TextView folder, TextView name, const More&... more) {
    return joined_path(joined_path(folder, name), more...);
}

/// What stands behind the last separator; the whole when there is none.
TextView last_name(TextView path);
std::string_view last_name(std::string_view path);

/// What stands before the last separator, the root for a name right below it. Without a separator: nothing of
/// a text, "." of bytes.
Text folder_of(TextView path);
std::string folder_of(std::string_view path);

/// The path with another last name.
std::string with_last_name(std::string_view path, std::string_view name);

} // namespace twk
