// How an overdue query ends. SQLite calls its progress handler between its own steps only: sorting,
// or one LIKE over a long text, may take seconds in between. Therefore both functions count what
// they compare in a budget, which polls isOverdue() now and then. LIKE can report an error and ends
// the statement. A collation cannot: once overdue it calls all texts equal, which ends a sort fast
// and wrongly. Database::read() refuses the rows of a query that is overdue at its end, so that
// none of them is seen.

#include "data/text_functions.h"

#include <sqlite3.h>

#include <algorithm>
#include <memory>
#include <string_view>
#include <utility>

#include "data/error.h"
#include "text/like.h"
#include "text/order.h"

namespace data {
namespace {

std::string_view viewOf(const void* text, int bytes) {
  return {static_cast<const char*>(text), static_cast<std::size_t>(bytes)};
}

/// Valid until the value is converted or its function returns.
std::string_view viewOf(sqlite3_value* value) {
  const void* text = sqlite3_value_text(value);
  return text == nullptr ? std::string_view{} : viewOf(text, sqlite3_value_bytes(value));
}

/// Counts the shorter text as steps, which is the most that a comparison may look at.
int collate(void* budget, int bytesA, const void* a, int bytesB, const void* b) {
  const auto steps = static_cast<std::size_t>(std::min(bytesA, bytesB));
  if (!static_cast<text::StepBudget*>(budget)->consume(steps)) return 0;
  return text::compareUtf8(viewOf(a, bytesA), viewOf(b, bytesB));
}

const text::LikePattern* keptPattern(sqlite3_context* context) {
  return static_cast<const text::LikePattern*>(sqlite3_get_auxdata(context, 0));
}

/// Prepares a pattern for this call and, where it is a constant of the statement, for its further
/// calls: the engine keeps it with the argument and destroys it when the argument changes or the
/// statement is finalized. Returns null where memory is exhausted.
const text::LikePattern* keepPattern(sqlite3_context* context, sqlite3_value* value) {
  auto pattern = std::make_unique<text::LikePattern>(viewOf(value));
  const auto destroy = [](void* kept) {
    const std::unique_ptr<text::LikePattern> owner(static_cast<text::LikePattern*>(kept));
  };
  sqlite3_set_auxdata(context, 0, pattern.release(), destroy);
  return keptPattern(context);
}

/// "text LIKE pattern" reaches the function as like(pattern, text). NULL on either side gives NULL,
/// which is the result of a function that sets none.
void like(sqlite3_context* context, int /*count*/, sqlite3_value** values) {
  if (sqlite3_value_type(values[1]) == SQLITE_NULL) return;
  const std::string_view text = viewOf(values[1]);
  std::size_t read = text.size();
  const text::LikePattern* pattern = keptPattern(context);
  if (pattern == nullptr) {
    if (sqlite3_value_type(values[0]) == SQLITE_NULL) return;
    const int bytes = sqlite3_value_bytes(values[0]);
    if (bytes > kMaxPatternBytes) {
      sqlite3_result_error(context, "LIKE pattern too complex", -1);
      return;
    }
    read += static_cast<std::size_t>(bytes);
    pattern = keepPattern(context, values[0]);
  }
  if (pattern == nullptr) {
    sqlite3_result_error_nomem(context);
    return;
  }
  text::StepBudget& budget = *static_cast<text::StepBudget*>(sqlite3_user_data(context));
  const bool matches = budget.consume(read) && pattern->matches(text, budget);
  if (budget.exhausted()) {
    sqlite3_result_error_code(context, SQLITE_INTERRUPT);
    return;
  }
  sqlite3_result_int(context, matches ? 1 : 0);
}

void refuseEscape(sqlite3_context* context, int /*count*/, sqlite3_value** /*values*/) {
  sqlite3_result_error(context, "LIKE knows no ESCAPE here", -1);
}

}  // namespace

void registerTextFunctions(sqlite3* connection, std::function<bool()> isOverdue) {
  constexpr int kFlags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
  // The connection owns it from the next call on, also where that fails. The collation shares it:
  // nothing replaces either, so that both are destroyed when the connection is closed.
  text::StepBudget* budget = std::make_unique<text::StepBudget>(std::move(isOverdue)).release();
  const auto destroy = [](void* owned) {
    const std::unique_ptr<text::StepBudget> owner(static_cast<text::StepBudget*>(owned));
  };
  check(connection, sqlite3_create_function_v2(connection, "like", 2, kFlags, budget, &like,
                                               nullptr, nullptr, destroy));
  check(connection, sqlite3_create_function_v2(connection, "like", 3, kFlags, nullptr,
                                               &refuseEscape, nullptr, nullptr, nullptr));
  check(connection, sqlite3_create_collation_v2(connection, kTextOrder, SQLITE_UTF8, budget,
                                                &collate, nullptr));
}

}  // namespace data
