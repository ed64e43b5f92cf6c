-- SPDX-License-Identifier: MIT
-- The project store. Keys are assigned by the store and never used again. No foreign keys and no unique indexes:
-- what belongs together is kept together by the program.

create table Projects (
  pid integer primary key autoincrement,
  name text collate nocase,
  site_name text collate nocase,
  site_url text collate nocase,
  title text collate nocase,
  category text collate nocase,
  description text collate nocase,
  designer_name text collate nocase,
  designer_url text collate nocase
);

create table keywords (
  keyid integer primary key autoincrement,
  pid integer,
  keyword text collate nocase
);

create table elements (
  eid integer primary key autoincrement,
  catid integer,
  element text collate nocase
);

create table content (
  cid integer primary key autoincrement,
  pid integer,
  content text collate nocase
);

create table ties (
  tieid integer primary key autoincrement,
  pid integer,
  keyid integer,
  cid integer
);

create table host (
  pid integer,
  host text collate nocase
);

create table host1 (
  pid integer,
  host text collate nocase
);

create table target (
  pid integer,
  target text collate nocase
);

create index keywords_of_project on keywords (pid);
create index elements_of_keyword on elements (catid);
-- The word comes first: rows of a project or keyword are read through the indexes above, in order of insertion.
create index keywords_by_word on keywords (keyword, pid);
create index elements_by_word on elements (element, catid);
create index content_of_project on content (pid);
create index ties_of_project on ties (pid);
