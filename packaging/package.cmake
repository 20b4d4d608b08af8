# `cpack` makes a Debian package of what is installed.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quorvel2)
set(CPACK_PACKAGE_CONTACT "Quorvel2 maintainers <maintainers@quorvel2.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL ${QUORVEL_HOME_PAGE})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS # whatever the builder's umask
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/packaging/debian_papers.cmake)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS fonts-liberation) # the board's lettering
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "word game against the computer") # no article, says Debian
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Three words of six letters are hidden. Their 18 letters lie on the table: six
are yours, six are the computer's, and six are there to swap with. Make words
of your letters, buy letters of the hidden words with the points they earn,
and name all three before the computer does.

There are six levels, and all of the game can be played from the keyboard.")
include(CPack)
