set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(daksdp_triplet aarch64-linux-gnu)
set(daksdp_emulator qemu-aarch64)
include(${CMAKE_CURRENT_LIST_DIR}/debian.cmake)
