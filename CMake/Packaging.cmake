# The libraries that a host links: put together from rooms, installed with their headers, checked header by header.

include_guard(GLOBAL)
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# proupsells_add_library(<name> FOLDERS <folder>... ROOMS <room>... [LINKS <target>...])
# A static library of exactly these rooms. It is installed as ProUpsells::<name>.
function(proupsells_add_library name)
  cmake_parse_arguments(LIBRARY "" "" "FOLDERS;ROOMS;LINKS;PRIVATE_LINKS" ${ARGN})
  set(target ${name}Library)
  set(objects)
  foreach(room IN LISTS LIBRARY_ROOMS)
    list(APPEND objects "$<TARGET_OBJECTS:${room}>")
  endforeach()
  set(headers)
  foreach(folder IN LISTS LIBRARY_FOLDERS)
    file(GLOB_RECURSE found CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${folder}/*.hpp")
    list(APPEND headers ${found})
  endforeach()

  add_library(${target} STATIC ${objects})
  add_library(ProUpsells::${name} ALIAS ${target})
  set_target_properties(${target} PROPERTIES OUTPUT_NAME ProUpsells${name} EXPORT_NAME ${name} LINKER_LANGUAGE CXX
    VERIFY_INTERFACE_HEADER_SETS ON)
  target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS "${PROJECT_SOURCE_DIR}" FILES ${headers})
  target_compile_features(${target} PUBLIC cxx_std_20)
  target_link_libraries(${target} PUBLIC ${LIBRARY_LINKS} PRIVATE ${LIBRARY_PRIVATE_LINKS})
  install(TARGETS ${target} EXPORT ProUpsells
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/proupsells)
endfunction()

# proupsells_install_package(): the files that find_package(ProUpsells) reads, and the resources.
function(proupsells_install_package)
  set(destination ${CMAKE_INSTALL_LIBDIR}/cmake/ProUpsells)
  install(EXPORT ProUpsells NAMESPACE ProUpsells:: DESTINATION ${destination})
  set(PROUPSELLS_DATA ${CMAKE_INSTALL_DATADIR}/proupsells)
  configure_package_config_file("${PROJECT_SOURCE_DIR}/CMake/ProUpsellsConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/ProUpsellsConfig.cmake" INSTALL_DESTINATION ${destination} PATH_VARS PROUPSELLS_DATA)
  write_basic_package_version_file("${PROJECT_BINARY_DIR}/ProUpsellsConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
  install(FILES "${PROJECT_BINARY_DIR}/ProUpsellsConfig.cmake" "${PROJECT_BINARY_DIR}/ProUpsellsConfigVersion.cmake"
    DESTINATION ${destination})
  install(DIRECTORY "${PROJECT_SOURCE_DIR}/ProUpsells/Resources/" DESTINATION ${CMAKE_INSTALL_DATADIR}/proupsells/ProUpsells
    PATTERN "*.md" EXCLUDE)
  install(DIRECTORY "${PROJECT_SOURCE_DIR}/Platform/VelaUIKit/Resources/" DESTINATION ${CMAKE_INSTALL_DATADIR}/proupsells/VelaUIKit
    PATTERN "*.md" EXCLUDE)
endfunction()
