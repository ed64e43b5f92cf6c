// SPDX-License-Identifier: MIT
#include "shell/project_list.h"

#include "platform/desktop.h"
#include "platform/file_system.h"
#include "shell/form1.h"
#include "store/statements.h"
#include "store/stores.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <map>

namespace twk {

namespace {

/// Rows of a table by the key of their project.
std::map<int, int> rows_by_project(Database& store, StatementName table) {
    std::map<int, int> count;
    for (const auto row : store.OpenRecordset({u"select pid from {}", table}))
        if (!row.Fields(u"pid").is_null()) ++count[static_cast<int>(row.Fields(u"pid").number())];
    return count;
}

} // namespace

Text last_run_of(const Text& project) {
    const std::filesystem::path page =
        disk_path(joined_path(beside_program(u"Projects"), project, u"sitemap-do-not-upload.htm"));
    std::error_code missing;
    const auto written = std::filesystem::last_write_time(page, missing);
    if (missing) return {};
    const auto since = std::chrono::file_clock::to_sys(written).time_since_epoch();
    const std::time_t moment = std::chrono::duration_cast<std::chrono::seconds>(since).count();
    std::tm local{};
    localtime_r(&moment, &local);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%d %H:%M", &local);
    return from_utf8(text);
}

std::vector<ProjectLine> project_lines() {
    Database store = open_hive();
    const std::map<int, int> keywords = rows_by_project(store, u"keywords");
    const std::map<int, int> boxes = rows_by_project(store, u"content");
    const auto count = [](const std::map<int, int>& all, int pid) {
        const auto at = all.find(pid);
        return at == all.end() ? 0 : at->second;
    };
    std::vector<ProjectLine> lines;
    for (const auto row : store.OpenRecordset(statements::project_names())) {
        const int pid = static_cast<int>(row.Fields(u"pid").number());
        const Text name = row.Fields(u"name").is_null() ? Text() : row.Fields(u"name").text();
        lines.push_back({name, count(keywords, pid), count(boxes, pid), last_run_of(name)});
    }
    return lines;
}

void open_listed_project(const Text& name) {
    screens().bring_forward<Form1>();
    Form1& manager = screen<Form1>();
    const auto& names = manager.combo1.entries();
    const auto at = std::find(names.begin(), names.end(), name);
    manager.combo1.select(at == names.end() ? -1 : static_cast<int>(at - names.begin()));
    if (at != names.end()) screens().fire<Form1>("combo1", "Click");
    screens().fire<Form1>("Command3", "Click");
}

void start_new_project() {
    screens().bring_forward<Form1>();
    screens().fire<Form1>("Command1", "Click");
}

} // namespace twk
