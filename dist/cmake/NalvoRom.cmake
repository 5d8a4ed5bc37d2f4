# nalvo_add_rom(TARGET
#               PROJECT FILE
#               [OUTPUT KIND[:OPTION...]=FILE ...]
#               [WRITES FILE ...]
#               [EVENT button1|button2|save|none]
#               [LISTING FILE] [SYMBOLS FILE]
#               [WERROR] [ALLOW_OUTSIDE] [ALL]
#               [DEPENDS FILE ...])
#
# A target that assembles a project. It runs again when the project, one of its sources, a template or the assembler has
# changed, an argument here, or a file of DEPENDS; the sources need not be listed.
#
#   PROJECT  the project file, from the source folder
#   OUTPUT   files that are written whatever the project writes, as by the option --output of nalvo-asm; from the build
#            folder. {DEVICE} in a name is not possible: which files that makes is not known before the run. A generator
#            expression can not stand for an absolute path.
#   WRITES   files that the project itself writes at the event; from the folder of the project file
#   EVENT    default: button1 with WRITES; without, none, so that the folder of the project stays as it is
#   LISTING, SYMBOLS  from the build folder
#   WERROR   warnings are errors
#   ALLOW_OUTSIDE  a source may name output files outside of the project's folder
#   ALL      the target belongs to the default one
#
# The property NALVO_FILES of the target is the list of all files, absolute:
#
#   nalvo_add_rom(rom PROJECT uart.nalvo OUTPUT mif=rom.mif)
#   get_target_property(files rom NALVO_FILES)
cmake_minimum_required(VERSION 3.20...3.25)

function(nalvo_add_rom target)
  cmake_parse_arguments(PARSE_ARGV 1 ARG "WERROR;ALLOW_OUTSIDE;ALL" "PROJECT;EVENT;LISTING;SYMBOLS" "OUTPUT;WRITES;DEPENDS")
  if(ARG_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "nalvo_add_rom(${target}): unknown arguments: ${ARG_UNPARSED_ARGUMENTS}")
  endif()
  if(ARG_KEYWORDS_MISSING_VALUES)
    message(FATAL_ERROR "nalvo_add_rom(${target}): no value for ${ARG_KEYWORDS_MISSING_VALUES}")
  endif()
  if(NOT ARG_PROJECT)
    message(FATAL_ERROR "nalvo_add_rom(${target}): PROJECT is missing")
  endif()
  if(NOT NALVO_ASM_EXECUTABLE)
    message(FATAL_ERROR "nalvo_add_rom(${target}): NALVO_ASM_EXECUTABLE is not set")
  endif()
  cmake_path(ABSOLUTE_PATH ARG_PROJECT BASE_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}" NORMALIZE OUTPUT_VARIABLE project)
  cmake_path(GET project PARENT_PATH projectDir)
  cmake_path(GET project FILENAME projectName)
  if(NOT EXISTS "${project}")
    message(FATAL_ERROR "nalvo_add_rom(${target}): there is no project file ${project}")
  endif()
  if(NOT ARG_EVENT)
    set(ARG_EVENT none)
    if(ARG_WRITES)
      set(ARG_EVENT button1)
    endif()
  endif()
  if(NOT ARG_EVENT MATCHES "^(button1|button2|save|none)$")
    message(FATAL_ERROR "nalvo_add_rom(${target}): EVENT is button1, button2, save or none: ${ARG_EVENT}")
  endif()

  set(options --event "${ARG_EVENT}")
  set(files "")
  foreach(output IN LISTS ARG_OUTPUT)
    # The parts are those of the last expression that is looked at.
    if(output MATCHES "{DEVICE}" OR NOT output MATCHES "^([^=]+)=(.+)$")
      message(FATAL_ERROR "nalvo_add_rom(${target}): an OUTPUT is KIND[:OPTION...]=FILE: ${output}")
    endif()
    set(kind "${CMAKE_MATCH_1}")
    set(file "${CMAKE_MATCH_2}")
    cmake_path(ABSOLUTE_PATH file BASE_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}" NORMALIZE)
    list(APPEND files "${file}")
    list(APPEND options --output "${kind}=${file}")
  endforeach()
  foreach(report LISTING SYMBOLS)
    if(ARG_${report})
      set(file "${ARG_${report}}")
      cmake_path(ABSOLUTE_PATH file BASE_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}" NORMALIZE)
      list(APPEND files "${file}")
      string(TOLOWER "${report}" option)
      list(APPEND options "--${option}" "${file}")
    endif()
  endforeach()
  foreach(file IN LISTS ARG_WRITES)
    cmake_path(ABSOLUTE_PATH file BASE_DIRECTORY "${projectDir}" NORMALIZE)
    list(APPEND files "${file}")
  endforeach()
  if(NOT files)
    message(FATAL_ERROR "nalvo_add_rom(${target}): no file is written; there are OUTPUT, WRITES, LISTING and SYMBOLS")
  endif()
  set(others "${files}")
  list(REMOVE_DUPLICATES others)
  if(NOT others STREQUAL files)
    message(FATAL_ERROR "nalvo_add_rom(${target}): two outputs go to the same file: ${files}")
  endif()
  if(ARG_WERROR)
    list(APPEND options --werror)
  endif()
  if(ARG_ALLOW_OUTSIDE)
    list(APPEND options --allow-outside)
  endif()

  # Makefiles do not notice that a command has changed.
  set(optionsFile "${CMAKE_CURRENT_BINARY_DIR}/${target}.nalvo.options")
  set(known "")
  if(EXISTS "${optionsFile}")
    file(READ "${optionsFile}" known)
  endif()
  if(NOT known STREQUAL "${options}")
    file(WRITE "${optionsFile}" "${options}")
  endif()

  # The folders of outputs must exist when the assembler writes.
  set(folders "")
  foreach(file IN LISTS files)
    cmake_path(GET file PARENT_PATH folder)
    list(APPEND folders "${folder}")
  endforeach()
  list(REMOVE_DUPLICATES folders)
  list(GET files 0 first)
  set(depfile "${CMAKE_CURRENT_BINARY_DIR}/${target}.nalvo.d")
  add_custom_command(
    OUTPUT ${files}
    COMMAND "${CMAKE_COMMAND}" -E make_directory ${folders}
    COMMAND "${NALVO_ASM_EXECUTABLE}" -q ${options} --depfile "${depfile}" --depfile-target "${first}" -- "${project}"
    DEPENDS "${project}" "${NALVO_ASM_EXECUTABLE}" "${optionsFile}" ${ARG_DEPENDS}
    DEPFILE "${depfile}"
    WORKING_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}"
    COMMENT "Assembling ${projectName}"
    VERBATIM)
  set(all "")
  if(ARG_ALL)
    set(all ALL)
  endif()
  add_custom_target(${target} ${all} DEPENDS ${files})
  set_target_properties(${target} PROPERTIES NALVO_FILES "${files}")
endfunction()
