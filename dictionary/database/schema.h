#pragma once

#include <array>
#include <string_view>

namespace dictionary {

/// The tables of every dictionary database besides the subject dictionaries.
inline constexpr std::array<std::string_view, 5> kFixedTables = {"edict", "cdict", "edictidx",
                                                                 "cdictidx", "Index"};

/// Statements that create them, in the order above. [cdictidx] has an index on its word because the
/// bound step asks for the rows on either side of a word at every keystroke.
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

/// What follows "create table [name]" for a subject dictionary. Without a rowid its rows are stored
/// in the order of their headwords, so that a search by prefix needs no index.
inline constexpr std::string_view kSubjectColumns =
    " (word text not null collate lexilo primary key, meaning text not null collate lexilo) "
    "without rowid";

}  // namespace dictionary
