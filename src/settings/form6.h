// SPDX-License-Identifier: MIT
#pragma once

#include "engine/gateway_settings.h"
#include "platform/screens.h"
#include "reports/shown_report.h"
#include "settings/step_choices.h"

#include <array>
#include <memory>

namespace twk {

struct Run;

/// Step 5: the generation settings on five levels, and the run. The run reads these controls at the moment
/// that a page needs them.
class Form6 {
  public:
    static constexpr const char* name = "Form6";
    static constexpr TextView title = u"Step 5 of 6 - Gateway Generation";

    Form6();
    ~Form6();

    Slider Slider1{1, 5};
    Label lbl_level{u"1. First and Second level Page Settings"};
    Label lbl_level_note{u"Customize Keyword density and word count."};

    // Level 1
    Frame Frame2{u"First and Second Level Pages Settings"};
    Label lbl_density{u"Keyword Density (aprox.) for content boxes (2-3% recommended)"};
    ComboBox Combo9; ///< keyword density, per cent
    CheckBox Check10{u"Increase content (word count) if necessary?"};
    CheckBox Check11{u"Decrease content (word count) if necessary?"};
    CheckBox Check12{u"Enable Second Level Pages interlinking"};
    CheckBox Check13{u"Enable automatic Java Script Redirection?"};
    CheckBox Check14{u"Link to all the first-Level pages from Hallway?"};
    CheckBox Check15{u"Optimize tied contents?"};

    // Level 2
    Frame Frame1{u"Random Page Settings"};
    Label lbl_random_pages{
        u"How many random pages? (aprox.). Accomodate this figure to the amount of keywords and "
        u"content boxes you supplied."};
    ComboBox Combo2{u"20"}; ///< how many random pages
    Label lbl_redirecting{u"Random pages using automatic Javacript redirection to the target site"};
    ComboBox Combo3{u"20"}; ///< per cent redirecting by script
    Label lbl_linking{u"Random pages linking to the target site"};
    ComboBox Combo4{u"80"}; ///< per cent linking to the target
    Label lbl_main_url{
        u"From the above %, how many pages are linking to the main URL rather than Other Targets?"};
    ComboBox Combo8{u"60"}; ///< of those, per cent to the main URL
    CheckBox Check9{u"Let user change random file-names?"};
    CheckBox Check5{u"Duplicate Content boxes using synonyms?"};

    // Level 3
    Frame Frame3{u"Boths Types"};
    Label lbl_extension{u"File extensions"};
    ComboBox Combo10{u".htm"}; ///< file extension
    CheckBox Check6{u"Highlight keywords in content paragraphs?"};
    CheckBox Check8{
        u"Limit the number of keyword repetitions in content Boxes? (Keeps keyword frequency under safe "
        u"limits. Overrides the other settings)"};
    CheckBox Check1{u"Include 'Revisit-After 30 days' MetaTag?"};
    CheckBox Check2{u"Include random images in some pages?"};
    CheckBox Check7{u"Include Google search links for your site?"};
    CheckBox Check4{u"Include some optimized flash animations?"};
    CheckBox Check3; ///< writes the hidden keyword blocks; has no caption
    Label lbl_classification{u"Classification"};
    ComboBox Combo7{u"Business"};
    Label lbl_language{u"Language"};
    ComboBox Combo5{u"en-us"};
    Label lbl_separator{u"Word-Separator in filenames."};
    ComboBox Combo6;

    // Level 4
    Frame Frame4{u"HTML Design"};
    Frame Frame6{u"Templates"};
    std::array<OptionButton, 4> Template{OptionButton{u"No table"}, OptionButton{u"Table 1"},
                                         OptionButton{u"Table 2"}, OptionButton{u"Table 3"}};
    Label lbl_font_face{u"Font Face"};
    ComboBox combo1{u"Select"};
    TextBox Text4{u"#000000"}; ///< font colour
    OptionButton Option1;      ///< solid background colour
    TextBox Text1{u"#ffffff"}; ///< background colour
    OptionButton Option2{u"BackGround Image URL"};
    TextBox Text3{u"http://www.tarnwick.example/images/background.gif"}; ///< address of the background image
    Frame Frame5{u"Custom HTML Box"};
    TextBox Text2; ///< custom HTML for every page
    Label lbl_html_box{
        u"Use this box to include some <html>. I.e.: counters, link or banner exchange, signature."};
    Label lbl_not_saved{
        u"Neither the HTML Box or Templates are saved to .dat files."}; ///< templates are, as 9.c
    CommandButton Command2_0{u"Select Font Color"};
    CommandButton Command2_110{u"BackGround Color"};

    // Level 5
    Frame Frame7{u"Configuration Level"};
    CommandButton Command3{u"Load settings from .dat file"};
    CommandButton Command4{u"Save settings to .dat file"};
    Label lbl_advanced{u"This feature is only recommended for advanced users!"};
    Label lbl_default{u"[ By default this step loads \"twk.dat\" settings ]"};
    Label lbl_override{u"(This will override some settings defined in previous screens)"};
    Label lbl_strategies{
        u"You can set up different strategies for your projects: Each strategy can be saved in different .dat "
        u"file. Some, but not all .dat settings can be modified from these screens. "};

    // A hallway page of the user's own
    Frame Frame8{u"SiteMap"};
    CheckBox checkBulgaro{u"Use another sitemap as template?"};
    DriveListBox Drive2;
    DirListBox Dir2;
    FileListBox File2{u"*.ht*"};
    Label Label52{u"Sitemap to use:"};
    CommandButton Command5{u"Continue"};
    Label Label53{
        u"This optional feature will not link to random pages. It lets you design the hallway page "
        u"(sitemap.htm). It will contain links to 5 1st level pages. Do not use if you have less than 5 1st level "
        u"keywords. The template.htm file can be freely edited, without erasing the placeholder tags."};

    Label Label41{u"This action will erase previously generated pages with this project name."};
    CommandButton Command1{u"Next: Generate Gateway Pages"};
    CommandButton Command7{u"Help"};
    FileListBox File1; ///< the run's lister of files
    DirListBox Dir1;   ///< the run's lister of folders
    ListBox List1;     ///< full paths of the pictures, filled by the run
    CommonDialog CommonDialog1;

    std::int16_t pid_form = 0;   ///< the project's key, found by name at load
    bool carga_inicial = false;  ///< off while the screen loads
    bool informe_activo = false; ///< reports are made; nothing turns it off again
    Text plantilla_sitemap;      ///< the user's own hallway page
    GatewaySettings settings;
    StepChoices choices{*this}; ///< what the run asks
    ShownReport report{*this};  ///< and what it tells
    std::unique_ptr<Run> run;   ///< state of the run under way or of the last one

    static constexpr TextView taken_files = u".dat";
    /// Loads the settings of a file.
    void take_file(const Text& path);

    void enumerate(ScreenMap& map);
    void Form_Load();
    void Form_Unload();
    void Slider1_Change();
    /// The run, settings saved first. While one writes, from whichever screen, another click does nothing.
    void Command1_Click();
    void Command2_Click(int index);
    void Command3_Click();
    void Command4_Click();
    void Command5_Click();
    void Command7_Click();
    void Option1_Click();
    void Option2_Click();
    void Template_Click(int index);
    void Drive2_Change();
    void Dir2_Change();
    void File2_Click();
    /// Ends the program at once.
    void cancelar();

  private:
    void enumerate_pages(ScreenMap& map);
    void enumerate_design(ScreenMap& map);
    void enumerate_events(ScreenMap& map);
};

} // namespace twk
