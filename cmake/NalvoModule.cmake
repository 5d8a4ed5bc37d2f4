# The borders between modules, enforced by include paths.
#
#   nalvo_core(NAME NalvoXxx [USES NalvoYyy ...])
#     A library of the ground floor: all sources of the current folder and its subfolders, on Qt Core and the libraries that are
#     named. It is given no include path of Qt Gui, Qt Widgets or a module, so any such include does not compile.
#
#   nalvo_interface(NAME ModXxx [USES ModYyy ...] [CORES NalvoYyy ...])
#     The face of a module: the library ModXxx_If, which is the include path ModXxx/If and nothing else. It may hold sources of
#     value types that cross the border. USES and CORES name what its own files need; who uses the face names these, too.
#
#   nalvo_module(NAME ModXxx [USES ModYyy ...] [CORES NalvoYyy ...] [LIBS Qt5::Svg ...])
#     The module itself: an object library that sees its own folder, its own face, src/Common with NalvoBase, the faces of the
#     modules under USES and the libraries of the ground floor under CORES. Any other include does not compile: nothing that
#     one of these uses for itself is handed on.
#
# test_House compares USES and CORES with what the files include, and the table in ARCHITECTURE.md with USES.

set_property(GLOBAL PROPERTY NALVO_OBJECT_LIBS "")

add_custom_target(HeaderCheck)

# One precompiled header for all: the Qt headers that nearly every file needs.
add_library(NalvoPch OBJECT "${CMAKE_SOURCE_DIR}/cmake/pch.cpp")
set_target_properties(NalvoPch PROPERTIES AUTOMOC OFF)

function(nalvo_setup_pch)
  target_link_libraries(NalvoPch PUBLIC NalvoFlags Qt5::Core Qt5::Gui Qt5::Widgets)
  target_precompile_headers(NalvoPch PRIVATE "${CMAKE_SOURCE_DIR}/cmake/pch.h")
endfunction()

# What the ground floor consists of, the highest library first.
set(NALVO_CORES NalvoImport NalvoSim NalvoProc NalvoAsm NalvoSyscall NalvoFilter NalvoBase)

# The modules of the program, in the order in which the window creates them. Faces without a module are found by their folders.
set(NALVO_MODULES ModMsg ModPrj ModSources ModProcessor ModAsmFe ModSyscall ModEditor ModSrcNavi ModHlp ModNetwork ModSwUpdate ModAction
                  ModArgs ModCfgApp ModClipboard ModConfig ModFindReplace ModGui ModTemplates ModScript ModImport ModFonts)
file(GLOB NALVO_FACES CONFIGURE_DEPENDS RELATIVE "${CMAKE_SOURCE_DIR}/src" "${CMAKE_SOURCE_DIR}/src/Mod*/If")
list(TRANSFORM NALVO_FACES REPLACE "/If$" "")

add_library(NalvoCorePch OBJECT "${CMAKE_SOURCE_DIR}/cmake/pch.cpp")
set_target_properties(NalvoCorePch PROPERTIES AUTOMOC OFF)
target_link_libraries(NalvoCorePch PUBLIC NalvoFlags Qt5::Core)
target_precompile_headers(NalvoCorePch PRIVATE "${CMAKE_SOURCE_DIR}/cmake/pch_core.h")

function(nalvo_core)
  cmake_parse_arguments(ARG "" "NAME" "USES" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp" "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
  set(dirs "")
  foreach(source IN LISTS sources)
    get_filename_component(dir "${source}" DIRECTORY)
    list(APPEND dirs "${dir}")
  endforeach()
  list(REMOVE_DUPLICATES dirs)
  add_library(${ARG_NAME} STATIC ${sources})
  target_include_directories(${ARG_NAME} PUBLIC ${dirs})
  # Who links the library links those below it as well, but does not see them.
  target_link_libraries(${ARG_NAME} PUBLIC Qt5::Core PRIVATE ${ARG_USES} NalvoFlags)
  target_precompile_headers(${ARG_NAME} REUSE_FROM NalvoCorePch)
  nalvo_watch_headers(${ARG_NAME})
  nalvo_check_headers(NAME ${ARG_NAME} HEADERS ${sources} LIBS ${ARG_NAME} ${ARG_USES} NalvoFlags)
endfunction()

function(_nalvo_object_library target)
  target_link_libraries(${target} PRIVATE NalvoFlags)
  target_precompile_headers(${target} REUSE_FROM NalvoPch)
  set_property(GLOBAL APPEND PROPERTY NALVO_OBJECT_LIBS ${target})
  nalvo_watch_headers(${target})
endfunction()

# nalvo_watch_headers(TARGET): a file that comes into an existing build tree, as by a merge, is searched for meta-objects. The
# build itself remembers only the files of the last search, so that search is forgotten when the list of files changes.
function(nalvo_watch_headers target)
  get_target_property(sources ${target} SOURCES)
  set(known "${CMAKE_CURRENT_BINARY_DIR}/${target}.sources")
  if(EXISTS "${known}")
    file(READ "${known}" before)
    if(NOT before STREQUAL "${sources}")
      file(REMOVE "${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/timestamp")
    endif()
  endif()
  file(WRITE "${known}" "${sources}")
endfunction()

# nalvo_check_headers(NAME name HEADERS file ... [DIRS dir ...] LIBS lib ...): each header is compiled alone, with what the folders
# and libraries let it see, as a part of the target HeaderCheck. No precompiled header helps.
function(nalvo_check_headers)
  cmake_parse_arguments(ARG "" "NAME" "HEADERS;DIRS;LIBS" ${ARGN})
  list(FILTER ARG_HEADERS INCLUDE REGEX "\\.h$")
  if(NOT ARG_HEADERS OR NOT NALVO_TESTS OR NALVO_SANITIZE OR NALVO_COVERAGE)
    return()
  endif()
  set(sources "")
  foreach(header IN LISTS ARG_HEADERS)
    get_filename_component(header "${header}" ABSOLUTE)
    get_filename_component(name "${header}" NAME_WE)
    set(source "${CMAKE_CURRENT_BINARY_DIR}/${ARG_NAME}_Headers/${name}.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT "#include \"${header}\"\n")
    list(APPEND sources "${source}")
  endforeach()
  add_library(${ARG_NAME}_Headers OBJECT ${sources})
  set_target_properties(${ARG_NAME}_Headers PROPERTIES AUTOMOC OFF)
  target_include_directories(${ARG_NAME}_Headers PRIVATE ${ARG_DIRS})
  target_link_libraries(${ARG_NAME}_Headers PRIVATE ${ARG_LIBS})
  # There is nothing to run, so nothing is optimized.
  target_compile_options(${ARG_NAME}_Headers PRIVATE -O0)
  add_dependencies(HeaderCheck ${ARG_NAME}_Headers)
endfunction()

function(nalvo_interface)
  cmake_parse_arguments(ARG "" "NAME" "USES;CORES" ${ARGN})
  add_library(${ARG_NAME}_If INTERFACE)
  target_include_directories(${ARG_NAME}_If INTERFACE "${CMAKE_CURRENT_SOURCE_DIR}")
  file(GLOB cpp CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp")
  file(GLOB headers CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
  list(TRANSFORM ARG_USES APPEND _If)
  set(seen ${ARG_NAME}_If Common_If ${ARG_USES} ${ARG_CORES} Qt5::Core Qt5::Gui Qt5::Widgets)
  if(cpp)
    add_library(${ARG_NAME}_IfObj OBJECT ${cpp} ${headers})
    target_link_libraries(${ARG_NAME}_IfObj PRIVATE ${seen})
    _nalvo_object_library(${ARG_NAME}_IfObj)
  endif()
  nalvo_check_headers(NAME ${ARG_NAME}_If HEADERS ${headers} LIBS ${seen} NalvoFlags)
endfunction()

function(nalvo_module)
  cmake_parse_arguments(ARG "" "NAME" "USES;CORES;LIBS" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp" "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
  # What belongs to the face is built with the face. A module that serves no hook has no face.
  list(FILTER sources EXCLUDE REGEX "^${CMAKE_CURRENT_SOURCE_DIR}/If/")
  if(TARGET ${ARG_NAME}_If)
    list(APPEND ARG_USES ${ARG_NAME})
  endif()
  add_library(${ARG_NAME} OBJECT ${sources})
  set(own "${CMAKE_CURRENT_SOURCE_DIR}")
  foreach(header IN LISTS sources)
    get_filename_component(dir "${header}" DIRECTORY)
    list(APPEND own "${dir}")
  endforeach()
  list(REMOVE_DUPLICATES own)
  target_include_directories(${ARG_NAME} PRIVATE ${own})
  list(TRANSFORM ARG_USES APPEND _If)
  set(seen Common_If ${ARG_USES} ${ARG_CORES})
  set_target_properties(${ARG_NAME} PROPERTIES NALVO_OWN_DIRS "${own}" NALVO_SEES "${seen}" NALVO_LIBS "${ARG_LIBS}")
  list(APPEND seen Qt5::Core Qt5::Gui Qt5::Widgets ${ARG_LIBS})
  target_link_libraries(${ARG_NAME} PRIVATE ${seen})
  _nalvo_object_library(${ARG_NAME})
  nalvo_check_headers(NAME ${ARG_NAME} HEADERS ${sources} DIRS ${own} LIBS ${seen} NalvoFlags)
endfunction()

# nalvo_library(): the library `nalvo` of all modules declared so far, for the programs and the tests.
function(nalvo_library)
  get_property(libs GLOBAL PROPERTY NALVO_OBJECT_LIBS)
  set(objects "")
  foreach(lib IN LISTS libs)
    list(APPEND objects $<TARGET_OBJECTS:${lib}>)
  endforeach()
  add_library(nalvo STATIC ${objects})
  set_target_properties(nalvo PROPERTIES LINKER_LANGUAGE CXX AUTOMOC OFF)
  target_link_libraries(nalvo PUBLIC ${NALVO_CORES} NalvoFlags Qt5::Core Qt5::Gui Qt5::Widgets)
endfunction()

# nalvo_use_module(TARGET MODULE ...): lets a program or a test see the inside of the named modules, and what these see.
function(nalvo_use_module target)
  foreach(module IN LISTS ARGN)
    if(TARGET ${module}_If)
      target_link_libraries(${target} PRIVATE ${module}_If)
    endif()
    if(TARGET ${module})
      get_target_property(own ${module} NALVO_OWN_DIRS)
      target_include_directories(${target} PRIVATE ${own})
      get_target_property(seen ${module} NALVO_SEES)
      get_target_property(libs ${module} NALVO_LIBS)
      target_link_libraries(${target} PRIVATE ${seen})
      if(libs)
        target_link_libraries(${target} PRIVATE ${libs})
      endif()
    endif()
  endforeach()
endfunction()
