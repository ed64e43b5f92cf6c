// SPDX-License-Identifier: MIT
#pragma once

#include "platform/process.h"
#include "shell/module1.h"
#include "support/temp_app.h"

#include <string>
#include <vector>

/// The texts of scenario files.
namespace twk::test {

/// What stands in front of the mark and behind it; nothing behind one that is not there.
inline std::pair<std::string, std::string> cut(const std::string& text, const std::string& at) {
    const std::size_t found = text.find(at);
    if (found == std::string::npos) return {text, ""};
    return {text.substr(0, found), text.substr(found + at.size())};
}

/// What the marks of a text stand for, see README.txt.
inline std::string unescaped(std::string_view text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t end = text.find('}', i);
        if (text[i] == '{' && end != std::string_view::npos) {
            const auto [times, what] = cut(std::string(text.substr(i + 1, end - i - 1)), "*");
            if (times.starts_with("@"))
                plain += to_utf8(Replace(from_utf8(bytes_of(golden(times.substr(1)))), u"\n", u"\r\n"));
            else if (times == "APP" || times == "VERSION")
                plain += to_utf8(times == "APP" ? app_path() : version_app());
            else
                for (int i = 1; i <= std::stoi(times); ++i)
                    plain += cut(what, "#").first +
                             (what.find('#') == what.npos ? "" : std::to_string(i) + cut(what, "#").second);
            i = end;
        } else if (text[i] == '\\' && text.substr(i + 1, 1) == "x") {
            plain += static_cast<char>(std::stoi(std::string(text.substr(i + 2, 2)), nullptr, 16));
            i += 3;
        } else if (text[i] == '\\' && i + 1 < text.size()) {
            constexpr std::string_view marks = "rnts\\", meant = "\r\n\t \\";
            const std::size_t at = marks.find(text[++i]);
            if (at == std::string_view::npos) throw std::runtime_error("unknown escape");
            plain += meant[at];
        } else {
            plain += text[i];
        }
    }
    return plain;
}

/// The parts of a text between the marks.
inline std::vector<std::string> parts(std::string text, const std::string& mark) {
    std::vector<std::string> all;
    for (std::size_t at = 0; (at = text.find(mark)) != std::string::npos; text.erase(0, at + mark.size()))
        all.push_back(text.substr(0, at));
    all.push_back(text);
    return all;
}

/// "Form21!Command2(110).enabled": a screen, when it is not the one that is meant, a control and its place in
/// its array, and a property.
struct Target {
    std::string screen, name, property;
    int index = -1;

    Target(const std::string& text, const std::string& meant) : screen(meant), name(text) {
        if (text.find('!') != std::string::npos) std::tie(screen, name) = cut(text, "!");
        std::tie(name, property) = cut(name, ".");
        if (name.ends_with(')')) {
            index = std::stoi(cut(name, "(").second);
            name = cut(name, "(").first;
        }
    }
};

} // namespace twk::test
