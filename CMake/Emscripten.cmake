# The toolchain of the installed Emscripten, found through its own tool.

execute_process(COMMAND em-config EMSCRIPTEN_ROOT OUTPUT_VARIABLE emscripten OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
include("${emscripten}/cmake/Modules/Platform/Emscripten.cmake")

# Code that is not optimised takes several times the stack, and Node has less of it than the system gives.
if(NOT "${CMAKE_CROSSCOMPILING_EMULATOR}" MATCHES "--stack-size")
  set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CROSSCOMPILING_EMULATOR};--stack-size=3900")
endif()
