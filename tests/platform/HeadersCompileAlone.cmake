# add_headers_alone(name ROOT HEADERS... LIBRARIES...): compiles each header below ROOT as a translation unit of its
# own, included twice. The build is the test: a header that leans on its includer, or that cannot bear a second
# inclusion, does not build.
function(add_headers_alone name)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "ROOT" "HEADERS;LIBRARIES")
    foreach(header IN LISTS ARG_HEADERS)
        file(RELATIVE_PATH include_path ${ARG_ROOT} ${header})
        set(source ${CMAKE_CURRENT_BINARY_DIR}/${name}/${include_path}.cpp)
        file(CONFIGURE OUTPUT ${source} CONTENT "#include \"@include_path@\"\n#include \"@include_path@\"\n" @ONLY)
        list(APPEND sources ${source})
    endforeach()
    add_library(${name} OBJECT ${sources})
    target_include_directories(${name} PRIVATE ${ARG_ROOT})
    target_link_libraries(${name} PRIVATE kel_warnings ${ARG_LIBRARIES})
endfunction()
