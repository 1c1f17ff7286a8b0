# 32 bits, big-endian.
set(CMAKE_SYSTEM_PROCESSOR ppc)
set(KEL_TRIPLET powerpc-linux-gnu)
set(KEL_QEMU qemu-ppc-static)
include(${CMAKE_CURRENT_LIST_DIR}/../DebianTarget.cmake)
# The machine has no atomic numbers of 64 bits: the compiler calls a library for them.
set(CMAKE_CXX_STANDARD_LIBRARIES_INIT "-Wl,--as-needed -latomic")
