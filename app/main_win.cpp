#include "app/frm_top.h"
#include "forms/exception_barrier.h"
#include "forms/loaded_forms.h"
#include "forms/message_box.h"

/// The toolbar is the start object: loading it starts the program. The exit command ends it.
int WINAPI wWinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, PWSTR /*commandLine*/,
                    int /*show*/) {
  // Whatever loads a library by its plain name finds it in the system directory or not at all.
  SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
  // From here on an error that a handler lets out is shown in a box.
  forms::setErrorHandler(forms::showErrorBox);
  forms::guard([] { forms::form<frmTop>(); });
  if (!forms::isLoaded<frmTop>()) return 1;
  return forms::runMessageLoop();
}
