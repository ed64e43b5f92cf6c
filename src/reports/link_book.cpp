// SPDX-License-Identifier: MIT
#include "reports/link_book.h"

#include "engine/open_page.h"
#include "platform/desktop.h"
#include "platform/paths.h"

#include <algorithm>
#include <utility>

namespace twk {

namespace {

bool is_blank(char16_t unit) {
    return unit == u' ' || unit == u'\t' || unit == u'\r' || unit == u'\n';
}

/// The address behind "href" at `at`; empty when there is none.
TextView address_at(TextView text, std::size_t at) {
    const auto skip_blanks = [&] {
        while (at < text.size() && is_blank(text[at])) ++at;
    };
    skip_blanks();
    if (at == text.size() || text[at] != u'=') return {};
    ++at;
    skip_blanks();
    if (at == text.size()) return {};
    const char16_t quote = text[at];
    if (quote == u'"' || quote == u'\'') {
        const std::size_t end = position(text, TextView(&quote, 1), at + 1);
        return end == TextView::npos ? TextView() : text.substr(at + 1, end - at - 1);
    }
    std::size_t end = at;
    while (end < text.size() && !is_blank(text[end]) && text[end] != u'>') ++end;
    return text.substr(at, end - at);
}

/// What stands behind the folder's address; nothing when the address does not lead into it.
bool leads_into(TextView address, TextView server, TextView& rest) {
    if (server.empty() || address.size() <= server.size()) return false;
    const char16_t behind = address[server.size()];
    if ((behind != u'/' && behind != u'\\') || !same_text(address.substr(0, server.size()), server))
        return false;
    rest = address.substr(server.size() + 1);
    return true;
}

bool has_scheme(TextView address) {
    const std::size_t colon = address.find(u':');
    return colon != TextView::npos && colon < address.find_first_of(u"/\\");
}

/// The place of `siblings` in the text, close to whose end it stands; npos for none.
std::size_t near_the_end(TextView text, TextView siblings) {
    constexpr std::size_t most_behind = 64;
    if (siblings.empty() || text.size() < siblings.size()) return TextView::npos;
    const std::size_t last = text.size() - siblings.size();
    for (std::size_t behind = 0; behind <= std::min(last, most_behind); ++behind)
        if (text.substr(last - behind, siblings.size()) == siblings) return last - behind;
    return TextView::npos;
}

} // namespace

template <class Visit> std::uint32_t LinkBook::each_address(TextView text, Visit visit) {
    constexpr TextView href = u"href";
    std::uint32_t count = 0;
    for (std::size_t at = 0; (at = position(text, href, at)) != TextView::npos; at += href.size()) {
        ++count;
        if (const TextView address = address_at(text, at + href.size()); !address.empty()) visit(address);
    }
    return count;
}

void LinkBook::begin(const std::vector<Text>& servers, const Text& project_folder) {
    *this = {};
    servers_ = servers;
    project_folder_ = project_folder;
    const auto add = [this](const Text& address, int server) {
        folders_.emplace(LCase(last_name(TextView(destination_folder(project_folder_, address)))), server);
    };
    if (servers.empty()) return;
    add(servers[0], 0);
    add(servers[0] + u"_More_Files", 0);
    for (std::size_t i = 1; i < servers.size(); ++i) add(servers[i], static_cast<int>(i));
}

int LinkBook::server_of(const Text& folder) const {
    const auto found = folders_.find(LCase(folder));
    return found == folders_.end() ? -1 : found->second;
}

std::uint32_t LinkBook::place(int server, TextView file) {
    Text key = static_cast<char16_t>(server + 1) + LCase(file);
    const auto found = places_.find(key);
    if (found != places_.end()) return found->second;
    const auto number = static_cast<std::uint32_t>(names_.size());
    names_.push_back({server, key.substr(1)});
    places_.emplace(std::move(key), number);
    return number;
}

Text LinkBook::address(std::uint32_t place) const {
    const Place& at = names_[place];
    if (at.server < 0) return at.file;
    return servers_[static_cast<std::size_t>(at.server)] + u"/" + at.file;
}

std::uint32_t LinkBook::resolved(int server, TextView address) {
    if (address.starts_with(joined_path(app_path(), u""))) return place(-1, address);
    address = address.substr(0, address.find_first_of(u"#?"));
    TextView rest;
    std::size_t longest = 0;
    int of = -1;
    for (std::size_t i = 0; i < servers_.size(); ++i) {
        TextView behind;
        if (servers_[i].size() <= longest || !leads_into(address, servers_[i], behind)) continue;
        longest = servers_[i].size();
        of = static_cast<int>(i);
        rest = behind;
    }
    if (of < 0) {
        if (address.empty() || has_scheme(address) || address.find_first_of(u"/\\") == 0 ||
            address.starts_with(u".."))
            return outside;
        of = server;
        rest = address.starts_with(u"./") ? address.substr(2) : address;
    }
    if (rest.empty() || of < 0) return outside; // the folder itself
    Text file(rest);
    replace_all(file, u"\\", u"/");
    return place(of, file);
}

LinkBook::Addresses::value_type& LinkBook::known(int server, TextView address) {
    const auto mark = static_cast<char16_t>(server + 1);
    if (latest_ != nullptr && latest_->second.next != nullptr) {
        auto& next = *latest_->second.next;
        if (next.first.front() == mark && same_units(TextView(next.first).substr(1), address)) return next;
    }
    key_.assign(1, mark).append(address);
    auto found = known_.find(TextView(key_));
    if (found == known_.end()) found = known_.emplace(key_, Address{resolved(server, address)}).first;
    if (latest_ != nullptr) latest_->second.next = &*found;
    return *found;
}

std::uint32_t LinkBook::looked_up(int server, TextView address, PageLinks& links) {
    latest_ = &known(server, address);
    const std::uint32_t place = latest_->second.place;
    if (place != outside && names_[place].server < 0) links.local_path = true;
    return place;
}

std::uint32_t LinkBook::read_siblings(int server, TextView text) {
    if (!lists_.empty() && sibling_server_ == server && siblings_ == text)
        return static_cast<std::uint32_t>(lists_.size() - 1);
    siblings_ = text;
    sibling_server_ = server;
    PageLinks links;
    std::vector<std::uint32_t> list;
    sibling_mentions_ = each_address(text, [&](TextView address) {
        if (const std::uint32_t number = looked_up(server, address, links); number != outside)
            list.push_back(number);
    });
    std::sort(list.begin(), list.end());
    list.erase(std::unique(list.begin(), list.end()), list.end());
    lists_.push_back(std::move(list));
    return static_cast<std::uint32_t>(lists_.size() - 1);
}

PageLinks LinkBook::read(const Text& path, TextView text, TextView siblings) {
    const TextView folder = TextView(path).substr(0, path.size() - last_name(TextView(path)).size());
    if (folder != folder_) {
        folder_ = folder;
        server_ = server_of(Text(last_name(TextView(folder_of(path)))));
    }
    const int server = server_;
    PageLinks links;
    if (const std::size_t at = near_the_end(text, siblings); at != TextView::npos) {
        links.siblings = read_siblings(server, siblings);
        links.mentions = sibling_mentions_;
        text = text.substr(0, at);
    }
    own_.clear();
    ++page_;
    links.mentions += each_address(text, [&](TextView address) {
        const std::uint32_t number = looked_up(server, address, links);
        if (number == outside) return;
        if (number >= met_on_.size()) met_on_.resize(names_.size());
        if (std::exchange(met_on_[number], page_) == page_) return;
        if (links.siblings != PageLinks::no_list &&
            std::binary_search(list(links.siblings).begin(), list(links.siblings).end(), number))
            return;
        own_.push_back(number);
    });
    std::sort(own_.begin(), own_.end());
    links.own.assign(own_.begin(), own_.end()); // no more room than it takes
    return links;
}

} // namespace twk
