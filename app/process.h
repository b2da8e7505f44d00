#pragma once

#include <string>
#include <string_view>

/// The running program: its one instance, its folder, the programs it starts, its end.
namespace app {

/// Address that "访问我们的网站" opens.
inline constexpr std::u16string_view kHomePage = u"" LEXILO_HOME_PAGE;

/// Whether this process is the only instance of this user's session; the claim is held until the
/// process ends.
bool claimOnlyInstance();

/// Ends the program at once: no form is unloaded, no connection closed.
[[noreturn]] void endProgram();

/// The folder of the program's file, without a trailing backslash.
std::u16string applicationFolder();

/// What names the database of a folder to every data control.
std::u16string connectionString(const std::u16string& folder);

/// The browser on the drive that `systemDirectory` lies on.
std::u16string browserPath(const std::u16string& systemDirectory);

/// Starts the browser with `page` as its command line, shown normally. `page` is handed over as it
/// stands, without quotes, blanks included. Throws std::runtime_error where the browser cannot be
/// started.
void openInBrowser(std::u16string_view page);

/// Opens the help page; a message where the browser cannot be started.
void showHelp();

}  // namespace app
