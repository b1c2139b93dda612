# 32-bit ARM as phones have it: ARMv7-A, Thumb-2, floating point in registers.
set(CMAKE_SYSTEM_PROCESSOR armv7-a)
set(CMAKE_CXX_FLAGS_INIT "-march=armv7-a+fp -mthumb -mfloat-abi=hard")
set(daksdp_triplet arm-linux-gnueabihf)
set(daksdp_emulator qemu-arm)
include(${CMAKE_CURRENT_LIST_DIR}/debian.cmake)
