# GoogleTest and rapidcheck: the installed ones, or what compilers that those were not built for can make by themselves.

include_guard(GLOBAL)

option(PROUPSELLS_TEST_LIBRARIES_FROM_SOURCES "Build GoogleTest from the sources in /usr/src, and do with a small rapidcheck" OFF)

if(NOT PROUPSELLS_TEST_LIBRARIES_FROM_SOURCES)
  find_package(GTest REQUIRED)
  find_package(rapidcheck REQUIRED)
  return()
endif()

# Not where a cross compiler looks for its libraries.
find_path(PROUPSELLS_GOOGLETEST googlemock/CMakeLists.txt PATHS /usr/src/googletest REQUIRED NO_CMAKE_FIND_ROOT_PATH)
# In the cache, because GoogleTest's own options take the place of variables.
set(INSTALL_GTEST OFF CACHE INTERNAL "")
if(EMSCRIPTEN)
  set(gtest_disable_pthreads ON CACHE INTERNAL "")
endif()
add_subdirectory("${PROUPSELLS_GOOGLETEST}" "${PROJECT_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL)
# Else it lacks what the tests' newer language has.
target_compile_features(gtest PUBLIC cxx_std_20)
if(EMSCRIPTEN)
  # Node's files do not take the place of standard error.
  target_compile_definitions(gtest PUBLIC GTEST_HAS_STREAM_REDIRECTION=0)
  target_compile_options(gtest INTERFACE "SHELL:-include \"${PROJECT_SOURCE_DIR}/Tests/Support/NoDeathTests.hpp\"")
  # Files are the machine's own, and Node runs the program at once.
  target_link_options(gtest INTERFACE -sNODERAWFS -sWASM_ASYNC_COMPILATION=0 -sEXIT_RUNTIME -sALLOW_MEMORY_GROWTH -sWASM_BIGINT)
endif()
add_library(rapidcheck INTERFACE)
target_include_directories(rapidcheck INTERFACE "${PROJECT_SOURCE_DIR}" "${PROJECT_SOURCE_DIR}/Tests/Support/SmallRapidcheck")
