#include "support/sample_project.h"

#include <fstream>
#include <map>
#include <set>

#include <gtest/gtest.h>

namespace twk::test {

namespace fs = std::filesystem;

namespace {

/// Relative path to content of every text file of a tree; of other files only the names, under "other files".
using Tree = std::map<std::string, std::string>;

bool is_text(const fs::path& file) {
    const Text extension = LCase(from_utf8(file.extension().string()));
    return extension.starts_with(u".htm") || extension == u".txt" || extension == u".csv" ||
           extension == u".json" || extension.empty();
}

Tree read_tree(const fs::path& folder, const std::string& app) {
    Tree tree;
    std::set<std::string> others;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file()) continue;
        const std::string name = fs::relative(entry.path(), folder).generic_string();
        if (!is_text(entry.path())) {
            others.insert(name);
            continue;
        }
        std::string& text = tree[name] = bytes_of(entry.path());
        for (std::size_t at = 0; !app.empty() && (at = text.find(app, at)) != std::string::npos;)
            text.replace(at, app.size(), "{APP}");
    }
    for (const std::string& name : others) tree["other-files.txt"] += name + "\n";
    return tree;
}

void write_tree(const Tree& tree, const fs::path& folder) {
    for (const auto& [name, text] : tree) {
        fs::create_directories((folder / name).parent_path());
        std::ofstream(folder / name, std::ios::binary) << text;
    }
}

std::string line_at(const std::string& text, std::size_t at) {
    const std::size_t from = at == 0 ? 0 : text.rfind('\n', at - 1) + 1;
    return at == text.size() ? "(end)" : text.substr(from, text.find('\n', from) - from);
}

} // namespace

void expect_same_tree(const Text& actual_folder, const std::string& golden_case) {
    const fs::path golden_folder = golden(golden_case);
    const Tree actual = read_tree(to_utf8(actual_folder), to_utf8(app_path()));
    if (!fs::exists(golden_folder)) {
        write_tree(actual, golden_folder);
        ADD_FAILURE() << "no golden pages: written to " << golden_folder << "; look at them and run again";
        return;
    }
    const Tree golden = read_tree(golden_folder, "");
    for (const auto& [name, text] : golden) {
        const auto found = actual.find(name);
        if (found == actual.end()) {
            ADD_FAILURE() << golden_case << ": not written: " << name;
            continue;
        }
        const std::string& written = found->second;
        if (written == text) continue;
        const auto end = std::mismatch(text.begin(), text.end(), written.begin(), written.end()).first;
        const auto at = static_cast<std::size_t>(end - text.begin());
        ADD_FAILURE() << golden_case << ": " << name << ", line " << std::count(text.begin(), end, '\n') + 1
                      << "\n  golden:  " << line_at(text, at) << "\n  written: " << line_at(written, at);
    }
    for (const auto& [name, text] : actual)
        EXPECT_TRUE(golden.contains(name)) << golden_case << ": written, and not expected: " << name;
}

} // namespace twk::test
