# SQLite's amalgamation, pinned and fetched as an npm package (see package.json).
set(sqlite_dir ${PROJECT_SOURCE_DIR}/node_modules/better-sqlite3/deps/sqlite3)
if(NOT EXISTS ${sqlite_dir}/sqlite3.c)
  message(FATAL_ERROR "SQLite's sources are missing: run 'npm ci' in ${PROJECT_SOURCE_DIR} first.")
endif()
add_library(sqlite3 STATIC ${sqlite_dir}/sqlite3.c)
target_include_directories(sqlite3 SYSTEM PUBLIC ${sqlite_dir})
# The page cache of a connection, in KiB below zero: enough for the inner pages of the tables that
# lookups go through. Searches ask for more (data::kSearchCacheKiB).
target_compile_definitions(sqlite3 PRIVATE
  SQLITE_DEFAULT_CACHE_SIZE=-256
  SQLITE_OMIT_JSON
  SQLITE_THREADSAFE=0
  SQLITE_OMIT_LOAD_EXTENSION
  SQLITE_OMIT_DEPRECATED
  SQLITE_OMIT_SHARED_CACHE
  SQLITE_DQS=0
  SQLITE_DEFAULT_MEMSTATUS=1
  SQLITE_TEMP_STORE=3)
# A third smaller than with -O2, all of which Wine keeps in memory, and no slower (lookup_bench).
# With the sanitizers, whose checks are longest to optimise, compiling would take a minute.
if(LEXILO_SANITIZE OR LEXILO_SANITIZE_THREADS OR LEXILO_FUZZ)
  target_compile_options(sqlite3 PRIVATE -w -O0)
else()
  target_compile_options(sqlite3 PRIVATE -w -Os)
endif()
