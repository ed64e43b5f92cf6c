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

    Form1();

    ComboBox combo1{u"Select an existing Project"};
    TextBox Text1; ///< name of the copy
    CommandButton Command1{u"&New Project"};
    CommandButton Command3{u"&Open Project"};
    CommandButton Command4{u"&Delete existing Project"};
    CommandButton Command6{u"&Copy Project to ..."};
    CommandButton Command5{u"Edit &Synonym Dictionary"};
    CommandButton Command7{u"&Help"};
    CommandButton Command2{u"&Exit"};
    Label Label2{Text(addresses::maker_site)};
    Label Label4{u"Tarnwick"};
    Label Label5{u"Search Engine Optimization Tool"};
    DirListBox Dir1;   ///< walks a project's folder when it is deleted
    FileListBox File1; ///< likewise

    void enumerate(ScreenMap& map);
    void Form_Load();
    void Form_Unload();
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
