#include "app/frm_top.h"
#include "forms/dispatcher.h"
#include "forms/registry.h"

/// The toolbar is the start object: loading it starts the program. The exit command ends it.
int WINAPI wWinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, PWSTR /*commandLine*/,
                    int /*show*/) {
  forms::guard([] { forms::single<frmTop>(); });
  return forms::runMessageLoop();
}
