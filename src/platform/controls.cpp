// SPDX-License-Identifier: MIT
#include "platform/controls.h"

#include "platform/desktop.h"
#include "platform/file_system.h"
#include "platform/subscript.h"

#include <algorithm>
#include <string_view>

#include <pwd.h>
#include <unistd.h>

namespace twk {

namespace {

const Text nothing;

const Text& entry(const std::vector<Text>& entries, int index) {
    if (index < 0 || index >= static_cast<int>(entries.size())) return nothing;
    return entries[static_cast<std::size_t>(index)];
}

std::size_t place(const std::vector<Text>& entries, int index) {
    if (index < 0 || index >= static_cast<int>(entries.size())) throw RuntimeFault(fault_argument);
    return static_cast<std::size_t>(index);
}

std::ptrdiff_t offset(std::size_t at) {
    return static_cast<std::ptrdiff_t>(at);
}

} // namespace

const Text& BoxText::operator()() const {
    if (in_front_.empty()) return value_;
    std::size_t size = value_.size();
    for (const Text& piece : in_front_) size += piece.size();
    Text whole;
    whole.reserve(size);
    for (auto piece = in_front_.rbegin(); piece != in_front_.rend(); ++piece) whole += *piece;
    in_front_.clear();
    value_ = std::move(whole += value_);
    return value_;
}

BoxText& BoxText::operator=(Text value) {
    from_user(std::move(value));
    observer_(Prop::text);
    return *this;
}

void BoxText::from_user(Text value) {
    in_front_.clear();
    value_ = std::move(value);
}

void BoxText::put_in_front(Text piece) {
    in_front_.push_back(std::move(piece));
    observer_(Prop::front);
}

const Text& BoxText::newest() const {
    return in_front_.empty() ? nothing : in_front_.back();
}

const Text& ListBox::list(int index) const {
    return entry(entries_, index);
}

void ListBox::tell(Prop which, ListChange change) {
    change_ = change;
    const bool appended = change.removed == 0 && change.added == 1 && change.at == list_count() - 1;
    if (which == Prop::list && !appended) ++edits_;
    observer(which);
}

void ListBox::set_list(int index, Text entry) {
    entries_[place(entries_, index)] = std::move(entry);
    tell(Prop::list, {index, 1, 1});
}

void ListBox::add_item(Text entry) {
    entries_.push_back(std::move(entry));
    marks_.push_back(false);
    tell(Prop::list, {list_count() - 1, 0, 1});
}

void ListBox::remove_item(int index) {
    const std::size_t at = place(entries_, index);
    entries_.erase(entries_.begin() + offset(at));
    marks_.erase(marks_.begin() + offset(at));
    if (list_index() == index)
        list_index.from_user(-1);
    else if (list_index() > index)
        list_index.from_user(list_index() - 1);
    tell(Prop::list, {index, 1, 0});
}

void ListBox::clear() {
    set_entries({});
}

void ListBox::set_entries(std::vector<Text> entries) {
    const int before = list_count();
    const int now = static_cast<int>(entries.size());
    entries_ = std::move(entries);
    if (now != before) {
        marks_.assign(entries_.size(), false);
        list_index.from_user(-1);
    }
    tell(Prop::list, {0, before, now});
}

bool ListBox::selected(int index) const {
    if (!multi_select && !tick_marks) return index >= 0 && index == list_index();
    return index >= 0 && index < list_count() && marks_[static_cast<std::size_t>(index)];
}

void ListBox::set_selected(int index, bool on) {
    const std::size_t at = place(entries_, index);
    if (!multi_select && !tick_marks) {
        if (on)
            list_index = index;
        else if (list_index() == index)
            list_index = -1;
        return;
    }
    marks_[at] = on;
    tell(Prop::selection, {index, 1, 1});
}

int ListBox::sel_count() const {
    if (!multi_select && !tick_marks) return list_index() >= 0 ? 1 : 0;
    return static_cast<int>(std::count(marks_.begin(), marks_.end(), true));
}

std::vector<Text> ListBox::selected_entries() const {
    std::vector<Text> chosen;
    for (int i = 0; i < list_count(); ++i)
        if (selected(i)) chosen.push_back(list(i));
    return chosen;
}

int ListBox::selected_place(const Text& entry) const {
    for (int i = 0; i < list_count(); ++i)
        if (selected(i) && list(i) == entry) return i;
    return -1;
}

void ListBox::select_from_user(int current, const std::vector<int>& marked) {
    list_index.from_user(current);
    std::fill(marks_.begin(), marks_.end(), false);
    for (const int index : marked)
        if (index >= 0 && index < list_count()) marks_[static_cast<std::size_t>(index)] = true;
}

const Text& ComboBox::list(int index) const {
    return entry(entries_, index);
}

void ComboBox::add_item(Text entry) {
    entries_.push_back(std::move(entry));
    observer(Prop::list);
}

void ComboBox::clear() {
    entries_.clear();
    list_index.from_user(-1);
    observer(Prop::list);
    text = Text();
}

void ComboBox::select(int index) {
    list_index = index;
    text = entry(entries_, index);
}

void ProgressBar::set_value(double value) {
    value_ = std::clamp(value, 0.0, 100.0);
    observer(Prop::value);
}

void Grid::resize(int row_count, std::vector<Text> header_cells) {
    header = std::move(header_cells);
    rows.assign(static_cast<std::size_t>(std::max(row_count, 0)), std::vector<Text>(header.size()));
    row = 0;
    observer(Prop::cells);
}

void Grid::clear() {
    resize(0, {});
}

void Grid::set_cell(int at_row, int column, Text text) {
    at(at(rows, at_row - 1), column) = std::move(text);
    observer(Prop::cells);
}

void FileListBox::set_path(Text path) {
    std::vector<Text> entries = list_files(path, pattern_);
    path_ = std::move(path);
    entries_ = std::move(entries);
    list_index.from_user(-1);
    observer(Prop::list);
}

void FileListBox::set_pattern(Text pattern) {
    pattern_ = std::move(pattern);
    observer(Prop::pattern);
    if (!path_.empty()) set_path(path_);
}

void FileListBox::refresh() {
    if (!path_.empty()) set_path(path_);
}

int FileListBox::place_of(const Text& file) const {
    const auto at = std::find(entries_.begin(), entries_.end(), file);
    return at == entries_.end() ? -1 : static_cast<int>(at - entries_.begin());
}

const Text& FileListBox::list(int index) const {
    return entry(entries_, index);
}

void DirListBox::set_path(Text path) {
    std::vector<Text> folders = list_folders(path);
    path_ = std::move(path);
    for (Text& folder : folders) folder = joined_path(path_, folder);
    entries_ = std::move(folders);
    list_index.from_user(-1);
    observer(Prop::path);
    observer(Prop::list);
}

void DirListBox::refresh() {
    if (!path_.empty()) set_path(path_);
}

Text DirListBox::list(int index) const {
    if (index >= 0) return entry(entries_, index);
    Text folder = path_;
    for (int up = -1; up > index && !folder.empty(); --up)
        folder = folder == path_separator ? Text() : folder_of(folder);
    return folder;
}

DriveListBox::DriveListBox() {
    entries_.emplace_back(path_separator);
    const passwd* const user = getpwuid(getuid());
    if (user != nullptr && std::string_view(user->pw_dir) != "/") entries_.push_back(from_utf8(user->pw_dir));
    for (const char16_t* place : {u"/media", u"/mnt"})
        if (dir_exists(place)) entries_.emplace_back(place);
}

const Text& DriveListBox::list(int index) const {
    return entry(entries_, index);
}

namespace {

bool cancelled(const CommonDialog& dialog) {
    if (dialog.cancel_error) throw RuntimeFault(fault_dialog_cancelled);
    return false;
}

FileQuestion question_of(const CommonDialog& dialog) {
    return {dialog.dialog_title, dialog.init_dir, dialog.filter, dialog.file_name, {}};
}

bool take_file(CommonDialog& dialog, std::optional<Text> chosen) {
    if (!chosen) return cancelled(dialog);
    dialog.file_name = std::move(*chosen);
    return true;
}

} // namespace

bool CommonDialog::show_open() {
    return take_file(*this, desktop().ask_open_file(question_of(*this)));
}
bool CommonDialog::show_save() {
    FileQuestion question = question_of(*this);
    question.ending = default_ext;
    if (!take_file(*this, desktop().ask_save_file(question))) return false;
    file_name = with_ending(file_name, default_ext);
    return true;
}

bool CommonDialog::show_color() {
    const std::optional<std::uint32_t> chosen = desktop().ask_color(color);
    if (!chosen) return cancelled(*this);
    color = *chosen;
    return true;
}

bool CommonDialog::show_font() {
    const std::optional<FontChoice> chosen =
        desktop().ask_font({font_name, font_size, font_bold, font_italic, font_strikethru, font_underline});
    if (!chosen) return cancelled(*this);
    font_name = chosen->name;
    font_size = chosen->size;
    font_bold = chosen->bold;
    font_italic = chosen->italic;
    font_strikethru = chosen->strikethrough;
    font_underline = chosen->underline;
    return true;
}

} // namespace twk
