# The libraries that a host links: put together from rooms, installed with their public headers, each a component of the package.

include_guard(GLOBAL)
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
include(PublicHeaders)

set(PROUPSELLS_PACKAGE_FOLDER ${CMAKE_INSTALL_LIBDIR}/cmake/ProUpsells)

# proupsells_add_library(<name> ROOMS <room>... [PART_OF <name>] [LINKS <library>...] [LIBRARIES <target>...]
#   [HIDDEN_LIBRARIES <target>...] [MODULES <pkg-config module>...] [HIDDEN_MODULES <pkg-config module>...])
# A library of exactly these rooms, on others of ours and on others' (which pkg-config knows as MODULES); no public header names those
# that are hidden. It is installed as ProUpsells::<name>, the component <name> of the package, with the headers of
# PROUPSELLS_<name>_HEADERS. Where libraries are shared, its rooms become part of the one that is named with PART_OF.
function(proupsells_add_library name)
  cmake_parse_arguments(LIBRARY "" "PART_OF" "ROOMS;LINKS;LIBRARIES;HIDDEN_LIBRARIES;MODULES;HIDDEN_MODULES" ${ARGN})
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
  list(TRANSFORM LIBRARY_LINKS PREPEND ProUpsells:: OUTPUT_VARIABLE ours)

  if(BUILD_SHARED_LIBS AND LIBRARY_PART_OF)
    target_sources(${LIBRARY_PART_OF}Library PRIVATE ${objects})
    add_library(${target} INTERFACE)
    set(scope INTERFACE)
  else()
    add_library(${target} ${objects})
    set_target_properties(${target} PROPERTIES OUTPUT_NAME ProUpsells${name} LINKER_LANGUAGE CXX)
    target_link_libraries(${target} PRIVATE ${LIBRARY_HIDDEN_LIBRARIES})
    set(scope PUBLIC)
  endif()
  if(BUILD_SHARED_LIBS AND NOT LIBRARY_PART_OF)
    proupsells_share(${target})
  endif()
  add_library(ProUpsells::${name} ALIAS ${target})
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${name} VERIFY_INTERFACE_HEADER_SETS ON)
  set_property(GLOBAL APPEND PROPERTY PROUPSELLS_PUBLIC_HEADERS ${PROUPSELLS_${name}_HEADERS})
  set_property(GLOBAL APPEND PROPERTY PROUPSELLS_COMPONENTS ${name})
  set_property(GLOBAL PROPERTY PROUPSELLS_LINKS_${name} ${LIBRARY_LINKS})
  # Two roots in the source tree, one where they are installed.
  target_sources(${target} ${scope}
    FILE_SET headers TYPE HEADERS BASE_DIRS "${PROJECT_SOURCE_DIR}" FILES ${headers}
    FILE_SET umbrella TYPE HEADERS BASE_DIRS "${PROJECT_SOURCE_DIR}/Include" FILES ${umbrella})
  target_compile_features(${target} ${scope} cxx_std_20)
  target_link_libraries(${target} ${scope} ${ours} ${LIBRARY_LIBRARIES})
  install(TARGETS ${target} EXPORT ProUpsells${name}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime NAMELINK_COMPONENT Development
    FILE_SET headers DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/proupsells COMPONENT Headers
    FILE_SET umbrella DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/proupsells COMPONENT Headers)
  install(EXPORT ProUpsells${name} NAMESPACE ProUpsells:: DESTINATION ${PROUPSELLS_PACKAGE_FOLDER} COMPONENT Development)
  proupsells_install_module(${name})
endfunction()

# proupsells_share(<target>): what a shared library of ours has beside its objects.
function(proupsells_share target)
  target_compile_definitions(${target} PUBLIC PROUPSELLS_SHARED)
  # Our libraries lie side by side, wherever that is.
  set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR} INSTALL_RPATH "$ORIGIN")
  proupsells_limit_exports(${target})
  target_link_options(${target} PRIVATE "$<$<PLATFORM_ID:Linux>:LINKER:--no-undefined>")
endfunction()

# proupsells_limit_exports(<target>): others see only what CMake/Exports.map has.
function(proupsells_limit_exports target)
  set(exports "${PROJECT_SOURCE_DIR}/CMake/Exports.map")
  target_link_options(${target} PRIVATE "$<$<PLATFORM_ID:Linux>:LINKER:--version-script=${exports}>")
  set_target_properties(${target} PROPERTIES LINK_DEPENDS "${exports}")
endfunction()

# For hosts that use pkg-config: proupsells.pc is the module, proupsells-<component>.pc a component.
function(proupsells_install_module name)
  string(TOLOWER "proupsells-${name}" module)
  string(REPLACE "proupsells-proupsells" "proupsells" module ${module})
  list(TRANSFORM LIBRARY_LINKS TOLOWER OUTPUT_VARIABLE requires)
  list(TRANSFORM requires PREPEND "proupsells-")
  list(TRANSFORM requires REPLACE "^proupsells-proupsells$" "proupsells")
  list(APPEND requires ${LIBRARY_MODULES})
  set(definitions "")
  set(libraries "-lProUpsells${name}")
  set(private_libraries "-lstdc++ -lm -ldl")
  if(BUILD_SHARED_LIBS)
    set(definitions " -DPROUPSELLS_SHARED")
    set(private_libraries "")
    if(LIBRARY_PART_OF)
      set(libraries "")
    endif()
  else()
    list(APPEND requires ${LIBRARY_HIDDEN_MODULES})
  endif()
  list(JOIN requires ", " requires)
  cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig" OUTPUT_VARIABLE up)
  file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/${module}.pc" @ONLY CONTENT [[prefix=${pcfiledir}/@up@
libdir=${prefix}/@CMAKE_INSTALL_LIBDIR@
includedir=${prefix}/@CMAKE_INSTALL_INCLUDEDIR@
resources=${prefix}/@CMAKE_INSTALL_DATADIR@/proupsells

Name: @module@
Description: Screens that sell a subscription, component @name@
Version: @PROJECT_VERSION@
Requires: @requires@
Libs: -L${libdir} @libraries@
Libs.private: @private_libraries@
Cflags: -I${includedir}/proupsells "-DPROUPSELLS_RESOURCES=\"${resources}\""@definitions@
]])
  install(FILES "${PROJECT_BINARY_DIR}/${module}.pc" DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT Development)
endfunction()

# proupsells_install_licence(<package> <component>): where Debian looks for that of a package, which the component becomes.
function(proupsells_install_licence package component)
  install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} RENAME copyright
    COMPONENT ${component})
endfunction()

# proupsells_install_package(): the files that find_package(ProUpsells) reads, and the licence.
# PublicHeaders.txt in the build folder then names what the libraries install, a header a line.
function(proupsells_install_package)
  get_property(headers GLOBAL PROPERTY PROUPSELLS_PUBLIC_HEADERS)
  list(JOIN headers "\n" lines)
  file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/PublicHeaders.txt" CONTENT "${lines}\n" @ONLY)

  get_property(PROUPSELLS_COMPONENTS GLOBAL PROPERTY PROUPSELLS_COMPONENTS)
  set(PROUPSELLS_COMPONENT_LINKS "")
  foreach(component IN LISTS PROUPSELLS_COMPONENTS)
    get_property(links GLOBAL PROPERTY PROUPSELLS_LINKS_${component})
    string(APPEND PROUPSELLS_COMPONENT_LINKS "set(ProUpsells_${component}_LINKS ${links})\n")
  endforeach()
  set(PROUPSELLS_DATA ${CMAKE_INSTALL_DATADIR}/proupsells)
  set(PROUPSELLS_IS_SHARED OFF)
  if(BUILD_SHARED_LIBS)
    set(PROUPSELLS_IS_SHARED ON)
  endif()
  configure_package_config_file("${PROJECT_SOURCE_DIR}/CMake/ProUpsellsConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/ProUpsellsConfig.cmake" INSTALL_DESTINATION ${PROUPSELLS_PACKAGE_FOLDER} PATH_VARS PROUPSELLS_DATA
    NO_CHECK_REQUIRED_COMPONENTS_MACRO)
  write_basic_package_version_file("${PROJECT_BINARY_DIR}/ProUpsellsConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
  install(FILES "${PROJECT_BINARY_DIR}/ProUpsellsConfig.cmake" "${PROJECT_BINARY_DIR}/ProUpsellsConfigVersion.cmake"
    "${PROJECT_SOURCE_DIR}/CMake/ResourcePlace.cpp.in" "${PROJECT_SOURCE_DIR}/CMake/EmbeddedResources.cmake"
    "${PROJECT_SOURCE_DIR}/CMake/EmbeddedResources.cpp.in" DESTINATION ${PROUPSELLS_PACKAGE_FOLDER} COMPONENT Development)
  proupsells_install_licence(libproupsells Runtime)
  proupsells_install_licence(libproupsells-dev Development)

  # Hosts that build this project as a part of their own have their programs somewhere else.
  if(NOT PROJECT_IS_TOP_LEVEL)
    set(ProUpsells_RESOURCES "${PROUPSELLS_BUILT_RESOURCES}")
    configure_file("${PROJECT_SOURCE_DIR}/CMake/ResourcePlace.cpp.in" "${PROJECT_BINARY_DIR}/ResourcePlace.cpp" @ONLY)
    target_sources(PlatformLibrary INTERFACE "$<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/ResourcePlace.cpp>")
  endif()
endfunction()
