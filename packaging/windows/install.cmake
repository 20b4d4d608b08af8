# The folder that a player on Windows gets: the program, its libraries, its word list and notices. The
# word list is read from C:\, where the installer copies it.
enable_language(RC)
set(resources ${made}/quorvel2.rc)
configure_file(packaging/windows/quorvel2.rc.in ${resources} @ONLY)
target_sources(quorvel2 PRIVATE ${resources})

install(TARGETS quorvel2 RUNTIME DESTINATION .)
install(FILES data/Lexicon.txt packaging/windows/qt.conf DESTINATION .)
install(DIRECTORY docs/how-to-play DESTINATION .)
install(FILES LICENSE DESTINATION licences RENAME Quorvel2.txt)
install(FILES data/Lexicon.txt.license DESTINATION licences RENAME SCOWL.txt)

find_package(Qt6 REQUIRED COMPONENTS Widgets) # in this folder too

# Qt in libraries of its own, so that a player can put another build of it in their place.
install(IMPORTED_RUNTIME_ARTIFACTS Qt6::Core Qt6::Gui Qt6::Widgets RUNTIME DESTINATION .)
install(FILES $<TARGET_FILE:Qt6::QWindowsIntegrationPlugin> DESTINATION platforms)
if(MINGW)
  foreach(library IN ITEMS libgcc_s_seh-1.dll libstdc++-6.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library}
      OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    install(FILES ${file} DESTINATION .)
  endforeach()
endif()
