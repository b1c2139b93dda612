# Debian's cross compilers, for the toolchain files beside this one. What is built runs under QEMU's user
# mode emulation, with the target's C library.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_C_COMPILER ${daksdp_triplet}-gcc)
set(CMAKE_CXX_COMPILER ${daksdp_triplet}-g++)
set(CMAKE_C_FLAGS_INIT "${CMAKE_CXX_FLAGS_INIT}")
set(CMAKE_CROSSCOMPILING_EMULATOR ${daksdp_emulator} -L /usr/${daksdp_triplet})

# The host's libraries are of no use; its headers without a library, as those of CLI11, are.
set(CMAKE_FIND_ROOT_PATH /usr/${daksdp_triplet})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
