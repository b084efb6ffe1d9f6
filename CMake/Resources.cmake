# The resources as programs find them: the folder share/proupsells beside the one of the programs has a folder for each library, with
# pictures that are ready to show in place of the vector files, and links to everything else.

include_guard(GLOBAL)
include(EmbeddedResources)

add_custom_target(ProUpsellsResources ALL)

# Where the programs of this build find them.
cmake_path(SET PROUPSELLS_BUILT_RESOURCES NORMALIZE "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/../share/proupsells")

# proupsells_add_resources(<name> <folder> [SIZES <picture>:<width>x<height>...])
# The resources of a library. SIZES are those in points, beside their natural ones, at which pictures are shown.
function(proupsells_add_resources name folder)
  cmake_parse_arguments(RESOURCES "" "" "SIZES" ${ARGN})
  set(from "${PROJECT_SOURCE_DIR}/${folder}")
  set(installed ${CMAKE_INSTALL_DATADIR}/proupsells/${name})
  set(to "${PROUPSELLS_BUILT_RESOURCES}/${name}")
  file(GLOB_RECURSE as_they_are CONFIGURE_DEPENDS RELATIVE "${from}" "${from}/*")
  list(FILTER as_they_are EXCLUDE REGEX "\\.md$")
  if(PROUPSELLS_RASTER)
    list(FILTER as_they_are EXCLUDE REGEX "\\.svg$")
  endif()
  foreach(file IN LISTS as_they_are)
    proupsells_know_resource("${name}/${file}" "${from}/${file}")
  endforeach()
  if(NOT PROUPSELLS_RASTER)
    file(MAKE_DIRECTORY "${PROUPSELLS_BUILT_RESOURCES}")
    file(CREATE_LINK "${from}" "${to}" SYMBOLIC)
    install(DIRECTORY "${from}/" DESTINATION ${installed} COMPONENT Runtime PATTERN "*.md" EXCLUDE)
    return()
  endif()
  # A link to the sources, from a build without pictures.
  if(IS_SYMLINK "${to}")
    file(REMOVE "${to}")
  endif()
  file(MAKE_DIRECTORY "${to}/Images")
  file(GLOB others CONFIGURE_DEPENDS "${from}/*")
  list(FILTER others EXCLUDE REGEX "/Images$|\\.md$")
  foreach(other IN LISTS others)
    cmake_path(GET other FILENAME file)
    file(CREATE_LINK "${other}" "${to}/${file}" SYMBOLIC)
  endforeach()

  file(GLOB vectors CONFIGURE_DEPENDS "${from}/Images/*.svg")
  set(pictures)
  foreach(vector IN LISTS vectors)
    cmake_path(GET vector STEM LAST_ONLY picture)
    set(sizes ${RESOURCES_SIZES})
    string(REPLACE "~dark" "" name_of_both "${picture}")
    list(FILTER sizes INCLUDE REGEX "^${name_of_both}:")
    list(TRANSFORM sizes REPLACE "^.*:" "")
    set(file "${to}/Images/${picture}.picture")
    add_custom_command(OUTPUT "${file}" COMMAND MakePictures "${vector}" "${file}" ${sizes}
      DEPENDS MakePictures "${vector}"
      COMMENT "Drawing ${picture}" VERBATIM)
    list(APPEND pictures "${file}")
    proupsells_know_resource("${name}/Images/${picture}.picture" "${file}")
  endforeach()
  # What was made of files that are gone.
  file(GLOB made "${to}/Images/*.picture")
  list(REMOVE_ITEM made ${pictures})
  file(GLOB links "${to}/*")
  foreach(file IN LISTS made links)
    if(file IN_LIST made OR NOT EXISTS "${file}")
      file(REMOVE "${file}")
    endif()
  endforeach()

  add_custom_target(${name}Pictures DEPENDS ${pictures})
  add_dependencies(ProUpsellsResources ${name}Pictures)
  install(DIRECTORY "${from}/" DESTINATION ${installed} COMPONENT Runtime PATTERN "*.md" EXCLUDE PATTERN "*.svg" EXCLUDE)
  install(FILES ${pictures} DESTINATION ${installed}/Images COMPONENT Runtime)
endfunction()
