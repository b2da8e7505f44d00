// The builder and checker of the dictionary database, a console program.

#include <iostream>
#include <string>
#include <vector>

#include "dictionary/commands.h"

#ifdef _WIN32

#include "text/utf.h"

// The one call of the Windows API that a console program for UTF-8 needs.
extern "C" __declspec(dllimport) int __stdcall SetConsoleOutputCP(unsigned int codePage);

int wmain(int argc, wchar_t** argv) {
  constexpr unsigned int kUtf8CodePage = 65001;
  SetConsoleOutputCP(kUtf8CodePage);
  std::vector<std::string> arguments;
  for (int i = 1; i < argc; ++i) {
    const std::wstring argument = argv[i];
    arguments.push_back(text::toUtf8(std::u16string(argument.begin(), argument.end())));
  }
  return dictionary::runCommand(arguments, std::cout, std::cerr);
}

#else

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
  return dictionary::runCommand(arguments, std::cout, std::cerr);
}

#endif
