# add_host_headers(target folder): an imported target for a library that is nothing but the headers in
# /usr/include/folder. Links to such folders alone are handed to the compiler: the rest of /usr/include is this
# machine's and not the target's.
function(add_host_headers target folder)
    if(TARGET ${target})
        return() # somebody else has found it
    endif()
    if(NOT IS_DIRECTORY /usr/include/${folder})
        message(FATAL_ERROR "Found no folder /usr/include/${folder}, expected the headers of ${target}")
    endif()
    set(headers ${CMAKE_BINARY_DIR}/host-headers/${folder})
    file(MAKE_DIRECTORY ${headers})
    file(CREATE_LINK /usr/include/${folder} ${headers}/${folder} SYMBOLIC)
    add_library(${target} INTERFACE IMPORTED GLOBAL)
    target_include_directories(${target} INTERFACE ${headers})
endfunction()
