#pragma once

#include <string>
#include <string_view>

/// The browser that shows the help page and the home page.
namespace app {

/// Address that "访问我们的网站" opens.
inline constexpr std::u16string_view kHomePage = u"" LEXILO_HOME_PAGE;

/// Returns the browser on the drive that `systemDirectory` lies on.
std::u16string browserPath(const std::u16string& systemDirectory);

/// Starts the browser with `page` as its command line, shown normally. `page` is handed over as it
/// stands, without quotes, blanks included. Throws std::runtime_error where the browser cannot be
/// started.
void openInBrowser(std::u16string_view page);

/// Opens the help page, or shows a message where the browser cannot be started. Throws nothing but
/// std::bad_alloc.
void showHelp();

}  // namespace app
