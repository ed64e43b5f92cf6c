// SPDX-License-Identifier: MIT
// Walks screens of the wizard for tests/faults/kills.py, which kills it while it does. Each finished step is
// told by a line that leaves the process at once.
//
//   fault_driver APPDIR import PROJECT FILE   imports the words of a file into Step 2
//   fault_driver APPDIR save PROJECT ROUNDS   saves settings, keywords and page names, over and over
//   fault_driver APPDIR copy PROJECT ROUNDS   copies the project under new names
//   fault_driver APPDIR rows                  checks both stores and prints what a project holds
//   fault_driver APPDIR lock STORE            locks a store until the input ends

#include "cli/wizard.h"
#include "engine/form17.h"
#include "inputs/form3.h"
#include "platform/numbers.h"
#include "platform/screens.h"
#include "settings/form6.h"
#include "shell/form1.h"
#include "shell/form2.h"
#include "store/store_setup.h"
#include "store/stores.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <sstream>

#include <unistd.h>

namespace twk {

namespace {

void tell(const std::string& line) {
    const std::string out = line + "\n";
    if (::write(STDOUT_FILENO, out.data(), out.size()) < 0) _exit(3);
}

/// Answers the question for a file with one name.
class SavingDesktop : public cli::ConsoleDesktop {
  public:
    using ConsoleDesktop::ConsoleDesktop;
    Text file;
    std::optional<Text> ask_save_file(const FileQuestion&) override { return file; }
};

void require(bool done, const std::string& what) {
    if (done) return;
    std::cerr << what << " failed\n";
    _exit(1);
}

/// The project manager, with the project chosen.
Form1& choose(const Text& project) {
    screens().dispatch([] { screens().show<Form1>(); });
    Form1& manager = screen<Form1>();
    const auto& names = manager.combo1.entries();
    const auto found = std::find(names.begin(), names.end(), project);
    require(found != names.end(), "choosing the project");
    manager.combo1.select(static_cast<int>(found - names.begin()));
    return manager;
}

/// From the project manager to Step 2.
Form3& enter_step_two(const Text& project) {
    choose(project);
    require(screens().fire<Form1>("Command3", "Click"), "opening the project");
    require(screens().fire<Form2>("Command2", "Click"), "Step 1");
    require(screens().is_loaded<Form3>(), "reaching Step 2");
    return screen<Form3>();
}

void import_words(const Text& project, const std::filesystem::path& file) {
    Form3& step2 = enter_step_two(project);
    int told = step2.List1.list_count();
    // A word is listed when its row is in the store.
    step2.List1.observer.watch([&](Prop which) {
        if (which == Prop::list && step2.List1.list_count() > told)
            tell("keyword " + to_utf8(step2.List1.list(told++)));
    });
    const int kind = file.extension() == ".exp" ? 0 : 1;
    screens().fire<Form3>("op_imp", "Click", kind);
    step2.Cmb_separator.text = u"Enter";
    step2.Dir2.set_path(from_utf8(file.parent_path().string()));
    step2.File2.set_path(step2.Dir2.path());
    const auto& names = step2.File2.entries();
    const auto found = std::find(names.begin(), names.end(), from_utf8(file.filename().string()));
    require(found != names.end(), "finding the file");
    step2.File2.list_index = static_cast<int>(found - names.begin());
    screens().fire<Form3>("Command20", "Click");
    step2.List1.observer.watch({});
    tell("imported");
}

/// Every file bears the number of its round: the settings as their font's colour, the keyword list as its
/// first keyword, the list of page names as a name.
void save_lists(SavingDesktop& desktop, const Text& project, int rounds) {
    Form3& step2 = enter_step_two(project);
    Form6& step5 = screen<Form6>();
    Form17& step6 = screen<Form17>();
    for (int round = 1; round <= rounds; ++round) {
        const Text mark = u"round " + to_text(round);
        step5.Text4.text = mark;
        desktop.file = beside_program(project + u".dat");
        require(screens().fire<Form6>("Command4", "Click"), "saving the settings");
        tell("dat " + std::to_string(round));
        step2.List1.set_list(0, mark);
        desktop.file = beside_program(u"kept.exp");
        require(screens().fire<Form3>("Command4", "Click"), "exporting");
        tell("exp " + std::to_string(round));
        step6.List1.clear();
        step6.List1.add_item(mark);
        for (int i = 0; i < 200; ++i) step6.List1.add_item(u"page_" + to_text(i) + u".htm");
        step6.List2.clear();
        desktop.file = beside_program(u"kept.fnm");
        require(screens().fire<Form17>("Command4", "Click"), "saving the names");
        tell("fnm " + std::to_string(round));
    }
    tell("saved");
}

void copy_project(const Text& project, int rounds) {
    for (int round = 0; round < rounds; ++round) {
        Form1& manager = choose(project);
        const Text name = u"copy" + to_text(manager.combo1.list_count());
        manager.Text1.text = name;
        require(screens().fire<Form1>("Command6", "Click"), "copying");
        tell("copy " + to_utf8(name));
        screens().dispatch([] { screens().unload<Form1>(); });
    }
    tell("copied");
}

/// First column of all rows, a line each, "name: value".
bool print_rows(sqlite3* store, std::string name, const std::string& query) {
    const auto print = [](void* to, int, char** values, char**) {
        tell(*static_cast<std::string*>(to) + ": " + (values[0] != nullptr ? values[0] : ""));
        return 0;
    };
    return sqlite3_exec(store, query.c_str(), print, &name, nullptr) == SQLITE_OK;
}

void print_stores() {
    const std::string hive = to_utf8(beside_program(u"hive.mdb"));
    const std::string synonyms = to_utf8(beside_program(u"synonyms.mdb"));
    sqlite3* const words = open_store(synonyms, SQLITE_OPEN_READWRITE, "");
    require(print_rows(words, "synonyms integrity", "PRAGMA integrity_check"), "checking the synonym store");
    print_rows(words, "synonyms", "select count(*) from synonyms");
    sqlite3_close_v2(words);
    sqlite3* const projects = open_store(hive, SQLITE_OPEN_READWRITE, "lantern4821");
    require(print_rows(projects, "hive integrity", "PRAGMA integrity_check"), "checking the project store");
    // Gives a row for every page whose seal is broken.
    print_rows(projects, "broken page", "PRAGMA cipher_integrity_check");
    print_rows(
        projects, "project",
        "select name || ' ' || (select count(*) from keywords k where k.pid = p.pid) || ' ' || "
        "(select count(*) from elements e join keywords k on e.catid = k.keyid where k.pid = p.pid) || ' ' "
        "|| (select count(*) || ' ' || coalesce(sum(length(content)), 0) from content c where c.pid = "
        "p.pid) || ' ' || (select count(*) from host h where h.pid = p.pid) || ' ' || (select count(*) "
        "from target t where t.pid = p.pid) from Projects p");
    print_rows(projects, "keyword", "select keyword from keywords where pid = 1");
    print_rows(
        projects, "subkeyword",
        "select k.keyword || '/' || element from elements join keywords k on catid = keyid where pid = 1");
    sqlite3_close_v2(projects);
}

void lock_store(const Text& name) {
    sqlite3* const store = open_store(to_utf8(beside_program(name)), SQLITE_OPEN_READWRITE,
                                      name == u"hive.mdb" ? "lantern4821" : "");
    require(sqlite3_exec(store, "begin exclusive", nullptr, nullptr, nullptr) == SQLITE_OK, "locking");
    tell("locked");
    std::cin.get();
    sqlite3_close_v2(store);
}

int drive(const std::vector<std::string>& arguments) {
    std::ostringstream ignored;
    const cli::Console console{ignored, std::cerr};
    cli::Session<SavingDesktop> session(console, arguments[0]);
    const std::string& action = arguments[1];
    const auto argument = [&](std::size_t i) { return i < arguments.size() ? arguments[i] : std::string(); };
    const Text project = from_utf8(argument(2));
    if (action == "import") import_words(project, argument(3));
    if (action == "save") save_lists(session.desktop, project, std::stoi(argument(3)));
    if (action == "copy") copy_project(project, std::stoi(argument(3)));
    if (action == "rows") print_stores();
    if (action == "lock") lock_store(project);
    return 0;
}

} // namespace

} // namespace twk

int main(int argc, char** argv) {
    if (argc < 3) return 2;
    try {
        return twk::drive({argv + 1, argv + argc});
    } catch (const std::exception& fault) {
        std::cerr << fault.what() << '\n';
        return 1;
    }
}
