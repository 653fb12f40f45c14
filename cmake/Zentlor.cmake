# Settings that every target of this project shares, and the two functions that make a target.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release)
endif()

find_program(ZENTLOR_CCACHE ccache)
if(ZENTLOR_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${ZENTLOR_CCACHE})
endif()

add_library(zentlor_settings INTERFACE)
target_compile_options(zentlor_settings INTERFACE -Wall -Wextra -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # Names with umlauts are part of this program: only composed forms, or two spellings of one name would pass.
  target_compile_options(zentlor_settings INTERFACE -Werror=normalized=nfc)
  # g++ 12 sees overlaps in any `"x" + string` that it optimises.
  target_compile_options(zentlor_settings INTERFACE -Wno-restrict)
  # Tokenizer and parser are many small functions, each called from a few places: 2 % faster when more of them are
  # inlined than g++ does by itself, for 3 % more code.
  target_compile_options(zentlor_settings INTERFACE
    "$<$<CONFIG:Release>:--param=max-inline-insns-auto=100;--param=inline-min-speedup=10>")
endif()
if(ZENTLOR_WARNINGS_AS_ERRORS)
  target_compile_options(zentlor_settings INTERFACE -Werror)
endif()
if(ZENTLOR_SANITIZE)
  target_compile_options(zentlor_settings INTERFACE -fsanitize=${ZENTLOR_SANITIZE} -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  target_link_options(zentlor_settings INTERFACE -fsanitize=${ZENTLOR_SANITIZE})
endif()

# zentlor_library(NAME [LINK target...] [PRIVATE_LINK target...])
# A static library of every source file below the current folder. It sees its own headers as "<folder>/<file>.h"
# below src/ and those of the libraries that it links, and no others: the include path is made of the folders named in
# LINK alone, so that a door opened in the wrong direction does not compile.
function(zentlor_library name)
  cmake_parse_arguments(ARG "" "" "LINK;PRIVATE_LINK" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  list(FILTER sources EXCLUDE REGEX "/main/main\\.cpp$")
  if(NOT sources)
    return()
  endif()
  add_library(${name} STATIC ${sources})
  get_filename_component(folder ${CMAKE_CURRENT_SOURCE_DIR} NAME)
  set(door ${CMAKE_BINARY_DIR}/doors/${folder})
  file(MAKE_DIRECTORY ${door})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${door}/${folder} SYMBOLIC)
  target_include_directories(${name} PUBLIC ${door})
  target_link_libraries(${name} PUBLIC ${ARG_LINK} PRIVATE zentlor_settings ${ARG_PRIVATE_LINK})
endfunction()

# zentlor_test(NAME [SUPPORT file...] LINK target...)
# One GoogleTest program of every source file of the current folder's NAME/, and of the support files named.
function(zentlor_test name)
  cmake_parse_arguments(ARG "" "" "SUPPORT;LINK" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(test_${name} ${sources} ${ARG_SUPPORT})
  target_include_directories(test_${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
  target_compile_definitions(test_${name} PRIVATE ZENTLOR_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
  target_link_libraries(test_${name} PRIVATE ${ARG_LINK} GTest::gtest_main zentlor_settings)
  gtest_discover_tests(test_${name} NO_PRETTY_VALUES DISCOVERY_TIMEOUT 120 PROPERTIES TIMEOUT 300)
endfunction()
