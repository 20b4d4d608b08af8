# What a freedesktop menu and `man` look for.
cmake_path(ABSOLUTE_PATH word_list_folder BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX}
  OUTPUT_VARIABLE how_to_play)
string(APPEND how_to_play /how-to-play/index.html)
configure_file(packaging/quorvel2.desktop.in ${made}/quorvel2.desktop @ONLY)
install(FILES ${made}/quorvel2.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
configure_file(packaging/quorvel2.6.in ${made}/quorvel2.6 @ONLY)
install(FILES ${made}/quorvel2.6 DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)

set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES packaging/quorvel2.svg DESTINATION ${icons}/scalable/apps)

# Menus that draw no SVG take the nearest of these sizes.
find_program(RSVG_CONVERT rsvg-convert)
if(NOT RSVG_CONVERT)
  message(STATUS "rsvg-convert is not there: the icon is installed as SVG alone")
  return()
endif()
set(source ${PROJECT_SOURCE_DIR}/packaging/quorvel2.svg)
foreach(size IN ITEMS 16 22 24 32 48 64 128 256)
  set(picture ${made}/icons/${size}x${size}/quorvel2.png)
  cmake_path(GET picture PARENT_PATH folder)
  add_custom_command(OUTPUT ${picture}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
    COMMAND ${RSVG_CONVERT} --width ${size} --height ${size} --output ${picture} ${source}
    DEPENDS ${source} VERBATIM)
  list(APPEND pictures_of_icon ${picture})
  install(FILES ${picture} DESTINATION ${icons}/${size}x${size}/apps)
endforeach()
add_custom_target(icons ALL DEPENDS ${pictures_of_icon})
