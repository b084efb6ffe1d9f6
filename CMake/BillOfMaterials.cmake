# What an installed package contains, and what it stands on, as an SPDX 2.3 document: share/doc/proupsells/proupsells.spdx.json, or of one
# component proupsells-<component>.spdx.json. Not among the resources, all of which a host may have inside its program.

include_guard(GLOBAL)

# proupsells_depend_on(<name> <version> <licence>): what is linked or looked up by what is installed; the version as it was found, the
# licence as SPDX writes it, or NOASSERTION where that depends on how it was built.
function(proupsells_depend_on name version licence)
  set_property(GLOBAL APPEND PROPERTY PROUPSELLS_DEPENDENCIES "${name}|${version}|${licence}|DEPENDS_ON")
endfunction()

# proupsells_copy_from(<name> <version> <licence> <pattern>): the same of what installed files are made of, those whose paths match.
function(proupsells_copy_from name version licence pattern)
  set_property(GLOBAL APPEND PROPERTY PROUPSELLS_DEPENDENCIES "${name}|${version}|${licence}|${pattern}")
endfunction()

# proupsells_install_bill(): after everything else that is installed.
function(proupsells_install_bill)
  get_property(PROUPSELLS_DEPENDENCIES GLOBAL PROPERTY PROUPSELLS_DEPENDENCIES)
  find_program(PROUPSELLS_GIT git)
  mark_as_advanced(PROUPSELLS_GIT)
  configure_file("${PROJECT_SOURCE_DIR}/CMake/WriteBill.cmake.in" "${PROJECT_BINARY_DIR}/WriteBill.cmake" @ONLY)
  install(SCRIPT "${PROJECT_BINARY_DIR}/WriteBill.cmake" ALL_COMPONENTS)
endfunction()
