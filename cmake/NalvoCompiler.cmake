# Flags that every target of the project gets, and ccache where it is installed.

find_program(NALVO_CCACHE ccache)
if(NALVO_CCACHE)
  # Precompiled headers are only cached when ccache is told not to look at their time stamps.
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env
      CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
      CCACHE_NOHASHDIR=1 "CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}"
      ${NALVO_CCACHE})
endif()

add_library(NalvoFlags INTERFACE)
target_compile_options(NalvoFlags INTERFACE -Wall -Wextra -Wpedantic -Wshadow=local -Wnon-virtual-dtor
                                            -Wno-deprecated-declarations)
if(NALVO_CCACHE)
  target_compile_options(NalvoFlags INTERFACE -fpch-preprocess)
endif()
if(NALVO_WERROR)
  target_compile_options(NalvoFlags INTERFACE -Werror)
endif()
if(NALVO_SANITIZE)
  target_compile_options(NalvoFlags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                              -fno-omit-frame-pointer)
  target_link_options(NalvoFlags INTERFACE -fsanitize=address,undefined)
endif()
if(NALVO_COVERAGE)
  target_compile_options(NalvoFlags INTERFACE --coverage)
  target_link_options(NalvoFlags INTERFACE --coverage)
endif()
target_compile_definitions(NalvoFlags INTERFACE QT_NO_CAST_TO_ASCII QT_DEPRECATED_WARNINGS_SINCE=0x050000)
