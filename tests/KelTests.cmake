# How test programs are made, and what they need around them.

# Locales are tables in the order of bytes of the machine that reads them.
if(CMAKE_CXX_BYTE_ORDER STREQUAL BIG_ENDIAN)
    set(KEL_BYTE_ORDER --big-endian)
else()
    set(KEL_BYTE_ORDER --little-endian)
endif()

# add_locale(source folder): makes the locale of that source, for UTF-8, in that folder.
function(add_locale source folder)
    cmake_path(GET folder PARENT_PATH parent)
    add_custom_command(
        OUTPUT ${folder}/LC_NUMERIC
        COMMAND ${CMAKE_COMMAND} -E make_directory ${parent}
        COMMAND ${KEL_LOCALEDEF} ${KEL_BYTE_ORDER} -i ${source} -f UTF-8 ${folder}
        COMMENT "Making a locale of ${source}")
    set_property(DIRECTORY APPEND PROPERTY KEL_MADE_LOCALES ${folder}/LC_NUMERIC)
endfunction()

# add_kel_test(name SOURCES... LIBRARIES...): a GoogleTest program whose tests run one by one under ctest.
function(add_kel_test name)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;LIBRARIES")
    add_executable(${name} ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE kel_test_flags test_signals ${ARG_LIBRARIES} GTest::gmock_main)
    target_precompile_headers(${name} REUSE_FROM test_headers)
    target_compile_definitions(${name} PRIVATE KEL_SOURCE_DIR="${PROJECT_SOURCE_DIR}" KEL_LOCALES="${KEL_LOCALES}")
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 NO_PRETTY_VALUES)
endfunction()

# add_replay_test(target LIBRARIES...): every kept input of a fuzz target as a test.
function(add_replay_test target)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "LIBRARIES")
    add_kel_test(replay_${target}_tests SOURCES fuzz/ReplayTest.cpp LIBRARIES fuzz_${target}_target ${ARG_LIBRARIES})
    target_compile_definitions(replay_${target}_tests PRIVATE KEL_FUZZ_TARGET="${target}")
    # The names of the tests are those of the files: they are found anew when a file comes.
    file(GLOB inputs CONFIGURE_DEPENDS
        ${PROJECT_SOURCE_DIR}/fuzz/seeds/${target}/* ${PROJECT_SOURCE_DIR}/fuzz/findings/${target}/*)
    set_property(TARGET replay_${target}_tests PROPERTY LINK_DEPENDS ${inputs})
endfunction()

# prepare_program(): sets KEL_NODE, how the tests start kel-node. One for another machine is started by a script of its
# name, which has the emulator run it; KEL_EMULATOR is then what starts any program.
function(prepare_program)
    set(node $<TARGET_FILE:kel-node>)
    if(CMAKE_CROSSCOMPILING_EMULATOR)
        set(starter ${CMAKE_CURRENT_BINARY_DIR}/emulator)
        set(node ${CMAKE_CURRENT_BINARY_DIR}/kel-node)
        list(JOIN CMAKE_CROSSCOMPILING_EMULATOR " " emulator)
        set(permissions OWNER_READ OWNER_WRITE OWNER_EXECUTE)
        file(CONFIGURE OUTPUT ${starter} CONTENT "#!/bin/sh\nexec ${emulator} \"$@\"\n")
        file(CHMOD ${starter} PERMISSIONS ${permissions})
        file(GENERATE OUTPUT ${node}
            CONTENT "#!/bin/sh\nexec '${starter}' '$<TARGET_FILE:kel-node>' \"$@\"\n"
            FILE_PERMISSIONS ${permissions})
        set(KEL_EMULATOR ${starter} PARENT_SCOPE)
    endif()
    set(KEL_NODE ${node} PARENT_SCOPE)
endfunction()
