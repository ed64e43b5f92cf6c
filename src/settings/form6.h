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
    static constexpr bool marked = true;

    Form6();
    ~Form6();

    ScreenMap map; ///< the controls below enter themselves

    TWK_CONTROL(Slider, Slider1, 1, 5);
    TWK_CONTROL(Label, lbl_level, u"1. First and Second level Page Settings");
    TWK_CONTROL(Label, lbl_level_note, u"Customize Keyword density and word count.");

    // Level 1
    TWK_CONTROL(Frame, Frame2, u"First and Second Level Pages Settings");
    TWK_CONTROL(Label, lbl_density, u"Keyword Density (aprox.) for content boxes (2-3% recommended)");
    TWK_CONTROL(ComboBox, Combo9); ///< keyword density, per cent
    TWK_CONTROL(CheckBox, Check10, u"Increase content (word count) if necessary?");
    TWK_CONTROL(CheckBox, Check11, u"Decrease content (word count) if necessary?");
    TWK_CONTROL(CheckBox, Check12, u"Enable Second Level Pages interlinking");
    TWK_CONTROL(CheckBox, Check13, u"Enable automatic Java Script Redirection?");
    TWK_CONTROL(CheckBox, Check14, u"Link to all the first-Level pages from Hallway?");
    TWK_CONTROL(CheckBox, Check15, u"Optimize tied contents?");

    // Level 2
    TWK_CONTROL(Frame, Frame1, u"Random Page Settings");
    TWK_CONTROL(Label, lbl_random_pages,
                u"How many random pages? (aprox.). Accomodate this figure to the amount of keywords and "
                u"content boxes you supplied.");
    TWK_CONTROL(ComboBox, Combo2, u"20"); ///< how many random pages
    TWK_CONTROL(Label, lbl_redirecting,
                u"Random pages using automatic Javacript redirection to the target site");
    TWK_CONTROL(ComboBox, Combo3, u"20"); ///< per cent redirecting by script
    TWK_CONTROL(Label, lbl_linking, u"Random pages linking to the target site");
    TWK_CONTROL(ComboBox, Combo4, u"80"); ///< per cent linking to the target
    TWK_CONTROL(Label, lbl_main_url,
                u"From the above %, how many pages are linking to the main URL rather than Other Targets?");
    TWK_CONTROL(ComboBox, Combo8, u"60"); ///< of those, per cent to the main URL
    TWK_CONTROL(CheckBox, Check9, u"Let user change random file-names?");
    TWK_CONTROL(CheckBox, Check5, u"Duplicate Content boxes using synonyms?");

    // Level 3
    TWK_CONTROL(Frame, Frame3, u"Boths Types");
    TWK_CONTROL(Label, lbl_extension, u"File extensions");
    TWK_CONTROL(ComboBox, Combo10, u".htm"); ///< file extension
    TWK_CONTROL(CheckBox, Check6, u"Highlight keywords in content paragraphs?");
    TWK_CONTROL(
        CheckBox, Check8,
        u"Limit the number of keyword repetitions in content Boxes? (Keeps keyword frequency under safe "
        u"limits. Overrides the other settings)");
    TWK_CONTROL(CheckBox, Check1, u"Include 'Revisit-After 30 days' MetaTag?");
    TWK_CONTROL(CheckBox, Check2, u"Include random images in some pages?");
    TWK_CONTROL(CheckBox, Check7, u"Include Google search links for your site?");
    TWK_CONTROL(CheckBox, Check4, u"Include some optimized flash animations?");
    TWK_CONTROL(CheckBox, Check3); ///< writes the hidden keyword blocks; has no caption
    TWK_CONTROL(Label, lbl_classification, u"Classification");
    TWK_CONTROL(ComboBox, Combo7, u"Business");
    TWK_CONTROL(Label, lbl_language, u"Language");
    TWK_CONTROL(ComboBox, Combo5, u"en-us");
    TWK_CONTROL(Label, lbl_separator, u"Word-Separator in filenames.");
    TWK_CONTROL(ComboBox, Combo6);

    // Level 4
    TWK_CONTROL(Frame, Frame4, u"HTML Design");
    TWK_CONTROL(Frame, Frame6, u"Templates");
    TWK_CONTROLS(OptionButton, 4, Template, u"No table", u"Table 1", u"Table 2", u"Table 3");
    TWK_CONTROL(Label, lbl_font_face, u"Font Face");
    TWK_CONTROL(ComboBox, combo1, u"Select");
    TWK_CONTROL(TextBox, Text4, u"#000000"); ///< font colour
    TWK_CONTROL(OptionButton, Option1, u"Solid background");
    TWK_CONTROL(TextBox, Text1, u"#ffffff"); ///< background colour
    TWK_CONTROL(OptionButton, Option2, u"BackGround Image URL");
    TWK_CONTROL(TextBox, Text3,
                u"http://www.tarnwick.example/images/background.gif"); ///< address of the background image
    TWK_CONTROL(Frame, Frame5, u"Custom HTML Box");
    TWK_CONTROL(TextBox, Text2); ///< custom HTML for every page
    TWK_CONTROL(Label, lbl_html_box,
                u"Use this box to include some <html>. I.e.: counters, link or banner exchange, signature.");
    TWK_CONTROL(Label, lbl_not_saved,
                u"Neither the HTML Box or Templates are saved to .dat files."); ///< templates are, as 9.c
    TWK_ELEMENT(CommandButton, Command2, 0, u"Select Font Color");
    TWK_ELEMENT(CommandButton, Command2, 110, u"BackGround Color");

    // Level 5
    TWK_CONTROL(Frame, Frame7, u"Configuration Level");
    TWK_CONTROL(CommandButton, Command3, u"Load settings from .dat file");
    TWK_CONTROL(CommandButton, Command4, u"Save settings to .dat file");
    TWK_CONTROL(Label, lbl_advanced, u"This feature is only recommended for advanced users!");
    TWK_CONTROL(Label, lbl_default, u"[ By default this step loads \"twk.dat\" settings ]");
    TWK_CONTROL(Label, lbl_override, u"(This will override some settings defined in previous screens)");
    TWK_CONTROL(
        Label, lbl_strategies,
        u"You can set up different strategies for your projects: Each strategy can be saved in different .dat "
        u"file. Some, but not all .dat settings can be modified from these screens. ");

    // A hallway page of the user's own
    TWK_CONTROL(Frame, Frame8, u"SiteMap");
    TWK_CONTROL(CheckBox, checkBulgaro, u"Use another sitemap as template?");
    TWK_CONTROL(DriveListBox, Drive2);
    TWK_CONTROL(DirListBox, Dir2);
    TWK_CONTROL(FileListBox, File2, u"*.ht*");
    TWK_CONTROL(Label, Label52, u"Sitemap to use:");
    TWK_CONTROL(CommandButton, Command5, u"Continue");
    TWK_CONTROL(
        Label, Label53,
        u"This optional feature will not link to random pages. It lets you design the hallway page "
        u"(sitemap.htm). It will contain links to 5 1st level pages. Do not use if you have less than 5 1st level "
        u"keywords. The template.htm file can be freely edited, without erasing the placeholder tags.");

    TWK_CONTROL(Label, Label41, u"This action will erase previously generated pages with this project name.");
    TWK_CONTROL(CommandButton, Command1, u"Next: Generate Gateway Pages");
    TWK_CONTROL(CommandButton, Command7, u"Help");
    TWK_CONTROL(FileListBox, File1); ///< the run's lister of files
    TWK_CONTROL(DirListBox, Dir1);   ///< the run's lister of folders
    TWK_CONTROL(ListBox, List1);     ///< full paths of the pictures, filled by the run
    TWK_CONTROL(CommonDialog, CommonDialog1);

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
    void enumerate_events(ScreenMap& map);
};

} // namespace twk
