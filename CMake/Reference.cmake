# A reference of the public headers, made by Doxygen.

include_guard(GLOBAL)

# proupsells_add_reference(): the target `docs`, where Doxygen is installed. It makes the pages in the build folder's reference/html, and
# every warning is an error: a public declaration that nothing is said of, for example.
function(proupsells_add_reference)
  if(NOT PROJECT_IS_TOP_LEVEL)
    return()
  endif()
  find_package(Doxygen 1.9.4 QUIET)
  find_package(Python3 QUIET COMPONENTS Interpreter)
  if(NOT DOXYGEN_FOUND OR NOT Python3_FOUND)
    return()
  endif()

  # The interpreter itself: what stands in its place in a search path may take a second for each header.
  execute_process(COMMAND "${Python3_EXECUTABLE}" -c "import sys; print(sys.executable)"
    OUTPUT_VARIABLE python OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  set(DOXYGEN_INPUT_FILTER "${python} -IS Tools/doxygen_comments.py")
  set(DOXYGEN_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/reference")
  set(DOXYGEN_QUIET YES)
  set(DOXYGEN_WARN_AS_ERROR FAIL_ON_WARNINGS)
  set(DOXYGEN_WARN_NO_PARAMDOC NO)

  # Pages are the same wherever and whenever they are made.
  set(DOXYGEN_STRIP_FROM_PATH "${PROJECT_SOURCE_DIR}")
  set(DOXYGEN_STRIP_FROM_INC_PATH "${PROJECT_SOURCE_DIR};${PROJECT_SOURCE_DIR}/Include")
  set(DOXYGEN_HTML_TIMESTAMP NO)
  set(DOXYGEN_HAVE_DOT NO)

  set(DOXYGEN_JAVADOC_AUTOBRIEF YES)
  set(DOXYGEN_BUILTIN_STL_SUPPORT YES)
  set(DOXYGEN_HIDE_FRIEND_COMPOUNDS YES)
  set(DOXYGEN_VERBATIM_HEADERS NO)
  set(DOXYGEN_SORT_MEMBER_DOCS NO)
  set(DOXYGEN_GENERATE_TREEVIEW YES)

  # What a reader need not see of a declaration.
  set(DOXYGEN_MACRO_EXPANSION YES)
  set(DOXYGEN_EXPAND_ONLY_PREDEF YES)
  set(DOXYGEN_SEARCH_INCLUDES NO)
  set(DOXYGEN_PREDEFINED "PROUPSELLS_ALWAYS_EXPORTED=" "PROUPSELLS_EXPORT=" "Q_ENUM(x)=" "Q_OBJECT=")

  get_property(headers GLOBAL PROPERTY PROUPSELLS_PUBLIC_HEADERS)
  doxygen_add_docs(docs ${headers} Docs/reference.dox Docs/embedding.md WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
    COMMENT "Making the reference in ${DOXYGEN_OUTPUT_DIRECTORY}/html")
endfunction()
