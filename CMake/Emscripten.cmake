# The toolchain of the installed Emscripten, found through its own tool.

execute_process(COMMAND em-config EMSCRIPTEN_ROOT OUTPUT_VARIABLE emscripten OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
include("${emscripten}/cmake/Modules/Platform/Emscripten.cmake")
