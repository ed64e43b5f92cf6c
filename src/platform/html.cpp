// SPDX-License-Identifier: MIT
#include "platform/html.h"

#include "platform/plain_pages.h"

#include <memory>
#include <string>
#include <string_view>

#include <gumbo.h>

namespace twk {

namespace {

/// A parsed page; the tree ends with it.
class Page {
  public:
    explicit Page(TextView html) : bytes_(to_utf8(html)) {
        GumboOptions options = kGumboDefaultOptions;
        options.max_errors = 0;
        tree_ = gumbo_parse_with_options(&options, bytes_.data(), bytes_.size());
    }
    ~Page() { gumbo_destroy_output(&kGumboDefaultOptions, tree_); }
    Page(const Page&) = delete;
    Page& operator=(const Page&) = delete;

    const GumboNode* root() const { return tree_->root; }

  private:
    std::string bytes_;
    GumboOutput* tree_ = nullptr;
};

bool is_element(const GumboNode* node) {
    return node->type == GUMBO_NODE_ELEMENT || node->type == GUMBO_NODE_TEMPLATE;
}

/// Calls `enter` for every node in document order and `leave` behind an element; not deep in the stack, as a
/// page may nest without end. `enter` returns whether the node's children are wanted.
template <class Enter, class Leave> void walk(const GumboNode* root, Enter enter, Leave leave) {
    struct Level {
        const GumboNode* node;
        unsigned next;
    };
    std::vector<Level> levels;
    if (enter(root)) levels.push_back({root, 0});
    while (!levels.empty()) {
        Level& level = levels.back();
        const GumboVector& children = level.node->v.element.children;
        if (level.next == children.length) {
            leave(level.node);
            levels.pop_back();
            continue;
        }
        const auto* child = static_cast<const GumboNode*>(children.data[level.next++]);
        if (enter(child) && is_element(child)) levels.push_back({child, 0});
    }
}

bool hidden(GumboTag tag) {
    switch (tag) {
    case GUMBO_TAG_HEAD:
    case GUMBO_TAG_SCRIPT:
    case GUMBO_TAG_STYLE:
    case GUMBO_TAG_NOSCRIPT:
    case GUMBO_TAG_TEMPLATE:
    case GUMBO_TAG_TITLE: return true;
    default: return false;
    }
}

bool ends_a_line(GumboTag tag) {
    switch (tag) {
    case GUMBO_TAG_BR:
    case GUMBO_TAG_P:
    case GUMBO_TAG_DIV:
    case GUMBO_TAG_H1:
    case GUMBO_TAG_H2:
    case GUMBO_TAG_H3:
    case GUMBO_TAG_H4:
    case GUMBO_TAG_H5:
    case GUMBO_TAG_H6:
    case GUMBO_TAG_LI:
    case GUMBO_TAG_UL:
    case GUMBO_TAG_OL:
    case GUMBO_TAG_TABLE:
    case GUMBO_TAG_TR:
    case GUMBO_TAG_HR:
    case GUMBO_TAG_CENTER:
    case GUMBO_TAG_BLOCKQUOTE:
    case GUMBO_TAG_FORM:
    case GUMBO_TAG_PRE: return true;
    default: return false;
    }
}

const GumboAttribute* href_of(const GumboNode* node) {
    if (!is_element(node) || node->v.element.tag != GUMBO_TAG_A) return nullptr;
    return gumbo_get_attribute(&node->v.element.attributes, "href");
}

} // namespace

Text visible_text(TextView html) {
    if (std::optional<Text> text = plain_page_text(html)) return std::move(*text);
    return parsed_visible_text(html);
}

Text parsed_visible_text(TextView html) {
    const Page page(html);
    VisibleLines lines;
    const auto enter = [&lines](const GumboNode* node) {
        if (is_element(node)) {
            if (hidden(node->v.element.tag)) return false;
            if (ends_a_line(node->v.element.tag)) lines.line_end();
            return true;
        }
        if (node->type == GUMBO_NODE_TEXT || node->type == GUMBO_NODE_WHITESPACE ||
            node->type == GUMBO_NODE_CDATA)
            lines.words(from_utf8(node->v.text.text));
        return false;
    };
    const auto leave = [&lines](const GumboNode* node) {
        const GumboTag tag = node->v.element.tag;
        if (ends_a_line(tag)) lines.line_end();
        if (tag == GUMBO_TAG_TD || tag == GUMBO_TAG_TH) lines.cell_end();
    };
    walk(page.root(), enter, leave);
    return lines.take();
}

std::vector<Text> page_links(TextView html) {
    const Page page(html);
    std::vector<Text> links;
    const auto enter = [&links](const GumboNode* node) {
        if (const GumboAttribute* href = href_of(node)) links.push_back(from_utf8(href->value));
        return true;
    };
    walk(page.root(), enter, [](const GumboNode*) {});
    return links;
}

namespace {

bool has_scheme(TextView address) {
    const std::size_t colon = address.find(u':');
    return colon != TextView::npos && colon > 0 && address.find_first_of(u"/?#") > colon;
}

/// Scheme and host of an address, without a separator at the end.
TextView origin_of(TextView address) {
    const std::size_t host = address.find(u"://");
    if (host == TextView::npos) return address.substr(0, address.find(u'/'));
    return address.substr(0, address.find_first_of(u"/?#", host + 3));
}

/// Takes "." and ".." out of a path that begins with "/".
Text without_dots(TextView path) {
    const std::size_t query = std::min(path.find_first_of(u"?#"), path.size());
    std::vector<TextView> kept;
    const std::vector<TextView> parts = split_views(path.substr(0, query), u"/");
    for (const TextView part : parts) {
        if (part == u"..") {
            if (kept.size() > 1) kept.pop_back();
        } else if (part != u".") {
            kept.push_back(part);
        }
    }
    if (!parts.empty() && (parts.back() == u"." || parts.back() == u"..")) kept.emplace_back(); // a folder
    Text out;
    for (std::size_t i = 0; i < kept.size(); ++i) out.append(i == 0 ? u"" : u"/").append(kept[i]);
    return out.append(path.substr(query));
}

Text resolved(TextView link, TextView base) {
    if (has_scheme(link) || base.empty()) return Text(link);
    const TextView origin = origin_of(base);
    if (link.starts_with(u"//")) return Text(base.substr(0, base.find(u':') + 1)) + Text(link);
    if (link.starts_with(u"/")) return Text(origin) + without_dots(link);
    const TextView page = base.substr(0, base.find_first_of(u"?#"));
    if (link.empty() || link.starts_with(u"#")) return Text(page) + Text(link);
    if (link.starts_with(u"?")) return Text(page) + Text(link);
    const TextView path = page.substr(origin.size());
    const std::size_t slash = path.rfind(u'/');
    const Text folder = slash == TextView::npos ? Text(u"/") : Text(path.substr(0, slash + 1));
    return Text(origin) + without_dots(folder + Text(link));
}

} // namespace

std::vector<Text> page_links(TextView html, TextView base) {
    std::vector<Text> links = page_links(html);
    for (Text& link : links) link = resolved(link, base);
    return links;
}

} // namespace twk
