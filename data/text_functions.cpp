#include "data/text_functions.h"

#include <sqlite3.h>

#include <string_view>

#include "data/connection.h"
#include "text/order.h"

namespace data {
namespace {

std::string_view viewOf(const void* text, int bytes) {
  return {static_cast<const char*>(text), static_cast<std::size_t>(bytes)};
}

std::string_view viewOf(sqlite3_value* value) {
  const void* text = sqlite3_value_text(value);
  return text == nullptr ? std::string_view{} : viewOf(text, sqlite3_value_bytes(value));
}

int collate(void* /*context*/, int bytesA, const void* a, int bytesB, const void* b) {
  return text::compareUtf8(viewOf(a, bytesA), viewOf(b, bytesB));
}

/// "text LIKE pattern" reaches the function as like(pattern, text).
void like(sqlite3_context* context, int /*count*/, sqlite3_value** values) {
  if (sqlite3_value_type(values[0]) == SQLITE_NULL ||
      sqlite3_value_type(values[1]) == SQLITE_NULL) {
    return;
  }
  const std::string_view pattern = viewOf(values[0]);
  if (pattern.size() > kLongestPattern) {
    sqlite3_result_error(context, "LIKE pattern too complex", -1);
    return;
  }
  sqlite3_result_int(context, text::likeUtf8(pattern, viewOf(values[1])) ? 1 : 0);
}

void refuseEscape(sqlite3_context* context, int /*count*/, sqlite3_value** /*values*/) {
  sqlite3_result_error(context, "LIKE knows no ESCAPE here", -1);
}

}  // namespace

void registerTextFunctions(sqlite3* connection) {
  constexpr int kFlags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
  const auto define = [&](int arguments, auto* function) {
    check(connection, sqlite3_create_function_v2(connection, "like", arguments, kFlags, nullptr,
                                                 function, nullptr, nullptr, nullptr));
  };
  define(2, &like);
  define(3, &refuseEscape);
  check(connection, sqlite3_create_collation_v2(connection, kTextOrder, SQLITE_UTF8, nullptr,
                                                &collate, nullptr));
}

}  // namespace data
