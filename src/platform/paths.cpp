// SPDX-License-Identifier: MIT
#include "platform/paths.h"

namespace twk {

namespace {

/// Index behind the last separator, 0 without one.
template <class View> std::size_t behind_separator(View path) {
    return path.rfind(typename View::value_type{'/'}) + 1; // npos + 1 is 0
}

template <class View> View before_separator(View path) {
    const std::size_t behind = behind_separator(path);
    return path.substr(0, behind > 1 ? behind - 1 : behind);
}

} // namespace

Text joined_path(TextView folder, TextView name) {
    Text path(folder);
    if (!folder.ends_with(path_separator)) path += path_separator;
    return path.append(name);
}

TextView last_name(TextView path) {
    return path.substr(behind_separator(path));
}

std::string_view last_name(std::string_view path) {
    return path.substr(behind_separator(path));
}

Text folder_of(TextView path) {
    return Text(before_separator(path));
}

std::string folder_of(std::string_view path) {
    const std::string_view folder = before_separator(path);
    return folder.empty() ? "." : std::string(folder);
}

std::string with_last_name(std::string_view path, std::string_view name) {
    return std::string(path.substr(0, behind_separator(path))).append(name);
}

} // namespace twk
