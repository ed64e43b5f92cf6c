// SPDX-License-Identifier: MIT
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

/// Whether what is kept tells that there is no entry of that name, in whatever case. Only beside a sole
/// writer; false where it is not known.
bool is_missing(const std::string& path);

/// Whether what is kept tells that there is an entry of this very name. Only beside a sole writer.
bool is_there(const std::string& path);

/// Drops all that is kept.
void forget();

/// While one lives, this program counts as the only one that changes the folders it looks at: each is checked
/// once, and the kept names tell what is there. For the short time in which one page is made.
class SoleWriter {
  public:
    SoleWriter();
    ~SoleWriter();
    SoleWriter(const SoleWriter&) = delete;
    SoleWriter& operator=(const SoleWriter&) = delete;
};

} // namespace twk::NameIndex
