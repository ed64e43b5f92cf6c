// SPDX-License-Identifier: MIT
#pragma once

#include "store/statement.h"

#include <cstdint>

/// The statements that stand in more than one place, each under one name. They differ in blanks and in
/// letters where they always did. Faults as `Statement` tells them.
namespace twk::statements {

/// A project by its name as typed or chosen; several rows may bear it.
inline Statement project_named(const Text& name) {
    return {u"select * from Projects where name = '{}'", name};
}
/// The same for the key of the project just inserted: that of the last row.
inline Statement inserted_project(const Text& name) {
    return {u"select * from projects where name = '{}'", name};
}
inline Statement project_names() {
    return {u"select pid, name from Projects"};
}
inline Statement delete_project(std::int64_t pid) {
    return {u"delete from Projects where pid = {}", pid};
}

/// All rows of a table that belong to the project.
inline Statement rows_of_project(StatementName table, std::int64_t pid) {
    return {u"select * from {} where pid = {}", table, pid};
}
inline Statement keywords_of(std::int64_t pid) {
    return rows_of_project(u"keywords", pid);
}
inline Statement boxes_of(std::int64_t pid) {
    return rows_of_project(u"content", pid);
}
inline Statement delete_rows_of_project(StatementName table, std::int64_t pid) {
    return {u"delete from {} where pid = {}", table, pid};
}

inline Statement keyword_of(std::int64_t pid, const Text& word) {
    return {u"select * from keywords where pid = {} and keyword = '{}'", pid, word};
}
inline Statement insert_keyword(std::int64_t pid, const Text& word) {
    return {u"insert into keywords ( pid , keyword ) values ( {} , '{}' ) ", pid, word};
}

inline Statement subkeywords_of(std::int64_t keyid) {
    return {u"select * from elements where catid = {}", keyid};
}
inline Statement delete_subkeywords_of(std::int64_t keyid) {
    return {u"delete from elements where catid = {}", keyid};
}
inline Statement delete_subkeyword(std::int64_t keyid, const Text& word) {
    return {u"delete from elements where element = '{}' and catid = {}", word, keyid};
}

inline Statement box(std::int64_t cid) {
    return {u"select * from content where cid = {}", cid};
}
inline Statement tie_of(std::int64_t pid, std::int64_t keyid) {
    return {u"select * from ties where pid = {} and keyid = {}", pid, keyid};
}

} // namespace twk::statements
