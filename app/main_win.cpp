#include "app/frm_top.h"
#include "forms/exception_barrier.h"
#include "forms/loaded_forms.h"
#include "forms/message_box.h"
#include "lookup/frm_sub.h"
#include "win32/program.h"

namespace {

/// Ends the program with the session, or for an installer that replaces its files. Only the quick
/// lookup window keeps anything, its sizes.
void endWithTheSession() {
  if (forms::isLoaded<frmSub>()) forms::form<frmSub>().unload();
  win32::endProgram();
}

}  // namespace

/// The toolbar is the start object: loading it starts the program. The exit command ends it.
int WINAPI wWinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, PWSTR /*commandLine*/,
                    int /*show*/) {
  // From here on whatever loads a library by its plain name finds it in the system directory or not
  // at all. The libraries in the import table are loaded already: scripts/check_executable.mjs.
  SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
  // From here on an error that a handler lets out is shown in a box.
  forms::setErrorHandler(forms::showErrorBox);
  forms::setSessionEndHandler(endWithTheSession);
  forms::guard([] { forms::form<frmTop>(); });
  if (!forms::isLoaded<frmTop>()) return 1;
  return forms::runMessageLoop();
}
