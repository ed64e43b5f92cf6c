// SPDX-License-Identifier: MIT
#pragma once

#include "engine/page_choices.h"

namespace twk {

class Form6;

/// The choices of a run as the screens of Steps 1 to 5 show them at this moment.
class StepChoices : public PageChoices {
  public:
    explicit StepChoices(Form6& form) : form_(form) {}

    const GatewaySettings& settings() const override;
    std::int16_t project_key() const override;
    const Text& project_name() const override;
    const Text& site_name() const override;
    const Text& category() const override;
    const std::vector<Text>& other_targets() const override;
    const std::vector<Text>& listed_keywords() const override;
    const Text& main_host() const override;
    const std::vector<Text>& secondary_hosts() const override;
    const Text& keyword_density() const override;
    bool grow_short_texts() const override;
    bool cut_long_texts() const override;
    bool fit_tied_texts() const override;
    bool use_synonyms() const override;
    bool highlight_keywords() const override;
    bool limit_repetitions() const override;
    void set_limit_repetitions(bool on) override;
    const Text& random_pages() const override;
    const Text& redirecting_share() const override;
    const Text& linking_share() const override;
    const Text& main_target_share() const override;
    bool offer_page_names() const override;
    bool link_siblings() const override;
    bool link_all_from_hallway() const override;
    bool redirect_by_script() const override;
    bool search_links() const override;
    bool revisit_tag() const override;
    bool pictures_wanted() const override;
    bool animations() const override;
    bool hidden_blocks() const override;
    const Text& classification() const override;
    const Text& language() const override;
    const Text& extension() const override;
    const Text& word_separator() const override;
    Layout layout() const override;
    bool coloured() const override;
    bool pictured() const override;
    const Text& background_colour() const override;
    const Text& background_image() const override;
    const Text& font_face() const override;
    const Text& font_colour() const override;
    const Text& own_html() const override;
    bool use_own_hallway() const override;
    const Text& own_hallway() const override;
    const std::vector<Text>& files_in(const Text& folder, TextView pattern) override;
    const std::vector<Text>& folders_in(const Text& folder) override;
    const std::vector<Text>& pictures() const override;
    void set_pictures(const std::vector<Text>& paths) override;

  private:
    Form6& form_;
};

} // namespace twk
