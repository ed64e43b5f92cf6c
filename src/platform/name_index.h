#pragma once

#include <string>

/// Finds names on disk without regard to case. A folder's names are read once and kept for as long as the
/// folder has not changed, so that a run which makes thousands of files in it does not read it thousands of
/// times.
namespace twk::NameIndex {

/// The path as it stands on disk, an exact match first; where nothing is found, as given.
std::string find(const std::string& path);

/// The program has made or removed an entry itself: what is kept stays right.
void entry_added(const std::string& path);
void entry_removed(const std::string& path);

/// Drops all that is kept.
void forget();

/// The path with another last name.
std::string with_last_name(const std::string& path, const std::string& name);

} // namespace twk::NameIndex
