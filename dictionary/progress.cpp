#include "dictionary/progress.h"

#include <iomanip>
#include <sstream>

namespace dictionary {

void Progress::tell(std::string_view text) {
  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start_;
  std::ostringstream line;
  line << '[' << std::fixed << std::setprecision(1) << std::setw(5) << elapsed.count() << " s] "
       << text << '\n';
  log_ << line.str() << std::flush;
}

std::string grouped(std::size_t number) {
  const std::string digits = std::to_string(number);
  std::string text;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) text += ',';
    text += digits[i];
  }
  return text;
}

}  // namespace dictionary
