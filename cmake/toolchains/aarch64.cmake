# 64 bits, little-endian.
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(KEL_TRIPLET aarch64-linux-gnu)
set(KEL_QEMU qemu-aarch64-static)
include(${CMAKE_CURRENT_LIST_DIR}/../DebianTarget.cmake)
