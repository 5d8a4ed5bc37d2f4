# find_package(Nalvo): finds the batch assembler, and provides nalvo_add_rom(), which NalvoRom.cmake describes.
#
#   NALVO_ASM_EXECUTABLE   the batch assembler. To take another one, set it before, or by -D on the command line.
include("${CMAKE_CURRENT_LIST_DIR}/NalvoPaths.cmake" OPTIONAL)
find_program(NALVO_ASM_EXECUTABLE nalvo-asm HINTS "${nalvoBinDir}" DOC "The batch assembler of Nalvo")
unset(nalvoBinDir)
if(NOT NALVO_ASM_EXECUTABLE)
  set(Nalvo_FOUND FALSE)
  set(Nalvo_NOT_FOUND_MESSAGE "The program nalvo-asm was not found. NALVO_ASM_EXECUTABLE says where it is.")
  return()
endif()
include("${CMAKE_CURRENT_LIST_DIR}/NalvoRom.cmake")
