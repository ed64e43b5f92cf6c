#pragma once

#include "platform/addresses.h"
#include "platform/screens.h"
#include "store/database.h"

namespace twk {

/// The project manager: lists the projects, opens, deletes and copies them.
class Form1 {
  public:
    static constexpr const char* name = "Form1";
    static constexpr TextView title = u"Tarnwick";

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
    DirListBox Dir1;         ///< walks a project's folder, unseen
    FileListBox File1{u"*"}; ///< likewise

    void enumerate(ScreenMap& map);
    void Form_Load();
    void Form_Unload();
    void combo1_Click();
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();
    void Command5_Click();
    void Command6_Click();
    void Command7_Click();
    void Label2_Click();
    /// Adds every project's name to the list, which it does not clear.
    void llenar_proyectos();

  private:
    void close_project_screens();
    void open_selected();
    void erase_folder(const Text& project);
    void delete_rows();
    void copy_rows(const Text& nombre);
    void copy_keywords();

    Database base_datos_;
    Text sql_;
    Text nombre_hallado_;          ///< project found by the last deletion
    std::int16_t pid_hallado_ = 0; ///< found by the last deletion or copy
    std::int16_t pid_copia_ = 0;
};

} // namespace twk
