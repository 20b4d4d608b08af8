# The folder of static files that a server of pages hands out: the program, its page and its word list.
#
# A message waits for its answer in the middle of a click, which takes Asyncify.
target_link_options(quorvel2 PRIVATE -sASYNCIFY -Oz -sASYNCIFY_STACK_SIZE=65536
  -sEXPORTED_RUNTIME_METHODS=UTF16ToString,stringToUTF16,FS,JSEvents,specialHTMLTargets
  -sENVIRONMENT=web -sINITIAL_MEMORY=32MB)

install(FILES $<TARGET_FILE_DIR:quorvel2>/quorvel2.js $<TARGET_FILE_DIR:quorvel2>/quorvel2.wasm
  DESTINATION .)
install(FILES data/Lexicon.txt packaging/quorvel2.svg packaging/web/ended.html packaging/web/page.css
  packaging/web/start.js DESTINATION .)
install(DIRECTORY docs/how-to-play DESTINATION .)
