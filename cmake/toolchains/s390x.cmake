# 64 bits, big-endian.
set(CMAKE_SYSTEM_PROCESSOR s390x)
set(KEL_TRIPLET s390x-linux-gnu)
set(KEL_QEMU qemu-s390x-static)
include(${CMAKE_CURRENT_LIST_DIR}/../DebianTarget.cmake)
