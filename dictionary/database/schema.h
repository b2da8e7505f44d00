#pragma once

#include <array>
#include <string_view>

/// The tables of a dictionary database. Names of tables and columns, their order and their types
/// are given: the program's SQL texts and positions of fields rely on them (check/schema_check.h).
namespace dictionary {

/// The tables of every dictionary database besides the subject dictionaries: the rows of the
/// general dictionary by English and by Chinese headword, the indexes of the bound step
/// (headword_lookup.h), and the catalogue of subject dictionaries.
inline constexpr std::array<std::string_view, 5> kFixedTables = {"edict", "cdict", "edictidx",
                                                                 "cdictidx", "Index"};

/// The statements that create them, in the order above. Row numbers (eid, cid, id, ID) are the
/// engine's rowids. Text columns have the dictionary's text order (data::kTextOrder). [cdictidx]
/// has an index on its word because the bound step asks for the rows on either side of a word at
/// every keystroke. [edict] and [cdict] have none on theirs: they are searched by row numbers, and
/// an index would only make the file larger.
inline constexpr std::array<std::string_view, 6> kFixedTableSql = {
    "create table [edict] (eid integer primary key, word text not null collate lexilo, "
    "cid integer not null)",
    "create table [cdict] (cid integer primary key, word text not null collate lexilo, "
    "eid integer not null)",
    "create table [edictidx] (word text not null collate lexilo)",
    "create table [cdictidx] (word text not null collate lexilo, id integer primary key)",
    "create index cdictidx_word on [cdictidx] (word)",
    "create table [Index] (ID integer primary key, TableName text not null collate lexilo, "
    "Cname text not null collate lexilo, Isshow integer not null, [default] integer not null)",
};

/// The rest of "create table [name]" for a subject dictionary. Without a rowid its rows are stored
/// in the order of their headwords, so that a search by prefix needs no index.
inline constexpr std::string_view kSubjectColumns =
    " (word text not null collate lexilo primary key, meaning text not null collate lexilo) "
    "without rowid";

}  // namespace dictionary
