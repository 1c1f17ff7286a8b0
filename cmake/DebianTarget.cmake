# Debian's cross compiler for KEL_TRIPLET (package g++-TRIPLET), and its emulator KEL_QEMU (package
# qemu-user-static) for programs that the build or the tests run.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_C_COMPILER ${KEL_TRIPLET}-gcc) # GoogleTest asks for one
set(CMAKE_CXX_COMPILER ${KEL_TRIPLET}-g++)
set(CMAKE_CROSSCOMPILING_EMULATOR "/usr/bin/${KEL_QEMU};-L;/usr/${KEL_TRIPLET}")

# Programs are this machine's, all else is the target's.
set(CMAKE_FIND_ROOT_PATH /usr/${KEL_TRIPLET})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} /usr/lib/${KEL_TRIPLET}/pkgconfig)

# Libraries that are headers or sources come from this machine's packages, by find modules of our own.
list(APPEND CMAKE_MODULE_PATH ${CMAKE_CURRENT_LIST_DIR}/modules)
