# What "cmake --install" puts where. The usual variables apply: CMAKE_INSTALL_PREFIX,
# DESTDIR, and those of GNUInstallDirs.
#
#   libexec/nalvo/bin/     the programs, and the library that draws the help
#   libexec/nalvo/         links to what ships beside them, where a program looks for it from its own folder
#   share/nalvo/           that itself: templates, filters, fonts, help, examples
#   bin/                   links to the programs
#
# All links are relative and no program knows where it was built or installed, so the installed tree can be moved as a
# whole.
# Components: program, tools (the batch programs with what they read), help, data, editors, docs. What desktops, shells and other
# editors read is installed by its own folder.

option(NALVO_INSTALL_FONTS "Install copies of the fonts; a package may name those of the system instead" ON)

set(nalvoHome "${CMAKE_INSTALL_LIBEXECDIR}/nalvo")
set(nalvoData "${CMAKE_INSTALL_DATADIR}/nalvo")
set(nalvoLinks "${CMAKE_BINARY_DIR}/install-links")

# nalvo_install_link(COMPONENT LINK TARGET): both paths as an installation has them, below the prefix or absolute.
function(nalvo_install_link component link target)
  cmake_path(GET link PARENT_PATH dir)
  cmake_path(GET link FILENAME name)
  cmake_path(ABSOLUTE_PATH dir BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}" OUTPUT_VARIABLE dirFull)
  cmake_path(ABSOLUTE_PATH target BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}")
  cmake_path(RELATIVE_PATH target BASE_DIRECTORY "${dirFull}")
  # Each link in a folder of its own: links of one name may lead to different places.
  string(MAKE_C_IDENTIFIER "${link}" id)
  file(MAKE_DIRECTORY "${nalvoLinks}/${id}")
  file(CREATE_LINK "${target}" "${nalvoLinks}/${id}/${name}" SYMBOLIC)
  install(FILES "${nalvoLinks}/${id}/${name}" DESTINATION "${dir}" COMPONENT ${component})
endfunction()

# The programs.
set(nalvoTools nalvo-asm nalvo-sim nalvo-import nalvo-prove)
install(TARGETS Nalvo RUNTIME DESTINATION "${nalvoHome}/bin" COMPONENT program)
# The program loads it from its own folder.
install(TARGETS HelpView LIBRARY DESTINATION "${nalvoHome}/bin" COMPONENT program)
install(TARGETS ${nalvoTools} RUNTIME DESTINATION "${nalvoHome}/bin" COMPONENT tools)
nalvo_install_link(program "${CMAKE_INSTALL_BINDIR}/nalvo" "${nalvoHome}/bin/nalvo")
foreach(tool IN LISTS nalvoTools)
  nalvo_install_link(tools "${CMAKE_INSTALL_BINDIR}/${tool}" "${nalvoHome}/bin/${tool}")
endforeach()

# What ships beside them. The HDL templates are those of the examples.
foreach(folder asmTemplates asmImportFilter)
  install(DIRECTORY "${CMAKE_SOURCE_DIR}/Common/${folder}" DESTINATION "${nalvoData}" COMPONENT data)
  nalvo_install_link(data "${nalvoHome}/${folder}" "${nalvoData}/${folder}")
endforeach()
# A run writes into the folders "output" of the examples, which are installed empty.
install(DIRECTORY "${CMAKE_SOURCE_DIR}/examples" DESTINATION "${nalvoData}" COMPONENT data USE_SOURCE_PERMISSIONS
        REGEX "/output/." EXCLUDE
        REGEX "\\.user$" EXCLUDE)
nalvo_install_link(data "${nalvoHome}/examples" "${nalvoData}/examples")
nalvo_install_link(data "${nalvoHome}/hdlTemplates" "${nalvoData}/examples/templates")
if(NALVO_INSTALL_FONTS)
  install(DIRECTORY "${CMAKE_SOURCE_DIR}/Common/fonts" DESTINATION "${nalvoData}" COMPONENT data)
endif()
nalvo_install_link(data "${nalvoHome}/fonts" "${nalvoData}/fonts")

# The help. The batch assembler explains its messages from one of its files, also where the rest is not installed, so that
# each file has a link of its own.
set(helpDir "${CMAKE_BINARY_DIR}/../hlp")
install(FILES "${helpDir}/hlpCollection.qhc" "${helpDir}/nalvo.qch" DESTINATION "${nalvoData}/hlp" COMPONENT help)
install(FILES "${helpDir}/messages.txt" DESTINATION "${nalvoData}/hlp" COMPONENT tools)
foreach(file hlpCollection.qhc nalvo.qch)
  nalvo_install_link(help "${nalvoHome}/hlp/${file}" "${nalvoData}/hlp/${file}")
endforeach()
nalvo_install_link(tools "${nalvoHome}/hlp/messages.txt" "${nalvoData}/hlp/messages.txt")

install(FILES README.md CHANGELOG.md LICENSE DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT docs)
install(DIRECTORY doc/images DESTINATION "${CMAKE_INSTALL_DOCDIR}/doc" COMPONENT docs)
