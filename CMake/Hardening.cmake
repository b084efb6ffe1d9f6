# What makes a fault in our own programs and libraries harder to use: for optimised builds on Linux, of this project alone. A host that
# has this project as a part of its own decides for itself.

include_guard(GLOBAL)
include(CheckCXXCompilerFlag)
include(CheckPIESupported)
include(CMakeDependentOption)

set(proupsells_can_harden OFF)
if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
  set(proupsells_can_harden ON)
endif()
cmake_dependent_option(PROUPSELLS_HARDENING "Build what is optimised with checks against misuse of its memory" ${PROJECT_IS_TOP_LEVEL}
  "proupsells_can_harden" OFF)

# proupsells_leave_plain(<target>): for what is not optimised, where the C library's checks are only a warning.
function(proupsells_leave_plain target)
  target_compile_options(${target} PRIVATE -O0)
  if(PROUPSELLS_HARDENING)
    target_compile_options(${target} PRIVATE -U_FORTIFY_SOURCE)
  endif()
endfunction()

if(NOT PROUPSELLS_HARDENING)
  return()
endif()

set(proupsells_optimised "$<CONFIG:Release,RelWithDebInfo,MinSizeRel>")
# Calls of the C library know how long their buffers are. Containers of the C++ library would know how long they are themselves
# (_GLIBCXX_ASSERTIONS), for 5 % more instructions until the first paywall is there: builds with sanitizers have that.
add_compile_options("$<${proupsells_optimised}:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=3>")
foreach(flag IN ITEMS
    -fstack-protector-strong   # a return address that was written over ends the program
    -fstack-clash-protection   # so does a stack that grows into something else
    -fcf-protection=full)      # jumps end where a function begins; x86 alone has it
  string(MAKE_C_IDENTIFIER "PROUPSELLS_HAS${flag}" has_flag)
  check_cxx_compiler_flag(${flag} ${has_flag})
  if(${has_flag})
    add_compile_options("$<${proupsells_optimised}:${flag}>")
  endif()
endforeach()

# Programs lie at another place each time they start; tables of addresses are written once and then read only.
check_pie_supported(LANGUAGES CXX)
add_link_options("LINKER:-z,relro,-z,now,-z,noexecstack")
