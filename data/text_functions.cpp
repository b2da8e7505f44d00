#include "data/text_functions.h"

#include <sqlite3.h>

#include <memory>
#include <string_view>

#include "data/connection.h"
#include "text/like_pattern.h"
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

const text::LikePattern* keptPattern(sqlite3_context* context) {
  return static_cast<const text::LikePattern*>(sqlite3_get_auxdata(context, 0));
}

/// Makes a pattern ready for this call and, where it is the same for all rows, for the statement's
/// further calls. Null without memory.
const text::LikePattern* keepPattern(sqlite3_context* context, sqlite3_value* value) {
  auto pattern = std::make_unique<text::LikePattern>(viewOf(value));
  const auto destroy = [](void* kept) {
    const std::unique_ptr<text::LikePattern> owner(static_cast<text::LikePattern*>(kept));
  };
  sqlite3_set_auxdata(context, 0, pattern.release(), destroy);
  return keptPattern(context);
}

/// "text LIKE pattern" reaches the function as like(pattern, text).
void like(sqlite3_context* context, int /*count*/, sqlite3_value** values) {
  if (sqlite3_value_type(values[1]) == SQLITE_NULL) return;
  const text::LikePattern* pattern = keptPattern(context);
  if (pattern == nullptr) {
    if (sqlite3_value_type(values[0]) == SQLITE_NULL) return;
    if (sqlite3_value_bytes(values[0]) > kLongestPattern) {
      sqlite3_result_error(context, "LIKE pattern too complex", -1);
      return;
    }
    pattern = keepPattern(context, values[0]);
  }
  if (pattern == nullptr) {
    sqlite3_result_error_nomem(context);
    return;
  }
  sqlite3_result_int(context, pattern->matches(viewOf(values[1])) ? 1 : 0);
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
