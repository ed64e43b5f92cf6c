// SPDX-License-Identifier: MIT
#pragma once

#include "engine/fill.h"
#include "engine/page_record.h"
#include "platform/fence.h"
#include "platform/text.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <unordered_map>

namespace twk {

/// The page that a run writes, and what it keeps of the one before. Every file of a run passes its fence.
struct OpenPage {
    std::optional<Fence> fence; ///< set before the first page
    FileSystemObject fso;
    std::optional<ReplacedFile> origen; ///< the page under way, as it stands until it is replaced
    TextStreamPtr salida;               ///< and what is written of it
    Text pagina_actual;                 ///< its path, for a fault's message; empty between pages
    Text ultima_pagina, ultimo_texto;   ///< path and text of the page written last

    PageRecord made; ///< how the page under way, or the one written last, is made

    // What the end of a run tells.
    std::int64_t pages_written = 0;
    std::int64_t bytes_written = 0;
    std::unordered_map<Text, std::int64_t> sizes; ///< bytes of each page that the run has written, by path

    std::function<void()> written; ///< told of each page that is counted

    /// Proves that a page that is there can be read; starts `salida` on its sibling, the name plus "aux", and
    /// an empty record. Fault 75 when the path leaves the project.
    void open(const Text& path);
    /// Ends the sibling, which takes the page's place. Counts the page.
    void close();
    /// Counts a page that stands.
    void count();
    /// Lets go of a page under way; one that was not there before stands empty.
    void abandon();
    /// Bytes of a file, without a question for a page of the run.
    std::int64_t size_of(const Text& path) const;
    /// Copies a delivered file into a folder of the project, overwriting.
    void copy_into_project(const Text& from, const Text& to);

    void writeline(TextView line) { salida->writeline(line); }
    void writeline(std::initializer_list<TextView> pieces) { salida->writeline(pieces); }
    /// The piece with its places filled.
    template <class First, class... Values>
    void writeline(Fragment<sizeof...(Values) + 1> fragment, const First& first, const Values&... values) {
        Text& content = salida->written();
        append_filled(content, fragment.html(), {TextView(first), TextView(values)...});
        content.append(vbCrLf);
    }
    /// Each line of the text is a line of the page; it begins behind an empty one.
    void writelines(TextView lines);
};

/// The folder of a destination: its address as one segment, below the project's folder.
Text destination_folder(const Text& project_folder, TextView address);

} // namespace twk
