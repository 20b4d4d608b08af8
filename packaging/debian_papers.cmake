# Run by cpack when all files of the package stand in its folder: the papers take the names and the
# compression that Debian wants. With SOURCE_DATE_EPOCH set, every run writes the same bytes.
set(share ${CPACK_TEMPORARY_DIRECTORY}${CPACK_PACKAGING_INSTALL_PREFIX}/share)
set(doc ${share}/doc/quorvel2)

file(READ ${doc}/LICENSE code)
file(READ ${doc}/Lexicon.txt.license words)
file(WRITE ${doc}/copyright
  "Quorvel2 is under this licence:\n\n${code}\nThe word list is under a licence of its own:\n\n${words}")
file(REMOVE ${doc}/LICENSE ${doc}/Lexicon.txt.license)

string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
set(debian_version ${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})
file(WRITE ${doc}/changelog.Debian "quorvel2 (${debian_version}) unstable; urgency=low\n
  * Release ${CPACK_PACKAGE_VERSION}; changelog.gz tells what it brings.\n
 -- ${CPACK_PACKAGE_CONTACT}  ${date}\n")
file(COPY_FILE ${CMAKE_CURRENT_LIST_DIR}/../CHANGELOG.md ${doc}/changelog)

set(papers ${doc}/changelog ${doc}/changelog.Debian ${share}/man/man6/quorvel2.6)
file(CHMOD ${papers} ${doc}/copyright
  PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
execute_process(COMMAND gzip -9n ${papers} COMMAND_ERROR_IS_FATAL ANY)
