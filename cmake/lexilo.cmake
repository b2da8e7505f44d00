# How every target of this repository is compiled.

add_library(lexilo_options INTERFACE)
target_compile_options(lexilo_options INTERFACE
  $<$<COMPILE_LANGUAGE:CXX>:-Wall -Wextra -Wconversion -Wshadow -Werror>)
# GCC 12 sees overlapping copies in std::string's operator+ where there are none (its bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(lexilo_options INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wno-restrict>)
endif()
target_include_directories(lexilo_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_features(lexilo_options INTERFACE cxx_std_20)

if(WIN32)
  # Windows 10; its headers default to wide texts. dwarf-4 is what Wine's backtraces can read.
  target_compile_definitions(lexilo_options INTERFACE
    _WIN32_WINNT=0x0A00 WINVER=0x0A00 NTDDI_VERSION=0x0A000002 UNICODE _UNICODE NOMINMAX
    WIN32_LEAN_AND_MEAN STRICT)
  # The symbols name sources by their places in the repository.
  add_compile_options(-gdwarf-4 -fdebug-prefix-map=${PROJECT_SOURCE_DIR}/=)
  add_link_options(-static -static-libgcc -static-libstdc++)
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

# lexilo_library(NAME SOURCES file... LINKS target...)
function(lexilo_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC lexilo_options ${arg_LINKS})
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
      --add-gnu-debuglink=${symbols} $<TARGET_FILE:${target}>
    VERBATIM)
endfunction()
