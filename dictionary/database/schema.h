#pragma once

#include <array>
#include <string_view>

namespace dictionary {

/// Tables that every dictionary database has.
inline constexpr std::array<std::string_view, 5> kFixedTables = {"edict", "cdict", "edictidx",
                                                                 "cdictidx", "Index"};

/// Statements that make them, in the order above. [cdictidx] has an index on its word: the bound
/// step asks for the rows on either side of a word at every keystroke.
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

/// What follows the name of a subject dictionary's table. Its rows lie in the order of their
/// headwords, so that a search by beginning needs no index of its own.
inline constexpr std::string_view kSubjectColumns =
    " (word text not null collate lexilo primary key, meaning text not null collate lexilo) "
    "without rowid";

}  // namespace dictionary
