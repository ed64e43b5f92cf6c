// SPDX-License-Identifier: MIT
#pragma once

#include "platform/addresses.h"
#include "platform/screens.h"
#include "store/database.h"

#include <cstdint>

namespace twk {

/// The project manager: lists the projects, starts the wizard on a new or an existing one, deletes one with
/// its folder, copies one under a new name.
class Form1 {
  public:
    static constexpr const char* name = "Form1";
    static constexpr TextView title = u"Tarnwick";
    static constexpr bool marked = true;

    Form1();

    ScreenMap map; ///< the controls below enter themselves

    TWK_CONTROL(ComboBox, combo1, u"Select an existing Project");
    TWK_CONTROL(TextBox, Text1); ///< name of the copy
    TWK_CONTROL(CommandButton, Command1, u"&New Project");
    TWK_CONTROL(CommandButton, Command3, u"&Open Project");
    TWK_CONTROL(CommandButton, Command4, u"&Delete existing Project");
    TWK_CONTROL(CommandButton, Command6, u"&Copy Project to ...");
    TWK_CONTROL(CommandButton, Command5, u"Edit &Synonym Dictionary");
    TWK_CONTROL(CommandButton, Command7, u"&Help");
    TWK_CONTROL(CommandButton, Command2, u"&Exit");
    TWK_CONTROL(Label, Label2, Text(addresses::maker_site));
    TWK_CONTROL(Label, Label4, u"Tarnwick");
    TWK_CONTROL(Label, Label5, u"Search Engine Optimization Tool");
    TWK_CONTROL(DirListBox, Dir1);   ///< walks a project's folder when it is deleted
    TWK_CONTROL(FileListBox, File1); ///< likewise

    void enumerate(ScreenMap& map);
    void Form_Load();
    /// Adds every project's name to the list, which it does not clear.
    void llenar_proyectos();
    void combo1_Click();
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();
    void Command5_Click();
    void Command6_Click();
    void Command7_Click();
    void Label2_Click();

  private:
    void open_project();
    void delete_folder(const Text& project);
    void delete_rows(std::int16_t pid);
    bool copy_allowed(const Text& project) const;
    void copy_row(const Text& project);
    void copy_keywords();
    void copy_boxes();
    void copy_list(StatementName table);

    Database base_datos_;
    std::int16_t pid_ = 0;      ///< key found on deletion or copy
    std::int16_t copy_pid_ = 0; ///< key of the copy
};

/// Unloads the screens of a project under way: numbers 2 to 18 in ascending order, then Form21. Other screens
/// without a number stay.
void close_project_screens();

} // namespace twk
