# How every target of this repository is compiled.

add_library(lexilo_options INTERFACE)
target_compile_options(lexilo_options INTERFACE
  $<$<COMPILE_LANGUAGE:CXX>:-Wall -Wextra -Wconversion -Wshadow -Werror>)
# GCC 12 sees overlapping copies in std::string's operator+ where there are none (its bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(lexilo_options INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wno-restrict>)
endif()
target_include_directories(lexilo_options INTERFACE ${PROJECT_SOURCE_DIR})
# The version as users read it, "1.3".
target_compile_definitions(lexilo_options INTERFACE
  LEXILO_VERSION="${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}")
target_compile_features(lexilo_options INTERFACE cxx_std_20)

if(WIN32)
  # Windows 10; its headers default to wide texts. dwarf-4 is what Wine's backtraces can read.
  target_compile_definitions(lexilo_options INTERFACE
    _WIN32_WINNT=0x0A00 WINVER=0x0A00 NTDDI_VERSION=0x0A000002 UNICODE _UNICODE NOMINMAX
    WIN32_LEAN_AND_MEAN STRICT)
  # The symbols name sources by their places in the repository.
  add_compile_options(-gdwarf-4 -fdebug-prefix-map=${PROJECT_SOURCE_DIR}/=)
  add_link_options(-static -static-libgcc -static-libstdc++)
  # Windows 10, in the executable as well; the linker's own default is Windows 5.2.
  add_link_options(-Wl,--major-os-version,10,--minor-os-version,0
    -Wl,--major-subsystem-version,10,--minor-subsystem-version,0)
  # Sections that lie in the file as they lie in memory are mapped by Wine, others copied.
  add_link_options(-Wl,--file-alignment,4096)
endif()

if(LEXILO_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

if(LEXILO_SANITIZE_THREADS)
  add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
  add_link_options(-fsanitize=thread)
endif()

if(LEXILO_FUZZ)
  # Coverage guides the fuzzer through our own code only; SQLite, which is C, is watched for errors.
  add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-fsanitize=fuzzer-no-link>
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# What most sources include of the standard library, and of Windows where that is known, compiled once
# for all libraries: half of a first build's time. No substitute for a source's own includes: the
# preset "tools" does without.
option(LEXILO_PRECOMPILE "Compile the headers of the system once" ON)
set(lexilo_headers <algorithm> <array> <chrono> <cstdint> <functional> <limits> <map> <memory>
  <optional> <span> <sstream> <stdexcept> <string> <string_view> <unordered_map> <utility> <vector>)
# windows.h first: the others rest on it.
set(lexilo_windows_headers <windows.h> <commctrl.h> <richedit.h> <shellscalingapi.h> <windowsx.h>)

# lexilo_precompiled(NAME OPTIONS target HEADERS header...): for target_precompile_headers(REUSE_FROM).
function(lexilo_precompiled name)
  cmake_parse_arguments(arg "" "OPTIONS" "HEADERS" ${ARGN})
  if(NOT LEXILO_PRECOMPILE)
    return()
  endif()
  file(WRITE ${PROJECT_BINARY_DIR}/${name}.cpp "")
  add_library(${name} OBJECT ${PROJECT_BINARY_DIR}/${name}.cpp)
  target_link_libraries(${name} PUBLIC ${arg_OPTIONS})
  target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
endfunction()

lexilo_precompiled(precompiled OPTIONS lexilo_options HEADERS ${lexilo_headers})
if(WIN32)
  lexilo_precompiled(precompiled_windows OPTIONS lexilo_options
    HEADERS ${lexilo_windows_headers} ${lexilo_headers})
endif()

# lexilo_reuse(TARGET PRECOMPILED): compiles the sources of TARGET with these headers.
function(lexilo_reuse target precompiled)
  if(LEXILO_PRECOMPILE)
    target_precompile_headers(${target} REUSE_FROM ${precompiled})
  endif()
endfunction()

# lexilo_library(NAME [WINDOWS] SOURCES file... LINKS target...): WINDOWS where the sources know
# windows.h, whose macros the others are spared.
function(lexilo_library name)
  cmake_parse_arguments(arg "WINDOWS" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC lexilo_options ${arg_LINKS})
  if(arg_WINDOWS)
    lexilo_reuse(${name} precompiled_windows)
  else()
    lexilo_reuse(${name} precompiled)
  endif()
endfunction()

# lexilo_folder(NAME [SUBFOLDERS folder...] [EXCEPT file...] [PORTABLE target...] [WINDOWS target...])
# makes libraries of the sources of a folder, and of the subfolders that are named, by their names:
# NAME of x.cpp, built everywhere and linked with the targets after PORTABLE; NAME_win of x_win.cpp,
# built for Windows only and linked with NAME and with the targets after WINDOWS. There is no NAME
# where no source is portable, and no NAME_win where none is for Windows.
function(lexilo_folder name)
  cmake_parse_arguments(arg "" "" "SUBFOLDERS;EXCEPT;PORTABLE;WINDOWS" ${ARGN})
  set(patterns *.cpp)
  foreach(folder ${arg_SUBFOLDERS})
    list(APPEND patterns ${folder}/*.cpp)
  endforeach()
  file(GLOB portable RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} CONFIGURE_DEPENDS ${patterns})
  list(REMOVE_ITEM portable "" ${arg_EXCEPT})
  set(windows ${portable})
  list(FILTER portable EXCLUDE REGEX "_win\\.cpp$")
  list(FILTER windows INCLUDE REGEX "_win\\.cpp$")
  if(portable)
    lexilo_library(${name} SOURCES ${portable} LINKS ${arg_PORTABLE})
    list(PREPEND arg_WINDOWS ${name})
  endif()
  if(WIN32 AND windows)
    lexilo_library(${name}_win WINDOWS SOURCES ${windows} LINKS ${arg_WINDOWS})
  endif()
endfunction()

# lexilo_separate_symbols(TARGET): an executable for Windows without debugging data, which is left
# beside it as TARGET.debug. Debuggers, Wine's among them, find that by the name that is noted in the
# executable. Part of the linking: neither file is ever older than the other. The start routine stays
# as the only symbol: without any, Wine does not read the section names of an executable.
function(lexilo_separate_symbols target)
  set(symbols ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${target}.debug)
  add_custom_command(TARGET ${target} POST_BUILD
    BYPRODUCTS ${symbols}
    COMMAND ${CMAKE_OBJCOPY} --only-keep-debug $<TARGET_FILE:${target}> ${symbols}
    COMMAND ${CMAKE_OBJCOPY} --strip-all --keep-symbol=WinMainCRTStartup
      --keep-symbol=mainCRTStartup
      --add-gnu-debuglink=${symbols} $<TARGET_FILE:${target}>
    VERBATIM)
endfunction()
