-- SPDX-License-Identifier: MIT
-- The synonym store, one for all projects. A word may have several rows.

create table synonyms (
  keyword text collate nocase,
  synonyms text collate nocase
);
