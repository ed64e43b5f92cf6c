// SPDX-License-Identifier: MIT
#include "faults/hostile_app.h"

#include "engine/run.h"
#include "platform/numbers.h"
#include "settings/form6.h"

#include <set>

namespace twk::test {

namespace fs = std::filesystem;

namespace {

/// Files of the test's own project; all others are precious.
bool own_file(const std::string& name) {
    static const std::set<std::string> roots{"shed.dat", "shed.dataux", "last-generated.txt",
                                             "last-generated.txtaux"};
    return roots.contains(name) || name.starts_with("Projects/shed/") || name == "Projects/shed" ||
           name.starts_with("hive.mdb") || name.starts_with("synonyms.mdb") || name == "given" ||
           name.starts_with("given/");
}

/// A line for every entry, with its length and what stands in it, in few words.
std::string tree(const fs::path& top) {
    std::set<std::string> lines;
    for (const auto& entry : fs::recursive_directory_iterator(top)) {
        const std::string name = fs::relative(entry.path(), top).generic_string();
        if (own_file(name)) continue;
        const std::string content =
            entry.is_symlink() ? fs::read_symlink(entry.path()).string() : bytes_of(entry.path());
        lines.insert(name + " " + std::to_string(content.size()) + " " +
                     std::to_string(std::hash<std::string>()(content)));
    }
    std::string all;
    for (const std::string& line : lines) all += line + "\n";
    return all;
}

/// Rows of every project but the first, and of the schema.
std::string others_rows(const TempApp& app) {
    std::string rows;
    for (const char* table : {"Projects", "keywords", "content", "ties", "host", "host1", "target"})
        rows += table + app.rows_of("select pid from " + std::string(table) + " where pid <> 1") + "\n";
    rows += app.rows_of("select element from elements where catid > 900") + "\n";
    const std::string all = app.all_rows();
    return rows + all.substr(all.find("table|"));
}

} // namespace

void HostileApp::SetUp() {
    app.desktop.always(u"Are you sure you want to proceed?", Answer::yes);
    app.desktop.always(u"", Answer::ok); // whatever is told, the user goes on
    project = std::make_unique<SampleProject>(app);
    app.run(
        "insert into Projects (pid, name, site_name, site_url, title, category, description, designer_name, "
        "designer_url) values (900, 'precious', 's', 'http://u', 't', 'c', 'd', 'n', 'w');"
        "insert into keywords (keyid, pid, keyword) values (901, 900, 'kept');"
        "insert into elements (eid, catid, element) values (902, 901, 'below');"
        "insert into content (cid, pid, content) values (903, 900, 'text');"
        "insert into ties (tieid, pid, keyid, cid) values (904, 900, 901, 903);"
        "insert into host values (900, 'http://h'); insert into host1 values (900, 'http://m');"
        "insert into target values (900, 'http://t');");
    fs::create_directories(app.folder() / "Projects" / "precious" / "main");
    fs::create_directories(app.folder() / "outside");
    for (const char16_t* file : {u"Projects/precious/main/page.htm", u"Projects/escape.htm",
                                 u"outside/file.txt", u"precious.dat", u"precious.fnm", u"escape.htm"})
        app.write(file, "precious");
    fs::create_directory_symlink(app.folder() / "outside", app.folder() / "Projects" / "link");
    before_ = precious();
}

void HostileApp::TearDown() {
    EXPECT_EQ(precious(), before_);
}

std::string HostileApp::precious() const {
    return tree(app.folder()) + others_rows(app);
}

int HostileApp::fault_of_dispatch(const std::function<void()>& event) {
    const std::size_t told = app.desktop.messages.size();
    screens().dispatch(event);
    for (std::size_t i = told; i < app.desktop.messages.size(); ++i) {
        const Text& text = app.desktop.messages[i].text;
        if (const int at = InStr(text, u"Run-time error '"); at > 0)
            return static_cast<int>(Val(Mid(text, at + 16)));
    }
    return 0;
}

int HostileApp::run_project() {
    const int fault = fault_of_event<Form6>("Command1");
    if (fault != 0) return fault;
    return project->form.run != nullptr && project->run().finished ? 0 : -1;
}

} // namespace twk::test
