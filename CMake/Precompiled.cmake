# Headers that many sources share, compiled once. Every source includes what it needs by itself and compiles without them, too
# (CMAKE_DISABLE_PRECOMPILE_HEADERS); a set must be compiled with the flags of the sources that use it.

include_guard(GLOBAL)

# proupsells_add_precompiled(<name> <header>...): a set of headers, for proupsells_use_precompiled.
function(proupsells_add_precompiled name)
  add_library(${name} OBJECT "${PROJECT_SOURCE_DIR}/CMake/EmptyRoom.cpp")
  target_link_libraries(${name} PRIVATE ProUpsellsFlags)
  proupsells_precompile(${name} ${ARGN})
endfunction()

function(proupsells_use_precompiled target name)
  target_precompile_headers(${target} REUSE_FROM ${name})
  # What ccache needs of g++ to see which headers went into a precompiled one.
  target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endfunction()

# proupsells_precompile(<target> <header>...): a set of the target's own.
function(proupsells_precompile target)
  target_precompile_headers(${target} PRIVATE ${ARGN})
  # Else clang writes the time into the file, and no two builds of it are the same to ccache.
  target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:Clang>:SHELL:-Xclang -fno-pch-timestamp>
    $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endfunction()
