// SPDX-License-Identifier: MIT
#pragma once

#include "engine/gateway_settings.h"
#include "platform/text.h"

#include <cstdint>
#include <vector>

namespace twk {

/// How the middle of a page is laid out.
enum class Layout { no_table, table_1, table_2, table_3, none };

/// What a run wants of the screens of Steps 1 to 5. It is asked at the moment of use: an answer given while
/// pages are written holds from the next page or paragraph on. Lists are as they are shown.
class PageChoices {
  public:
    virtual ~PageChoices() = default;

    /// What the settings file sets and no control shows.
    virtual const GatewaySettings& settings() const = 0;

    // The project: Steps 1 and 2, and Step 5's own key.
    virtual std::int16_t project_key() const = 0;
    virtual const Text& project_name() const = 0;
    virtual const Text& site_name() const = 0;
    virtual const Text& category() const = 0;
    virtual const std::vector<Text>& other_targets() const = 0;
    virtual const std::vector<Text>& listed_keywords() const = 0;

    // Where the pages go: Step 4.
    virtual const Text& main_host() const = 0;
    virtual const std::vector<Text>& secondary_hosts() const = 0;

    // Texts.
    virtual const Text& keyword_density() const = 0; ///< per cent, as typed
    virtual bool grow_short_texts() const = 0;
    virtual bool cut_long_texts() const = 0;
    virtual bool fit_tied_texts() const = 0;
    virtual bool use_synonyms() const = 0;
    virtual bool highlight_keywords() const = 0;
    virtual bool limit_repetitions() const = 0;
    virtual void set_limit_repetitions(bool on) = 0;

    // Random pages; the numbers as typed, shares in per cent.
    virtual const Text& random_pages() const = 0;
    virtual const Text& redirecting_share() const = 0;
    virtual const Text& linking_share() const = 0;
    virtual const Text& main_target_share() const = 0; ///< of the links to a target
    virtual bool offer_page_names() const = 0;

    // Links and what decorates a page.
    virtual bool link_siblings() const = 0;
    virtual bool link_all_from_hallway() const = 0;
    virtual bool redirect_by_script() const = 0;
    virtual bool search_links() const = 0;
    virtual bool revisit_tag() const = 0;
    virtual bool pictures_wanted() const = 0;
    virtual bool animations() const = 0;
    virtual bool hidden_blocks() const = 0;
    virtual const Text& classification() const = 0;
    virtual const Text& language() const = 0;

    // Names of files.
    virtual const Text& extension() const = 0; ///< with its point
    virtual const Text& word_separator() const = 0;

    // Design.
    virtual Layout layout() const = 0;
    virtual bool coloured() const = 0; ///< a colour behind pages and cells
    virtual bool pictured() const = 0; ///< a picture
    virtual const Text& background_colour() const = 0;
    virtual const Text& background_image() const = 0; ///< its address
    virtual const Text& font_face() const = 0;
    virtual const Text& font_colour() const = 0;
    virtual const Text& own_html() const = 0;
    virtual bool use_own_hallway() const = 0;
    virtual const Text& own_hallway() const = 0; ///< path of the user's page

    // What the run finds on disk, shown where the user may see it.
    virtual const std::vector<Text>& files_in(const Text& folder, TextView pattern) = 0;
    virtual const std::vector<Text>& folders_in(const Text& folder) = 0; ///< full paths
    virtual const std::vector<Text>& pictures() const = 0;               ///< full paths
    virtual void set_pictures(const std::vector<Text>& paths) = 0;
};

} // namespace twk
