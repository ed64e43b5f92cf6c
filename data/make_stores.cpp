// SPDX-License-Identifier: MIT
// Makes the two stores that are delivered, with the sample project in them: make_stores DATA-FOLDER
// OUT-FOLDER.

#include "engine/text_toolkit.h"
#include "platform/desktop.h"
#include "platform/file_system.h"
#include "store/statements.h"
#include "store/store_setup.h"
#include "store/stores.h"

#include <exception>
#include <filesystem>
#include <iostream>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace twk;

struct ContentBox {
    std::vector<Text> tied_keywords;
    Text text; ///< paragraphs between CR LF
};

struct SampleProject {
    std::map<Text, Text> properties;
    std::vector<Text> targets;
    std::vector<Text> main_host;
    std::vector<Text> secondary_hosts;
    std::vector<std::pair<Text, std::vector<Text>>> keywords;
    std::vector<std::pair<Text, Text>> synonyms;
    std::vector<ContentBox> boxes;
};

std::pair<Text, Text> cut(const Text& line, TextView mark) {
    const auto at = line.find(mark);
    if (at == Text::npos) throw std::runtime_error("no '" + to_utf8(mark) + "' in: " + to_utf8(line));
    return {Trim(line.substr(0, at)), Trim(line.substr(at + mark.size()))};
}

std::vector<Text> words_of(const Text& list) {
    std::vector<Text> words;
    for (const Text& piece : Split(list, u","))
        if (!Trim(piece).empty()) words.push_back(Trim(piece));
    return words;
}

/// A line of a section goes where the section's name says.
void take_line(SampleProject& sample, const Text& section, const Text& line) {
    if (section == u"content") {
        Text& text = sample.boxes.back().text;
        if (line.empty())
            text += text.empty() ? u"" : vbCrLf;
        else
            text += (text.empty() || text.ends_with(vbCrLf) ? u"" : u" ") + line;
        return;
    }
    if (line.empty()) return;
    if (section == u"project") {
        sample.properties.insert(cut(line, u"="));
    } else if (section == u"keywords") {
        const auto [keyword, subkeywords] = cut(line, u":");
        sample.keywords.emplace_back(keyword, words_of(subkeywords));
    } else if (section == u"synonyms") {
        sample.synonyms.push_back(cut(line, u"="));
    } else if (section == u"targets") {
        sample.targets.push_back(line);
    } else if (section == u"main host") {
        sample.main_host.push_back(line);
    } else if (section == u"secondary hosts") {
        sample.secondary_hosts.push_back(line);
    } else {
        throw std::runtime_error("unknown section: " + to_utf8(section));
    }
}

SampleProject read_sample(const Text& path) {
    SampleProject sample;
    Text section;
    const TextStreamPtr stream = FileSystemObject().OpenTextFile(path, OpenMode::reading);
    while (!stream->AtEndOfStream()) {
        const Text line = Trim(stream->readline());
        if (line.starts_with(u"#")) continue;
        if (!line.starts_with(u"[")) {
            take_line(sample, section, line);
            continue;
        }
        section = Trim(line.substr(1, line.find(u']') - 1));
        if (!section.starts_with(u"content")) continue;
        ContentBox& box = sample.boxes.emplace_back();
        if (contains(section, u":")) box.tied_keywords = words_of(cut(section, u":").second);
        section = u"content";
    }
    for (ContentBox& box : sample.boxes)
        while (box.text.ends_with(vbCrLf)) box.text.erase(box.text.size() - vbCrLf.size());
    return sample;
}

/// The key that the store gave to the row found by the statement.
std::int64_t key_of(Database& store, const Statement& statement, TextView column) {
    return store.OpenRecordset(statement).Fields(column).key();
}

std::int64_t write_project(Database& store, const std::map<Text, Text>& properties) {
    const auto value = [&](const char16_t* column) { return preparar_texto(Text(properties.at(column))); };
    store.Execute(
        {u"insert into Projects ( name , site_name , site_url , title , category , description , "
         u"designer_name , designer_url ) values ( '{}' , '{}' , '{}' , '{}' , '{}' , '{}' , '{}' , "
         u"'{}' )",
         value(u"name"), value(u"site_name"), value(u"site_url"), value(u"title"), value(u"category"),
         value(u"description"), value(u"designer_name"), value(u"designer_url")});
    return key_of(store, statements::inserted_project(properties.at(u"name")), u"pid");
}

void write_addresses(Database& store, std::int64_t pid, StatementName table, StatementName column,
                     const std::vector<Text>& addresses) {
    for (const Text& address : addresses)
        store.Execute({u"insert into {} ( pid , {} ) values ( {} , '{}' )", table, column, pid, address});
}

void write_keywords(Database& store, std::int64_t pid, const SampleProject& sample) {
    for (const auto& [keyword, subkeywords] : sample.keywords) {
        store.Execute(statements::insert_keyword(pid, keyword));
        const std::int64_t keyid = key_of(store, statements::keyword_of(pid, keyword), u"keyid");
        for (Text subkeyword : subkeywords)
            store.Execute({u"insert into elements ( catid , element ) values ( {} , '{}' )", keyid,
                           preparar_texto(subkeyword)});
    }
}

/// Writes a box as Step 3 does and returns its key.
std::int64_t write_box(Database& store, std::int64_t pid, Text text) {
    Recordset rows = store.OpenRecordset({u"content"});
    rows.AddNew();
    rows.set(u"pid", pid);
    rows.AppendChunk(u"content", Replace(preparar_texto(text), vbCrLf, u" <br> "));
    rows.Update();
    rows.Close();
    std::int64_t cid = 0;
    for (const auto row : store.OpenRecordset(statements::boxes_of(pid))) cid = row.Fields(u"cid").key();
    return cid;
}

void write_boxes(Database& store, std::int64_t pid, const std::vector<ContentBox>& boxes) {
    for (const ContentBox& box : boxes) {
        const std::int64_t cid = write_box(store, pid, box.text);
        for (const Text& keyword : box.tied_keywords) {
            const std::int64_t keyid = key_of(store, statements::keyword_of(pid, keyword), u"keyid");
            store.Execute(
                {u"insert into ties ( pid , keyid , cid  ) values ( {} , {} , {}  ) ", pid, keyid, cid});
        }
    }
}

/// Makes an empty store in the place of an older one.
void make_store(const Text& path, const Text& schema, const std::string& key) {
    std::filesystem::remove(to_utf8(path));
    create_store(path, to_utf8(read_text_file(schema)), key);
}

void make_stores(const Text& data, const Text& out) {
    const SampleProject sample = read_sample(data + u"sample_project.txt");

    make_store(out + u"hive.mdb", data + u"schema_hive.sql", hive_key);
    Database hive = OpenDatabase(out + u"hive.mdb", false, false, u";pwd=" + from_utf8(hive_key));
    const std::int64_t pid = write_project(hive, sample.properties);
    write_addresses(hive, pid, u"target", u"target", sample.targets);
    write_addresses(hive, pid, u"host1", u"host", sample.main_host);
    write_addresses(hive, pid, u"host", u"host", sample.secondary_hosts);
    write_keywords(hive, pid, sample);
    write_boxes(hive, pid, sample.boxes);

    make_store(out + u"synonyms.mdb", data + u"schema_synonyms.sql", "");
    Database dictionary = OpenDatabase(out + u"synonyms.mdb", false, false);
    for (const auto& [word, synonym] : sample.synonyms)
        dictionary.Execute(
            {u"insert into synonyms  ( keyword , synonyms  ) values ( '{}' , '{}' ) ", word, synonym});
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: make_stores DATA-FOLDER OUT-FOLDER\n";
        return 2;
    }
    try {
        const Text separator{path_separator};
        make_stores(from_utf8(argv[1]) + separator, from_utf8(argv[2]) + separator);
    } catch (const std::exception& fault) {
        std::cerr << "make_stores: " << fault.what() << '\n';
        return 1;
    }
    return 0;
}
