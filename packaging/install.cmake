# What is installed, and where. Everything stands below the prefix, and the program finds its word
# list from the folder it stands in, so that the prefix can be moved as a whole.

# The newest release of the change log is the version that is built, and gives its date.
file(STRINGS ${PROJECT_SOURCE_DIR}/CHANGELOG.md release REGEX "^## [0-9]" LIMIT_COUNT 1)
if(NOT release MATCHES "^## ${PROJECT_VERSION} \\(([0-9-]+)\\)$")
  message(FATAL_ERROR "CHANGELOG.md opens with \"${release}\", the version is ${PROJECT_VERSION}")
endif()
set(release_date ${CMAKE_MATCH_1})

# No such address exists: both are of the domain that is kept for examples.
set(application_id org.example.quorvel2)
set(developer_id example.quorvel2)

set(made ${PROJECT_BINARY_DIR}/packaging)

# Beside bin/ and not simply in the data folder, which may be moved: the program looks for it there.
cmake_path(SET word_list_folder NORMALIZE ${CMAKE_INSTALL_BINDIR}/../share/quorvel2)

# Unless the packager has chosen, the documents lie under the name of the program.
if(NOT "$CACHE{CMAKE_INSTALL_DOCDIR}")
  set(CMAKE_INSTALL_DOCDIR ${CMAKE_INSTALL_DATAROOTDIR}/doc/quorvel2)
endif()

# Windows looks for the icon in the program, macOS for everything in the bundle.
set_target_properties(quorvel2 PROPERTIES
  WIN32_EXECUTABLE ON
  MACOSX_BUNDLE ON
  MACOSX_BUNDLE_GUI_IDENTIFIER ${application_id}
  MACOSX_BUNDLE_SHORT_VERSION_STRING ${PROJECT_VERSION}
  MACOSX_BUNDLE_ICON_FILE quorvel2.icns)

if(WIN32) # where the program stands in one folder with all that is its own
  include(packaging/windows/install.cmake)
  return()
endif()

install(TARGETS quorvel2 RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} BUNDLE DESTINATION .)
if(NOT APPLE) # where the list stands in the bundle
  install(FILES data/Lexicon.txt DESTINATION ${word_list_folder})
  install(DIRECTORY docs/how-to-play DESTINATION ${word_list_folder})
endif()
install(FILES LICENSE data/Lexicon.txt.license DESTINATION ${CMAKE_INSTALL_DOCDIR})

if(APPLE)
  set(icon ${PROJECT_SOURCE_DIR}/packaging/quorvel2.icns)
  set(word_list ${PROJECT_SOURCE_DIR}/data/Lexicon.txt)
  target_sources(quorvel2 PRIVATE ${icon} ${word_list})
  set_source_files_properties(${icon} TARGET_DIRECTORY quorvel2
    PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
  set_source_files_properties(${word_list} TARGET_DIRECTORY quorvel2
    PROPERTIES MACOSX_PACKAGE_LOCATION share/quorvel2)
else()
  include(packaging/desktop.cmake)
  include(packaging/metainfo.cmake)
endif()
