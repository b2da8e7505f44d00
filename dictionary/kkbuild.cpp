// kkbuild, the console program that builds and checks the dictionary database: the arguments in
// UTF-8, then runCommand().

#include <iostream>
#include <string>
#include <vector>

#include "dictionary/commands.h"
#include "dictionary/console.h"

#ifdef _WIN32

#include "text/utf.h"

// Wide arguments: narrow ones are in the ANSI code page, which cannot spell every file name.
int wmain(int argc, wchar_t** argv) {
  dictionary::useUtf8Output();
  std::vector<std::string> arguments;
  for (int i = 1; i < argc; ++i) {
    const std::wstring argument = argv[i];
    arguments.push_back(text::toUtf8(std::u16string(argument.begin(), argument.end())));
  }
  return dictionary::runCommand(arguments, std::cout, std::cerr);
}

#else

int main(int argc, char** argv) {
  dictionary::useUtf8Output();
  const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
  return dictionary::runCommand(arguments, std::cout, std::cerr);
}

#endif
