#pragma once

#include "platform/screens.h"
#include "store/database.h"

#include <array>

namespace twk {

/// Step 1: the project's name and the properties of the target site. The only place where a project's row is
/// made or changed.
class Form2 {
  public:
    static constexpr const char* name = "Form2";
    static constexpr TextView title = u"Step 1 of 6 - Project Properties";

    std::array<TextBox, 1> txt_name;
    std::array<TextBox, 1> Text2;
    std::array<TextBox, 3> txt_url{TextBox{u"http://"}, TextBox{u"http://"}, TextBox{u"http://"}};
    std::array<TextBox, 3> txt_dat; ///< subject, category, description
    TextBox Text7;                  ///< webmaster's name
    ListBox List1;                  ///< the other target URLs
    CommandButton Command7{u"Add"};
    CommandButton Command8{u"Delete"};
    CommandButton Command2{u"&Next"};
    CommandButton Command1{u"&Exit"};
    CommandButton Command3{u"&Help"};
    /// The labels beside and below the boxes.
    std::array<Label, 16> Label1{
        Label{u"Project Name:"},
        Label{u"Will be used as project's directory name"},
        Label{u"Target Site Name:"},
        Label{
            u"Target Site is the website that you want to lead visitors to. The Site Name is used in the gateway "
            u"pages as part of the title, also is the text for the links to the target URL. 2 or 3 words is "
            u"optimal."},
        Label{u"Target Site URL:"},
        Label{u"Other Target URL:"},
        Label{u"It's convenient to include secondary  pages from the target website."},
        Label{u"Gateway pages can link to a domain, subdomain, directory, or file, such as:"},
        Label{
            u"http://www.yourdomain.com\nhttp://subdomain.yourdomain.com\nhttp://www.yourdomain.com/page.htm"},
        Label{u"Subject:"},
        Label{u"Category:"},
        Label{u"Description:"},
        Label{
            u"A brief, accurate description of what your target site is about is very important for most search "
            u"engines."},
        Label{u"Webmaster Name:"},
        Label{u"This is Optional"},
        Label{u"Webmaster URL:"}};

    void enumerate(ScreenMap& map);
    void Form_Load();
    void Form_Unload();
    void Text2_LostFocus(int index);
    void txt_url_LostFocus(int index);
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command7_Click();
    void Command8_Click();
    /// 1 when the Target Site Name was refused (told, emptied, focused), 0 when it passed. Looks at
    /// `Text2[0]` whatever is passed in.
    int Revisar_Target(TextView text);

  private:
    bool properties_complete();
    bool urls_valid();
    bool slashes_absent();
    void save_new_project();
    void replace_old_project();
    void update_project();
    void save_targets();
    void make_project_folder(const Text& name);
    static Text clean(const Text& text);

    Database base_datos_;
    std::int16_t pid_hallado_ = 0; ///< of the project found under the same name
    bool existe_ = false;          ///< such a project exists and is not to be replaced
};

} // namespace twk
