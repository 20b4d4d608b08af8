# What a release is compiled with on top of the warnings: the hardening that distributions ask for,
# and paths that do not tell where it was built.
option(QUORVEL_HARDENING "Harden optimised builds against memory mistakes" ON)

set(optimised $<CONFIG:Release,RelWithDebInfo,MinSizeRel>)

# __FILE__ stands in every assert, and would tell the folder of the build.
foreach(folder IN ITEMS ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR})
  target_compile_options(quorvel_options INTERFACE $<${optimised}:-ffile-prefix-map=${folder}=.>)
endforeach()

# A sanitizer finds the same mistakes and more, and the two get in each other's way.
if(QUORVEL_HARDENING AND NOT QUORVEL_SANITIZE AND CMAKE_EXECUTABLE_FORMAT STREQUAL "ELF")
  target_compile_options(quorvel_options INTERFACE $<${optimised}:
    -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -fstack-protector-strong -fPIE>)
  target_link_options(quorvel_options INTERFACE $<${optimised}:
    -pie LINKER:-z,relro LINKER:-z,now>)
endif()
