// SPDX-License-Identifier: MIT
#include "settings/step_choices.h"

#include "inputs/form3.h"
#include "inputs/form7.h"
#include "settings/form6.h"
#include "shell/form2.h"

namespace twk {

const GatewaySettings& StepChoices::settings() const {
    return form_.settings;
}
std::int16_t StepChoices::project_key() const {
    return form_.pid_form;
}
/// From Step 1's own box, not the name under which the project was opened.
const Text& StepChoices::project_name() const {
    return screen<Form2>().txt_name[0].text();
}
const Text& StepChoices::site_name() const {
    return screen<Form2>().Text2[0].text();
}
const Text& StepChoices::category() const {
    return screen<Form2>().txt_dat[1].text();
}
const std::vector<Text>& StepChoices::other_targets() const {
    return screen<Form2>().List1.entries();
}
const std::vector<Text>& StepChoices::listed_keywords() const {
    return screen<Form3>().List1.entries();
}
const Text& StepChoices::main_host() const {
    return screen<Form7>().Text2.text();
}
const std::vector<Text>& StepChoices::secondary_hosts() const {
    return screen<Form7>().List1.entries();
}
const Text& StepChoices::keyword_density() const {
    return form_.Combo9.text();
}
bool StepChoices::grow_short_texts() const {
    return form_.Check10.value();
}
bool StepChoices::cut_long_texts() const {
    return form_.Check11.value();
}
bool StepChoices::fit_tied_texts() const {
    return form_.Check15.value();
}
bool StepChoices::use_synonyms() const {
    return form_.Check5.value();
}
bool StepChoices::highlight_keywords() const {
    return form_.Check6.value();
}
bool StepChoices::limit_repetitions() const {
    return form_.Check8.value();
}
void StepChoices::set_limit_repetitions(bool on) {
    form_.Check8.value = on;
}

const Text& StepChoices::random_pages() const {
    return form_.Combo2.text();
}
const Text& StepChoices::redirecting_share() const {
    return form_.Combo3.text();
}
const Text& StepChoices::linking_share() const {
    return form_.Combo4.text();
}
const Text& StepChoices::main_target_share() const {
    return form_.Combo8.text();
}
bool StepChoices::offer_page_names() const {
    return form_.Check9.value();
}
bool StepChoices::link_siblings() const {
    return form_.Check12.value();
}
bool StepChoices::link_all_from_hallway() const {
    return form_.Check14.value();
}
bool StepChoices::redirect_by_script() const {
    return form_.Check13.value();
}
bool StepChoices::search_links() const {
    return form_.Check7.value();
}
bool StepChoices::revisit_tag() const {
    return form_.Check1.value();
}
bool StepChoices::pictures_wanted() const {
    return form_.Check2.value();
}
bool StepChoices::animations() const {
    return form_.Check4.value();
}
bool StepChoices::hidden_blocks() const {
    return form_.Check3.value();
}
const Text& StepChoices::classification() const {
    return form_.Combo7.text();
}
const Text& StepChoices::language() const {
    return form_.Combo5.text();
}
const Text& StepChoices::extension() const {
    return form_.Combo10.text();
}
const Text& StepChoices::word_separator() const {
    return form_.Combo6.text();
}
bool StepChoices::coloured() const {
    return form_.Option1.value();
}
bool StepChoices::pictured() const {
    return form_.Option2.value();
}
const Text& StepChoices::background_colour() const {
    return form_.Text1.text();
}
const Text& StepChoices::background_image() const {
    return form_.Text3.text();
}
const Text& StepChoices::font_face() const {
    return form_.combo1.text();
}
const Text& StepChoices::font_colour() const {
    return form_.Text4.text();
}
const Text& StepChoices::own_html() const {
    return form_.Text2.text();
}
bool StepChoices::use_own_hallway() const {
    return form_.checkBulgaro.value();
}
const Text& StepChoices::own_hallway() const {
    return form_.plantilla_sitemap;
}
const std::vector<Text>& StepChoices::pictures() const {
    return form_.List1.entries();
}

Layout StepChoices::layout() const {
    int index = 0;
    for (const OptionButton& option : form_.Template) {
        if (option.value()) break;
        ++index;
    }
    return static_cast<Layout>(index);
}

const std::vector<Text>& StepChoices::files_in(const Text& folder, TextView pattern) {
    form_.File1.set_path(folder);
    form_.File1.set_pattern(Text(pattern));
    return form_.File1.entries();
}

const std::vector<Text>& StepChoices::folders_in(const Text& folder) {
    form_.Dir1.set_path(folder);
    return form_.Dir1.entries();
}

void StepChoices::set_pictures(const std::vector<Text>& paths) {
    form_.List1.clear();
    for (const Text& path : paths) form_.List1.add_item(path);
}

} // namespace twk
