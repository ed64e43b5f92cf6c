// SPDX-License-Identifier: MIT
#include "support/site_links.h"

#include "inputs/form7.h"
#include "platform/desktop.h"
#include "platform/file_system.h"
#include "platform/html.h"
#include "shell/form2.h"

#include <filesystem>

#include <gtest/gtest.h>

namespace twk::test {

namespace fs = std::filesystem;

namespace {

/// Files of a generated site, and where its links lead.
class SiteLinks {
  public:
    SiteLinks()
        : folder_(to_utf8(beside_program(u"Projects/" + screen<Form2>().txt_name[0].text()))),
          main_(folder_ / to_utf8(Replace(Replace(main_host(), u"http://", u""), u"/", u"-"))) {}

    void check() const {
        for (const auto& entry : fs::recursive_directory_iterator(folder_))
            if (entry.is_regular_file() && entry.path().parent_path() != folder_ &&
                entry.path().extension() == ".htm")
                check_page(entry.path());
    }

  private:
    void check_page(const fs::path& page) const {
        const Text html = read_text_file(from_utf8(page.string()));
        std::vector<Text> links = page_links(html);
        for (const TextView piece : split_views(html, u"<img src=\""))
            if (piece.data() != html.data()) links.emplace_back(piece.substr(0, piece.find(u'"')));
        for (const Text& link : links) {
            if (leads_away(link)) continue;
            EXPECT_TRUE(found(page, link)) << page.filename() << " links to " << to_utf8(link);
        }
    }

    static Text main_host() { return screen<Form7>().Text2.text(); }

    static bool leads_away(const Text& link) {
        if (!link.starts_with(u"http://")) return false;
        bool own = link.starts_with(main_host());
        for (const Text& host : screen<Form7>().List1.entries()) own = own || link.starts_with(host);
        return !own;
    }

    /// The pages of the main host's two folders are uploaded to one place.
    bool found(const fs::path& page, const Text& link) const {
        const fs::path more(main_.string() + "_More_Files");
        if (link.starts_with(u"/")) return fs::exists(to_utf8(link)); // a read-more page by its local path
        if (link.starts_with(u"http://")) {
            const std::size_t cut =
                link.find_last_of(u"/\\"); // before a destination's latest page stands "\"
            const std::string name = to_utf8(link.substr(cut + 1));
            const Text host = link.substr(0, cut);
            if (host == main_host()) return fs::exists(main_ / name) || fs::exists(more / name);
            return fs::exists(folder_ / to_utf8(Replace(Replace(host, u"http://", u""), u"/", u"-")) / name);
        }
        const fs::path here = page.parent_path();
        if (fs::exists(here / to_utf8(link))) return true;
        return here == more && fs::exists(main_ / to_utf8(link));
    }

    fs::path folder_, main_;
};

} // namespace

void expect_links_lead_somewhere() {
    SiteLinks().check();
}

} // namespace twk::test
