# Debian's Emscripten.
#
# Exceptions are caught where the word list can fail, "OK" on the level panel and "Submit Word", and
# the game ends then. Elsewhere nothing is put in order as they pass, which makes the program a
# quarter smaller.
set(catching _Z14Command1_ClickR4Game,_Z14Command3_ClickR4Game,_ZN12_GLOBAL__N_110LookUpWord)
string(APPEND catching
  ER11LexiconFileRKNSt3__212basic_stringIcNS2_11char_traitsIcEENS2_9allocatorIcEEEE)
set(CMAKE_CXX_FLAGS_INIT "-sEXCEPTION_CATCHING_ALLOWED=[${catching}]")
set(CMAKE_CXX_FLAGS_MINSIZEREL -Oz CACHE STRING "")
include(/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake)
