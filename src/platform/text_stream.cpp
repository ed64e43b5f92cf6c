// SPDX-License-Identifier: MIT
#include "platform/text_stream.h"

#include "platform/faults.h"

#include <algorithm>
#include <utility>

namespace twk {

namespace {

constexpr std::size_t usual_page = 32 * 1024; ///< units, so that a page seldom outgrows its first room

} // namespace

TextStream::TextStream(Text path, TextKind kind, Text content)
    : path_(std::move(path)), mode_(OpenMode::reading), kind_(kind), content_(std::move(content)) {}

TextStream::TextStream(Text path, OpenMode mode, TextKind kind, OpenFile file)
    : path_(std::move(path)), mode_(mode), kind_(kind), file_(std::move(file)) {
    if (kind_ == TextKind::page) content_.reserve(usual_page);
}

Text TextStream::readline() {
    if (AtEndOfStream()) throw RuntimeFault(fault_past_end);
    const std::size_t end = std::min(content_.find_first_of(u"\r\n", at_), content_.size());
    Text line = content_.substr(at_, end - at_);
    at_ = end;
    if (at_ < content_.size()) at_ += content_.compare(at_, 2, u"\r\n") == 0 ? 2 : 1;
    return line;
}

bool TextStream::AtEndOfStream() const {
    return at_ >= content_.size();
}

Text& TextStream::written() {
    if (!open_ || mode_ == OpenMode::reading) throw RuntimeFault(fault_path_access);
    return content_;
}

void TextStream::write(TextView text) {
    written().append(text);
}

void TextStream::writeline(std::initializer_list<TextView> pieces) {
    Text& content = written();
    for (const TextView piece : pieces) content.append(piece);
    content.append(vbCrLf);
}

void TextStream::Close() {
    if (mode_ == OpenMode::reading)
        open_ = false;
    else
        close_and_read();
}

Text TextStream::close_and_read() {
    if (!std::exchange(open_, false) || mode_ == OpenMode::reading) return {};
    int error = 0;
    std::string old;
    if (mode_ == OpenMode::appending && file_.size != 0) old = read_open(file_, path_);
    std::string bytes = encode_text(content_, kind_);
    const bool appended = !old.empty() && is_ascii(old) && is_ascii(bytes);
    if (!old.empty()) content_.insert(0, decode_text(old));
    if (appended) {
        error = append_content(file_, bytes, old.size());
    } else {
        // The mark and the encoding have to fit the whole.
        if (!old.empty()) bytes = encode_text(content_, kind_);
        error = replace_content(file_, bytes);
    }
    error = closed_after(error, file_);
    if (error != 0) fail_with(error, path_);
    old_size_ = std::ssize(old);
    size_ = std::ssize(bytes) + (appended ? old_size_ : 0);
    Text text = std::exchange(content_, {});
    const bool halves = bytes.size() != text.size(); // a half of a pair takes more bytes than one
    if (halves && !reads_back(text)) return decode_text(bytes);
    return text;
}

} // namespace twk
