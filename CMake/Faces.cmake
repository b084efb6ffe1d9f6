# The faces that travel with the module: those that the design system names, cut down to Latin, Greek, Cyrillic and symbols.

include_guard(GLOBAL)

set(PROUPSELLS_TYPEFACES "/usr/share/fonts/opentype" CACHE PATH "Where the folders of the typefaces Inter and Sora lie")
set(PROUPSELLS_TYPEFACE_LICENCES "/usr/share/doc" CACHE PATH "Where the folders fonts-inter and fonts-sora with their copyrights lie")

set(PROUPSELLS_FACE_CHARACTERS
  U+0020-052F,U+1C80-1C8F,U+1D00-1FFF,U+2000-2BFF,U+2C60-2C7F,U+2DE0-2E7F,U+A640-A69F,U+A700-A7FF,U+AB30-AB6F,U+FB00-FB06,U+FE00-FE0F,U+FFFC-FFFD,U+1F100-1F1FF,U+1F800-1F8FF)

# proupsells_find_fonttools(<variable>): a Python that has fontTools; not every Python on the path has it.
function(proupsells_find_fonttools variable)
  find_package(Python3 REQUIRED COMPONENTS Interpreter)
  foreach(python IN ITEMS "${Python3_EXECUTABLE}" /usr/bin/python3)
    execute_process(COMMAND "${python}" -c "import fontTools.subset" RESULT_VARIABLE is_missing OUTPUT_QUIET ERROR_QUIET)
    if(is_missing EQUAL 0)
      set(${variable} "${python}" PARENT_SCOPE)
      return()
    endif()
  endforeach()
  message(FATAL_ERROR "The faces are made with fontTools: install python3-fonttools")
endfunction()

# proupsells_add_face(<source> <family> <weight>): adds "<family>-<weight>.otf" to PROUPSELLS_FACE_FILES. The file's name is how the
# program tells the faces apart.
function(proupsells_add_face source family weight)
  set(face "${PROUPSELLS_FACES}/${family}-${weight}.otf")
  add_custom_command(OUTPUT "${face}"
    COMMAND "${CMAKE_COMMAND}" -E make_directory "${PROUPSELLS_FACES}"
    # Glyphs are never hinted. Of the features, those stay that texts have without asking, which is what fontTools keeps; of the names,
    # those of the face and of its licence. The time in the file stays the typeface's own, so that two builds are alike.
    COMMAND "${PROUPSELLS_FONTTOOLS}" -m fontTools.subset "${PROUPSELLS_TYPEFACES}/${source}" "--output-file=${face}"
      "--unicodes=${PROUPSELLS_FACE_CHARACTERS}" "--name-IDs=0,1,2,3,4,5,6,13,14" --notdef-outline --no-hinting
      --drop-tables+=GlyphOrder --no-recalc-timestamp
    DEPENDS "${PROUPSELLS_TYPEFACES}/${source}" "${PROJECT_SOURCE_DIR}/CMake/Faces.cmake"
    COMMENT "Cutting ${family} ${weight}" VERBATIM)
  set(PROUPSELLS_FACE_FILES ${PROUPSELLS_FACE_FILES} "${face}" PARENT_SCOPE)
endfunction()

# proupsells_note_typeface(<name> <source> <pattern>): the installed files that match are made of the typeface, whose version the source
# tells.
function(proupsells_note_typeface name source pattern)
  execute_process(COMMAND "${PROUPSELLS_FONTTOOLS}" -c "
import re, sys
from fontTools.ttLib import TTFont
print(re.search(r'[0-9.]+', TTFont(sys.argv[1])['name'].getDebugName(5)).group())" "${PROUPSELLS_TYPEFACES}/${source}"
    OUTPUT_VARIABLE version OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  proupsells_copy_from("${name}" "${version}" OFL-1.1 "${pattern}")
endfunction()

# proupsells_add_faces(): the target ProUpsellsFaces fills PROUPSELLS_FACES, the folder share/proupsells/Fonts beside the programs'.
function(proupsells_add_faces)
  set(PROUPSELLS_FACES "${PROUPSELLS_BUILT_RESOURCES}/Fonts")
  proupsells_find_fonttools(PROUPSELLS_FONTTOOLS)
  set(PROUPSELLS_FACE_FILES)
  proupsells_add_face(inter/Inter-Regular.otf "Inter" 400)
  proupsells_add_face(inter/Inter-Medium.otf "Inter" 500)
  proupsells_add_face(inter/Inter-SemiBold.otf "Inter" 600)
  proupsells_add_face(inter/Inter-Bold.otf "Inter" 700)
  proupsells_add_face(inter/InterDisplay-Regular.otf "Inter Display" 400)
  proupsells_add_face(inter/InterDisplay-Medium.otf "Inter Display" 500)
  proupsells_add_face(inter/InterDisplay-Bold.otf "Inter Display" 700)
  proupsells_add_face(sora/Sora-SemiBold.otf "Sora" 600)
  proupsells_add_face(sora/Sora-Bold.otf "Sora" 700)
  proupsells_note_typeface(Inter inter/Inter-Regular.otf "/Fonts/(fonts-)?[Ii]nter")
  proupsells_note_typeface(Sora sora/Sora-SemiBold.otf "/Fonts/(fonts-)?[Ss]ora")
  foreach(package IN ITEMS fonts-inter fonts-sora)
    set(licence "${PROUPSELLS_FACES}/${package}.copyright")
    add_custom_command(OUTPUT "${licence}"
      COMMAND "${CMAKE_COMMAND}" -E copy "${PROUPSELLS_TYPEFACE_LICENCES}/${package}/copyright" "${licence}"
      DEPENDS "${PROUPSELLS_TYPEFACE_LICENCES}/${package}/copyright" VERBATIM)
    list(APPEND PROUPSELLS_FACE_FILES "${licence}")
  endforeach()
  foreach(file IN LISTS PROUPSELLS_FACE_FILES)
    cmake_path(GET file FILENAME name)
    proupsells_know_resource("Fonts/${name}" "${file}")
  endforeach()
  add_custom_target(ProUpsellsFaces ALL DEPENDS ${PROUPSELLS_FACE_FILES})
  install(FILES ${PROUPSELLS_FACE_FILES} DESTINATION ${CMAKE_INSTALL_DATADIR}/proupsells/Fonts COMPONENT Runtime)
endfunction()
