# The libraries that a host links: put together from rooms, installed with their public headers, checked header by header.

include_guard(GLOBAL)
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
include(PublicHeaders)

# proupsells_add_library(<name> ROOMS <room>... [LINKS <target>...])
# A static library of exactly these rooms. It is installed as ProUpsells::<name>, with the headers of PROUPSELLS_<name>_HEADERS.
function(proupsells_add_library name)
  cmake_parse_arguments(LIBRARY "" "" "ROOMS;LINKS" ${ARGN})
  set(target ${name}Library)
  set(objects)
  foreach(room IN LISTS LIBRARY_ROOMS)
    list(APPEND objects "$<TARGET_OBJECTS:${room}>")
  endforeach()
  set(headers ${PROUPSELLS_${name}_HEADERS})
  list(TRANSFORM headers PREPEND "${PROJECT_SOURCE_DIR}/")
  set(umbrella ${headers})
  list(FILTER umbrella INCLUDE REGEX "^${PROJECT_SOURCE_DIR}/Include/")
  list(REMOVE_ITEM headers ${umbrella})

  add_library(${target} STATIC ${objects})
  add_library(ProUpsells::${name} ALIAS ${target})
  set_target_properties(${target} PROPERTIES OUTPUT_NAME ProUpsells${name} EXPORT_NAME ${name} LINKER_LANGUAGE CXX
    VERIFY_INTERFACE_HEADER_SETS ON)
  set_property(GLOBAL APPEND PROPERTY PROUPSELLS_PUBLIC_HEADERS ${PROUPSELLS_${name}_HEADERS})
  # Two roots in the source tree, one where they are installed.
  target_sources(${target} PUBLIC
    FILE_SET headers TYPE HEADERS BASE_DIRS "${PROJECT_SOURCE_DIR}" FILES ${headers}
    FILE_SET umbrella TYPE HEADERS BASE_DIRS "${PROJECT_SOURCE_DIR}/Include" FILES ${umbrella})
  target_compile_features(${target} PUBLIC cxx_std_20)
  target_link_libraries(${target} PUBLIC ${LIBRARY_LINKS})
  install(TARGETS ${target} EXPORT ProUpsells
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    FILE_SET headers DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/proupsells COMPONENT Headers
    FILE_SET umbrella DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/proupsells COMPONENT Headers)
endfunction()

# proupsells_install_package(): the files that find_package(ProUpsells) reads.
# PublicHeaders.txt in the build folder then names what the libraries install, a header a line.
function(proupsells_install_package)
  get_property(headers GLOBAL PROPERTY PROUPSELLS_PUBLIC_HEADERS)
  list(JOIN headers "\n" lines)
  file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/PublicHeaders.txt" CONTENT "${lines}\n" @ONLY)
  set(destination ${CMAKE_INSTALL_LIBDIR}/cmake/ProUpsells)
  install(EXPORT ProUpsells NAMESPACE ProUpsells:: DESTINATION ${destination})
  set(PROUPSELLS_DATA ${CMAKE_INSTALL_DATADIR}/proupsells)
  configure_package_config_file("${PROJECT_SOURCE_DIR}/CMake/ProUpsellsConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/ProUpsellsConfig.cmake" INSTALL_DESTINATION ${destination} PATH_VARS PROUPSELLS_DATA)
  write_basic_package_version_file("${PROJECT_BINARY_DIR}/ProUpsellsConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
  install(FILES "${PROJECT_BINARY_DIR}/ProUpsellsConfig.cmake" "${PROJECT_BINARY_DIR}/ProUpsellsConfigVersion.cmake"
    DESTINATION ${destination})
endfunction()
