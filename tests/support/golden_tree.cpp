#include "platform/desktop.h"
#include "support/sample_project.h"

#include <fstream>
#include <map>

#include <gtest/gtest.h>

namespace twk::test {

namespace fs = std::filesystem;

namespace {

/// Relative path to lines of every text file of a tree; of other files only the names, under "other files".
using Tree = std::map<std::string, std::vector<std::string>>;

constexpr const char* other_files = "other-files.txt";

bool is_text(const fs::path& file) {
    const Text extension = LCase(from_utf8(file.extension().string()));
    return extension.starts_with(u".htm") || extension == u".txt" || extension.empty();
}

std::vector<std::string> lines_of(const fs::path& file, const std::string& app) {
    std::string text = bytes_of(file);
    for (std::size_t at = 0; !app.empty() && (at = text.find(app, at)) != std::string::npos;)
        text.replace(at, app.size(), "{APP}");
    std::vector<std::string> lines;
    for (std::size_t from = 0; from <= text.size();) {
        const std::size_t end = std::min(text.find('\n', from), text.size());
        lines.push_back(text.substr(from, end - from));
        from = end + 1;
    }
    return lines;
}

Tree read_tree(const fs::path& folder, const std::string& app) {
    Tree tree;
    std::vector<std::string> others;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file()) continue;
        const std::string name = fs::relative(entry.path(), folder).generic_string();
        if (is_text(entry.path()))
            tree[name] = lines_of(entry.path(), app);
        else
            others.push_back(name);
    }
    std::sort(others.begin(), others.end());
    others.emplace_back(); // a line end behind the last name
    if (others.size() > 1) tree[other_files] = others;
    return tree;
}

void write_tree(const Tree& tree, const fs::path& folder) {
    for (const auto& [name, lines] : tree) {
        fs::create_directories((folder / name).parent_path());
        std::ofstream out(folder / name, std::ios::binary);
        for (std::size_t i = 0; i < lines.size(); ++i) out << (i == 0 ? "" : "\n") << lines[i];
    }
}

} // namespace

void expect_same_tree(const Text& actual_folder, const std::string& golden_case) {
    const fs::path golden_folder = fs::path(TEST_GOLDEN_DIR) / golden_case;
    const Tree actual = read_tree(to_utf8(actual_folder), to_utf8(app_path()));
    if (!fs::exists(golden_folder)) {
        write_tree(actual, golden_folder);
        ADD_FAILURE() << "no golden pages: written to " << golden_folder << "; look at them and run again";
        return;
    }
    const Tree golden = read_tree(golden_folder, "");
    for (const auto& [name, lines] : golden) {
        const auto found = actual.find(name);
        if (found == actual.end()) {
            ADD_FAILURE() << golden_case << ": not written: " << name;
            continue;
        }
        const auto [a, g] =
            std::mismatch(found->second.begin(), found->second.end(), lines.begin(), lines.end());
        if (a == found->second.end() && g == lines.end()) continue;
        ADD_FAILURE() << golden_case << ": " << name << ", line " << g - lines.begin() + 1
                      << "\n  golden:  " << (g == lines.end() ? "(end)" : *g)
                      << "\n  written: " << (a == found->second.end() ? "(end)" : *a);
    }
    for (const auto& [name, lines] : actual)
        EXPECT_TRUE(golden.contains(name)) << golden_case << ": written, and not expected: " << name;
}

} // namespace twk::test
