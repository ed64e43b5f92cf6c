// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screens.h"
#include "store/database.h"

#include <array>
#include <cstdint>

namespace twk {

/// Step 1: the project's name and the properties of the target site. The only place where a project's row is
/// made or changed. Later steps read `txt_name[0]` and `Text2[0]` here, so that the screen stays loaded.
class Form2 {
  public:
    static constexpr const char* name = "Form2";
    static constexpr TextView title = u"Step 1 of 6 - Project Properties";
    static constexpr bool marked = true;

    ScreenMap map; ///< the controls below enter themselves

    TWK_CONTROL(Label, lbl_name, u"Project Name:");
    TWK_CONTROLS(TextBox, 1, txt_name);
    TWK_CONTROL(Label, lbl_name_note, u"Will be used as project's directory name");
    TWK_CONTROL(Label, lbl_site_name, u"Target Site Name:");
    TWK_CONTROLS(TextBox, 1, Text2); ///< Target Site Name
    TWK_CONTROL(Label, lbl_site_url, u"Target Site URL:");
    TWK_CONTROL(Label, lbl_other_url, u"Other Target URL:");
    TWK_CONTROL(Label, lbl_webmaster_url, u"Webmaster URL:");
    /// Target Site URL, entry of another target URL, Webmaster URL.
    TWK_CONTROLS(TextBox, 3, txt_url, u"http://", u"http://", u"http://");
    TWK_CONTROL(ListBox, List1); ///< the other target URLs
    TWK_CONTROL(CommandButton, Command7, u"Add");
    TWK_CONTROL(CommandButton, Command8, u"Delete");
    TWK_CONTROL(Label, lbl_subject, u"Subject:");
    TWK_CONTROL(Label, lbl_category, u"Category:");
    TWK_CONTROL(Label, lbl_description, u"Description:");
    TWK_CONTROLS(TextBox, 3, txt_dat); ///< subject, category, description
    TWK_CONTROL(Label, lbl_webmaster, u"Webmaster Name:");
    TWK_CONTROL(Label, lbl_optional, u"This is Optional");
    TWK_CONTROL(TextBox, Text7); ///< webmaster's name
    TWK_CONTROL(CommandButton, Command2, u"&Next");
    TWK_CONTROL(CommandButton, Command1, u"&Exit");
    TWK_CONTROL(CommandButton, Command3, u"&Help");

    TWK_CONTROL(
        Label, lbl_about_site,
        u"Target Site is the website that you want to lead visitors to. The Site Name is used in the gateway "
        u"pages as part of the title, also is the text for the links to the target URL. 2 or 3 words is optimal.");
    TWK_CONTROL(Label, lbl_about_other,
                u"It's convenient to include secondary  pages from the target website.");
    TWK_CONTROL(Label, lbl_about_url,
                u"Gateway pages can link to a domain, subdomain, directory, or file, such as:");
    TWK_CONTROLS(Label, 3, lbl_sample, u"http://www.example.com", u"http://shop.example.com",
                 u"http://www.example.com/page.htm");
    TWK_CONTROL(
        Label, lbl_about_description,
        u"A brief, accurate description of what your target site is about is very important for most search "
        u"engines.");

    void enumerate(ScreenMap& map);
    void Form_Load();
    void Text2_LostFocus(int index);
    void txt_url_LostFocus(int index);
    void Command1_Click();
    /// Checks, saves, and only then looks at slashes at the end of the URLs: a project can be saved and still
    /// be refused. Fault 75 for a name that no folder can bear, after the row has been saved.
    void Command2_Click();
    void Command3_Click();
    void Command7_Click();
    void Command8_Click();
    /// 1 when the Target Site Name was refused (told, emptied, focused), 0 when it passed. Looks at
    /// `Text2[0]` whatever is passed in.
    int Revisar_Target(TextView text);

    /// What Next would say, and the box that it would say it of; an empty message when it would go on.
    struct Refusal {
        Text message;
        TextBox* box = nullptr;
    };
    /// The first thing in the fields that Next would refuse. Nothing is shown or changed.
    Refusal first_refusal();
    static constexpr int needed_fields = 6;
    /// How many of the fields that must not be empty are filled.
    int filled_fields() const;

  private:
    Text site_name_refusal() const;
    Refusal field_refusal();
    Text address_refusal() const;
    Text slash_refusal() const;
    bool store_new_project();
    void replace_project(std::int16_t pid);
    void insert_project();
    void update_project();
    void store_targets();
    void make_folder() const;

    Database base_datos_;
};

} // namespace twk
