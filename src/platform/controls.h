// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <cstdint>
#include <functional>
#include <vector>

/// The controls of the screens: plain structs with the properties in use. A property is read as
/// `Text1.text()` and written as `Text1.text = u"..."`; a write tells the control's observer. Writing a
/// property never fires an event of the screen: events come from the front end alone.
namespace twk {

enum class Prop {
    text,
    front, ///< a piece has been put in front of a box's text (`BoxText`)
    caption,
    enabled,
    visible,
    value,
    list,       ///< entries of a list, or of a file or folder list
    list_index, ///< the current entry, -1 for none
    selection,  ///< marks of a list in which several entries can be chosen
    notes,      ///< what is told beside the entries of a list
    path,
    pattern,
    focus, ///< the control has been given the focus
    cells,
    location,
    interval,
};

/// Who is told of a change; at most one, the front end that shows the control.
class Observer {
  public:
    void watch(std::function<void(Prop)> tell) { tell_ = std::move(tell); }
    void operator()(Prop which) const {
        if (tell_) tell_(which);
    }

  private:
    std::function<void(Prop)> tell_;
};

/// One property of a control. Tied to its control for life, hence neither copied nor moved.
template <class T> class Property {
  public:
    Property(const Observer& observer, Prop which, T initial)
        : observer_(observer), which_(which), value_(std::move(initial)) {}
    Property(const Property&) = delete;
    Property& operator=(const Property& other) { return *this = other.value_; }

    const T& operator()() const { return value_; }
    Property& operator=(const T& value) {
        value_ = value;
        observer_(which_);
        return *this;
    }
    Property& operator=(T&& value) {
        value_ = std::move(value);
        observer_(which_);
        return *this;
    }
    /// What the front end writes when the user has changed the control: nobody is told.
    void from_user(T value) { value_ = std::move(value); }

  private:
    const Observer& observer_;
    const Prop which_;
    T value_;
};

/// The text of a box, used as any property. A log grows at its front, newest entry first: what is put there
/// is joined with the rest when the whole is read, so that thousands of entries cost no more than their
/// length.
class BoxText {
  public:
    BoxText(const Observer& observer, Text initial) : observer_(observer), value_(std::move(initial)) {}
    BoxText(const BoxText&) = delete;
    BoxText& operator=(const BoxText& other) { return *this = other(); }

    const Text& operator()() const;
    BoxText& operator=(Text value);
    /// What the front end writes when the user has changed the box: nobody is told.
    void from_user(Text value);
    /// The observer is told of `Prop::front` alone and finds the piece in `newest`.
    void put_in_front(Text piece);
    /// The piece put in front last; empty when the whole has been read or written since.
    const Text& newest() const;

  private:
    const Observer& observer_;
    mutable Text value_;
    mutable std::vector<Text> in_front_; ///< not yet joined, the newest at the end
};

struct Label {
    explicit Label(Text text = {}) : caption(observer, Prop::caption, std::move(text)) {}
    Observer observer;
    Property<Text> caption;
    Property<bool> enabled{observer, Prop::enabled, true};
    Property<bool> visible{observer, Prop::visible, true};
};

struct Frame {
    explicit Frame(Text text = {}) : caption(observer, Prop::caption, std::move(text)) {}
    Observer observer;
    Property<Text> caption;
    Property<bool> enabled{observer, Prop::enabled, true};
    Property<bool> visible{observer, Prop::visible, true};
};

/// A button. Its "&" marks the letter of its shortcut.
struct CommandButton {
    explicit CommandButton(Text text = {}) : caption(observer, Prop::caption, std::move(text)) {}
    Observer observer;
    Property<Text> caption;
    Property<bool> enabled{observer, Prop::enabled, true};
    Property<bool> visible{observer, Prop::visible, true};
    void set_focus() { observer(Prop::focus); }
};

struct TextBox {
    explicit TextBox(Text initial = {}) : text(observer, std::move(initial)) {}
    Observer observer;
    BoxText text;
    Property<bool> enabled{observer, Prop::enabled, true};
    Property<bool> visible{observer, Prop::visible, true};
    bool read_only = false;
    /// Takes several lines that are put into the box at once, where the screen has a way; may be empty.
    std::function<void(const Text&)> take_lines;
    void set_focus() { observer(Prop::focus); }
};

/// A rich-text box, of which only the plain text is used.
struct RichTextBox {
    explicit RichTextBox(Text initial = {}) : text(observer, Prop::text, std::move(initial)) {}
    Observer observer;
    Property<Text> text;
    Property<bool> enabled{observer, Prop::enabled, true};
    Property<bool> visible{observer, Prop::visible, true};
    bool read_only = false;
    void set_focus() { observer(Prop::focus); }
};

struct CheckBox {
    explicit CheckBox(Text text = {}, bool on = false)
        : caption(observer, Prop::caption, std::move(text)), value(observer, Prop::value, on) {}
    Observer observer;
    Property<Text> caption;
    Property<bool> value;
    Property<bool> enabled{observer, Prop::enabled, true};
    Property<bool> visible{observer, Prop::visible, true};
};

struct OptionButton {
    explicit OptionButton(Text text = {}, bool on = false)
        : caption(observer, Prop::caption, std::move(text)), value(observer, Prop::value, on) {}
    Observer observer;
    Property<Text> caption;
    /// Setting one on does not set the others of its group off: the screen does (`choose_option`).
    Property<bool> value;
    Property<bool> enabled{observer, Prop::enabled, true};
    Property<bool> visible{observer, Prop::visible, true};
};

/// Sets one option of a group on and the others off.
template <class Options> void choose_option(Options& group, std::size_t index) {
    for (std::size_t i = 0; i < group.size(); ++i) group[i].value = i == index;
}

/// What a list was last changed by: from `at` on, `removed` entries have given way to `added` others. What
/// shows the list need not look at the rest.
struct ListChange {
    int at = 0;
    int removed = 0;
    int added = 0;
};

/// A list, of which the user chooses one entry or, with `multi_select` or `tick_marks`, several.
struct ListBox {
    Observer observer;
    Property<int> list_index{observer, Prop::list_index, -1};
    Property<bool> enabled{observer, Prop::enabled, true};
    Property<bool> visible{observer, Prop::visible, true};
    bool multi_select = false;
    bool tick_marks = false;
    /// The text that an entry stands for, where that is more than the entry; may be empty.
    std::function<Text(int)> full_text;
    /// A few words told below an entry; may be empty. Whoever changes what it gives tells by `renew_notes`.
    std::function<Text(int)> note;
    void renew_notes() const { observer(Prop::notes); }

    int list_count() const { return static_cast<int>(entries_.size()); }
    /// Entry at the index; an empty text outside the list.
    const Text& list(int index) const;
    /// Replaces an entry; an index outside the list is fault 5.
    void set_list(int index, Text entry);
    void add_item(Text entry);
    /// An index outside the list is fault 5. The selection closes up with the list.
    void remove_item(int index);
    void clear();
    /// Puts other entries in the place of all, and tells it once. As many as before keep marks and selection.
    void set_entries(std::vector<Text> entries);
    /// What the latest Prop::list, or Prop::selection, is about.
    const ListChange& last_change() const { return change_; }
    /// The current entry, empty when there is none.
    const Text& text() const { return list(list_index()); }
    const std::vector<Text>& entries() const { return entries_; }
    /// Moves with every change of the entries but one more at the end.
    std::uint64_t edits() const { return edits_; }

    bool selected(int index) const;
    void set_selected(int index, bool on);
    int sel_count() const;
    /// Texts of the selected entries.
    std::vector<Text> selected_entries() const;
    /// Place of the first selected entry of that text, -1 when there is none.
    int selected_place(const Text& entry) const;
    /// Marks and current entry as the user has set them: nobody is told.
    void select_from_user(int current, const std::vector<int>& marked);
    void set_focus() { observer(Prop::focus); }

  private:
    void tell(Prop which, ListChange change);

    std::vector<Text> entries_;
    std::vector<bool> marks_;
    std::uint64_t edits_ = 0;
    ListChange change_;
};

/// A drop-down with a text that the user can type over.
struct ComboBox {
    explicit ComboBox(Text initial = {}) : text(observer, Prop::text, std::move(initial)) {}
    Observer observer;
    /// What the box shows. Writing it leaves `list_index` alone: the screens that need an entry use `select`.
    Property<Text> text;
    Property<int> list_index{observer, Prop::list_index, -1};
    Property<bool> enabled{observer, Prop::enabled, true};
    Property<bool> visible{observer, Prop::visible, true};
    /// The text that an entry stands for, where that is more than the entry; may be empty.
    std::function<Text(int)> full_text;

    int list_count() const { return static_cast<int>(entries_.size()); }
    const Text& list(int index) const;
    void add_item(Text entry);
    /// Empties the list, the text and the selection.
    void clear();
    /// Chooses an entry as the user would: index and text follow; -1 chooses none.
    void select(int index);
    const std::vector<Text>& entries() const { return entries_; }
    void set_focus() { observer(Prop::focus); }

  private:
    std::vector<Text> entries_;
};

struct Slider {
    Slider(int least, int most) : minimum(least), maximum(most), value(observer, Prop::value, least) {}
    Observer observer;
    const int minimum;
    const int maximum;
    Property<int> value;
    Property<bool> enabled{observer, Prop::enabled, true};
    Property<bool> visible{observer, Prop::visible, true};
};

/// Progress from 0 to 100. A value past the ends is held at the end.
struct ProgressBar {
    Observer observer;
    Property<bool> enabled{observer, Prop::enabled, true};
    Property<bool> visible{observer, Prop::visible, true};
    double value() const { return value_; }
    void set_value(double value);

  private:
    double value_ = 0;
};

struct Grid {
    Observer observer;
    Property<bool> enabled{observer, Prop::enabled, true};
    Property<bool> visible{observer, Prop::visible, true};
    /// Rows below the header; every row has as many cells as the header.
    std::vector<Text> header;
    std::vector<std::vector<Text>> rows;
    int row = 0; ///< the selected row, counted from 1; 0 for none
    void resize(int row_count, std::vector<Text> header_cells);
    void clear();
    /// Row from 1, column from 0; outside the grid is fault 9.
    void set_cell(int at_row, int column, Text text);
};

struct PictureBox {
    Observer observer;
    /// Name of the picture among the program's own; the front end knows them.
    Property<Text> text{observer, Prop::text, {}};
    Property<bool> enabled{observer, Prop::enabled, true};
    Property<bool> visible{observer, Prop::visible, true};
};

/// The files of a folder that match a pattern ("*.gif") or one of several ("*.htm;*.html"), by name without
/// regard to case.
struct FileListBox {
    explicit FileListBox(Text initial = u"*.*") : pattern_(std::move(initial)) {}
    Observer observer;
    Property<int> list_index{observer, Prop::list_index, -1};
    Property<bool> enabled{observer, Prop::enabled, true};
    Property<bool> visible{observer, Prop::visible, true};

    const Text& path() const { return path_; }
    /// Setting path or pattern reads the folder at once. A folder that is not there is fault 76.
    void set_path(Text path);
    const Text& pattern() const { return pattern_; }
    void set_pattern(Text pattern);
    void refresh();
    /// Place of a file by its name, -1 when it is not in the list.
    int place_of(const Text& file) const;
    int list_count() const { return static_cast<int>(entries_.size()); }
    const Text& list(int index) const;
    const std::vector<Text>& entries() const { return entries_; }

  private:
    Text path_;
    Text pattern_;
    std::vector<Text> entries_;
};

/// The folders inside a folder. Entry -1 is the folder itself, -2 its parent, and so on up.
struct DirListBox {
    Observer observer;
    Property<int> list_index{observer, Prop::list_index, -1};
    Property<bool> enabled{observer, Prop::enabled, true};
    Property<bool> visible{observer, Prop::visible, true};

    const Text& path() const { return path_; }
    /// Reads the folder at once and selects it (-1). A folder that is not there is fault 76.
    void set_path(Text path);
    void refresh();
    int list_count() const { return static_cast<int>(entries_.size()); }
    /// Full path of the entry; empty outside the list.
    Text list(int index) const;
    const std::vector<Text>& entries() const { return entries_; }

  private:
    Text path_;
    std::vector<Text> entries_; ///< full paths
};

/// The roots to choose from: the file system, the user's home and what is mounted for the user.
struct DriveListBox {
    Observer observer;
    Property<int> list_index{observer, Prop::list_index, 0};
    Property<bool> enabled{observer, Prop::enabled, true};
    Property<bool> visible{observer, Prop::visible, true};

    DriveListBox();
    /// The selected root.
    const Text& drive() const { return list(list_index()); }
    int list_count() const { return static_cast<int>(entries_.size()); }
    const Text& list(int index) const;
    const std::vector<Text>& entries() const { return entries_; }

  private:
    std::vector<Text> entries_;
};

/// A browser. What it does goes through the desktop seam; here stand the properties that screens read.
struct WebBrowser {
    Observer observer;
    Property<Text> location_url{observer, Prop::location, {}}; ///< set by the front end
    Property<bool> enabled{observer, Prop::enabled, true};
    Property<bool> visible{observer, Prop::visible, true};
    bool silent = false;
    bool address_bar = false;
};

/// The transfer control of the spider.
struct Inet {
    Observer observer;
    int protocol = 0;         ///< 4 is HTTP
    int request_timeout = 60; ///< seconds
    bool still_executing = false;
};

/// What the last dialogs left and the next ones start from.
struct CommonDialog {
    Observer observer;
    bool cancel_error = false; ///< Cancel is fault 32755
    int flags = 0;
    Text init_dir;
    Text filter; ///< "Text (*.dat)|*.dat" or a bare pattern
    Text dialog_title;
    Text file_name;
    Text default_ext;        ///< ".dat": put behind a name to save under that does not hold it anywhere
    std::uint32_t color = 0; ///< blue, green, red from the high byte down
    Text font_name;
    double font_size = 8;
    bool font_bold = false;
    bool font_italic = false;
    bool font_strikethru = false;
    bool font_underline = false;

    /// Show the dialog through the desktop seam and take over what was chosen. Each returns false, with the
    /// members as they were, on Cancel; with `cancel_error` on, Cancel is fault 32755.
    bool show_open();
    bool show_save();
    bool show_color();
    bool show_font();
};

struct Timer {
    Observer observer;
    Property<bool> enabled{observer, Prop::enabled, false};
    Property<int> interval{observer, Prop::interval, 0}; ///< milliseconds
};

} // namespace twk
