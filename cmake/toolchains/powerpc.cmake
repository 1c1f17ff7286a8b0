# 32 bits, big-endian.
set(CMAKE_SYSTEM_PROCESSOR ppc)
set(KEL_TRIPLET powerpc-linux-gnu)
set(KEL_EMULATOR qemu-ppc-static)
include(${CMAKE_CURRENT_LIST_DIR}/../DebianTarget.cmake)
