# {fmt} for another machine, compiled from the headers: its package has them, and the library for this machine alone.
# Compiled once: as headers alone it would double the time of a build.
include(HostHeaders)
add_host_headers(fmt_headers fmt)
if(NOT TARGET fmt)
    add_library(fmt STATIC EXCLUDE_FROM_ALL ${CMAKE_CURRENT_LIST_DIR}/fmt.cpp)
    target_link_libraries(fmt PUBLIC fmt_headers)
    add_library(fmt::fmt ALIAS fmt)
endif()
set(fmt_FOUND TRUE)
