// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace twk {

/// Where the links of one page lead, as numbers of a `LinkBook`.
struct PageLinks {
    static constexpr std::uint32_t no_list = 0xFFFFFFFF;

    std::vector<std::uint32_t> own;   ///< places of the site, each once, in order of their numbers
    std::uint32_t siblings = no_list; ///< a list of the book that the page has besides, none of it in `own`
    std::uint32_t mentions = 0;       ///< times that the page says "href", whether an address follows or not
    bool local_path = false;          ///< a link holds a path of this machine
};

/// Knows every place of a site that a page links to. Pages of one folder share the list of their siblings, so
/// that a large site costs little more than a small one.
class LinkBook {
  public:
    /// Starts anew for a site on these servers, the main one first, whose pages lie in these folders of the
    /// project: `folders[i]` belongs to `servers[of_folder[i]]`.
    void begin(const std::vector<Text>& servers, const Text& project_folder);

    /// Reads the links of a page. `siblings` is the part of its text that it shares with others, or empty.
    PageLinks read(const Text& path, TextView text, TextView siblings);

    /// Servers, the main one first.
    const std::vector<Text>& servers() const { return servers_; }
    /// Number of the server that a folder of the project must be uploaded to; -1 for none.
    int server_of(const Text& folder) const;
    /// Number of the folder's place, the file named as on disk; made when there was none.
    std::uint32_t place(int server, TextView file);
    /// How many places there are. Each is a server and a path on it, without regard to case.
    std::size_t places() const { return names_.size(); }
    /// The place as an address.
    Text address(std::uint32_t place) const;
    const std::vector<std::uint32_t>& list(std::uint32_t siblings) const { return lists_[siblings]; }

  private:
    static constexpr std::uint32_t outside = 0xFFFFFFFF;

    struct Place {
        int server;
        Text file; ///< in lower case
    };
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(TextView text) const { return std::hash<TextView>()(text); }
    };
    using Numbers = std::unordered_map<Text, std::uint32_t, Hash, std::equal_to<>>;
    /// An address as pages of one server write it: its place, and the address that stood behind it last.
    /// Pages list their links in much the same order, so that one is mostly found by the one before it.
    struct Address {
        std::uint32_t place;
        std::pair<const Text, Address>* next = nullptr;
    };
    using Addresses = std::unordered_map<Text, Address, Hash, std::equal_to<>>;

    std::uint32_t resolved(int server, TextView address);
    Addresses::value_type& known(int server, TextView address);
    std::uint32_t looked_up(int server, TextView address, PageLinks& links);
    std::uint32_t read_siblings(int server, TextView text);
    /// Visits the address behind every "href" of the text; returns how many of these there are.
    template <class Visit> static std::uint32_t each_address(TextView text, Visit visit);

    std::vector<Text> servers_;
    Text project_folder_;
    std::unordered_map<Text, int> folders_;   ///< server of each folder, by name in lower case
    Numbers places_;                          ///< by server and file
    Addresses known_;                         ///< by server and address as written
    Addresses::value_type* latest_ = nullptr; ///< the address that was looked up last
    std::vector<Place> names_;
    std::vector<std::vector<std::uint32_t>> lists_;
    Text siblings_; ///< the text of the latest list
    std::uint32_t sibling_mentions_ = 0;
    int sibling_server_ = -1;
    Text folder_; ///< of the page read last, with the separator
    int server_ = -1;
    Text key_;
    std::vector<std::uint32_t> own_;    ///< room for the places of the page under way
    std::vector<std::uint32_t> met_on_; ///< number of the page that led there last, by place
    std::uint32_t page_ = 0;            ///< number of the page under way, from 1
};

} // namespace twk
