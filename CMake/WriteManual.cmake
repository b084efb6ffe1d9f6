# cmake -D PROGRAM=<file> -D FOLDER=<folder> -P WriteManual.cmake: the program's manual page and its completions for shells.
foreach(file IN ITEMS "proupsells.1:manual" "proupsells:completion;bash" "_proupsells:completion;zsh" "proupsells.fish:completion;fish")
  string(REGEX MATCH "^[^:]+" name "${file}")
  string(REGEX REPLACE "^[^:]+:" "" arguments "${file}")
  execute_process(COMMAND "${PROGRAM}" ${arguments} OUTPUT_FILE "${FOLDER}/${name}" COMMAND_ERROR_IS_FATAL ANY)
endforeach()
