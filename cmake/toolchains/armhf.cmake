# 32 bits, little-endian, with a unit for floating point.
set(CMAKE_SYSTEM_PROCESSOR arm)
set(KEL_TRIPLET arm-linux-gnueabihf)
set(KEL_QEMU qemu-arm-static)
include(${CMAKE_CURRENT_LIST_DIR}/../DebianTarget.cmake)
# The compiler remarks wherever a rule of calls changed long ago. All of this is built by one compiler.
string(APPEND CMAKE_CXX_FLAGS_INIT " -Wno-psabi")
