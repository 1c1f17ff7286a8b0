# The program as its users meet it.
prepare_program()
add_kel_test(endtoend_tests
    SOURCES
        endtoend/BadArgumentsTest.cpp
        endtoend/BashCompletionTest.cpp
        endtoend/BrokenScenarioFilesTest.cpp
        endtoend/ClockOptionTest.cpp
        endtoend/CommandsTest.cpp
        endtoend/ConsumerTest.cpp
        endtoend/CtReportTest.cpp
        endtoend/FailingCommandsTest.cpp
        endtoend/InstallTest.cpp
        endtoend/JsonAnswersTest.cpp
        endtoend/ManPageTest.cpp
        endtoend/OptionsTest.cpp
        endtoend/PageExamples.cpp
        endtoend/PagesTest.cpp
        endtoend/PicturesTest.cpp
        endtoend/PipesTest.cpp
        endtoend/PlainPromptTest.cpp
        endtoend/PlatformFaultsTest.cpp
        endtoend/Program.cpp
        endtoend/RainFrontTest.cpp
        endtoend/ReadmeTest.cpp
        endtoend/ReadyScenariosTest.cpp
        endtoend/RecordingsTest.cpp
        endtoend/ReferenceProgramTest.cpp
        endtoend/ScriptFilesTest.cpp
        endtoend/ScriptsTest.cpp
        endtoend/SurroundingsTest.cpp
        endtoend/TraceOptionsTest.cpp
        support/Terminal.cpp
    LIBRARIES kel_reference kel_cli kel_node)
if(KEL_LINE_EDITING)
    target_sources(endtoend_tests PRIVATE endtoend/ScreenTest.cpp endtoend/TerminalTest.cpp support/Screen.cpp)
    target_link_libraries(endtoend_tests PRIVATE PkgConfig::vterm)
endif()
add_dependencies(endtoend_tests kel-node kel_node_reference_files test_locales)
# A program that loads a library with a sanitizer in it has to have the same one.
string(REGEX MATCHALL "-fsanitize=[a-z,-]+" sanitizers "${CMAKE_CXX_FLAGS}")
list(JOIN sanitizers " " sanitizers)
target_compile_definitions(endtoend_tests PRIVATE
    KEL_BASH_COMPLETION="${PROJECT_BINARY_DIR}/node/kel-node.bash"
    KEL_MAN_PAGE="${PROJECT_BINARY_DIR}/node/kel-node.1"
    KEL_BUILD="${PROJECT_BINARY_DIR}"
    KEL_CMAKE="${CMAKE_COMMAND}"
    KEL_CXX="${CMAKE_CXX_COMPILER}"
    KEL_EMULATOR="${KEL_EMULATOR}"
    KEL_INTERFACE_VERSION="${KEL_INTERFACE_VERSION}"
    KEL_NODE="${KEL_NODE}"
    KEL_NODE_REFERENCE="$<TARGET_FILE:kel-node-reference>"
    KEL_LIBRARIES="${CMAKE_INSTALL_LIBDIR}"
    KEL_SANITIZERS="${sanitizers}"
    KEL_TOOLCHAIN="${CMAKE_TOOLCHAIN_FILE}"
    KEL_VERSION="${PROJECT_VERSION}")
