#pragma once

namespace forms {

/// Throws std::runtime_error with the system's own text for GetLastError(), in UTF-8.
[[noreturn]] void throwLastError();

}  // namespace forms
