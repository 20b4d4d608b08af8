# The entry for software centres. What is new in a release is told by the change log, and pictures
# are shown from the project's home page, where there is one.
set(QUORVEL_HOME_PAGE "" CACHE STRING
  "Web address of the project, with docs/ below it; none: software centres show neither")
if(QUORVEL_HOME_PAGE)
  set(at_home "=${QUORVEL_HOME_PAGE}/data/Lexicon.txt.license")
  set(docs ${QUORVEL_HOME_PAGE}/docs)
  set(links "
  <url type=\"homepage\">${QUORVEL_HOME_PAGE}</url>
  <screenshots>
    <screenshot type=\"default\">
      <caption>A game in progress</caption>
      <image>${docs}/pictures/game.png</image>
    </screenshot>
    <screenshot>
      <caption>The choice of a level</caption>
      <image>${docs}/how-to-play/level-panel.png</image>
    </screenshot>
    <screenshot>
      <caption>A game on a dark desktop</caption>
      <image>${docs}/pictures/game-dark.png</image>
    </screenshot>
  </screenshots>")
endif()

# The points of the newest release, the first in the change log, one <li> each.
file(READ ${PROJECT_SOURCE_DIR}/CHANGELOG.md news)
string(REGEX REPLACE "^.*\n## ${PROJECT_VERSION} |\n## .*" "" news "${news}")
string(FIND "${news}" "\n- " first_point)
string(SUBSTRING "${news}" ${first_point} -1 news)
string(STRIP "${news}" news)
string(REGEX REPLACE "\n +" " " news "${news}")
string(REPLACE "`" "" news "${news}")
string(REPLACE "&" "&amp;" news "${news}")
string(REPLACE "<" "&lt;" news "${news}")
string(REGEX REPLACE "(^|\n)- ([^\n]*)" "\n          <li>\\2</li>" news "${news}")

set(entry ${made}/${application_id}.metainfo.xml)
configure_file(packaging/quorvel2.metainfo.xml.in ${entry} @ONLY)
install(FILES ${entry} DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
