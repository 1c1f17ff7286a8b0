# The simulated node, room by room, with the real module.
add_kel_test(radio_tests
    SOURCES
        node/radio/BlockCountTest.cpp
        node/radio/CrossPolarisationTest.cpp
        node/radio/DpdTest.cpp
        node/radio/FrequencyPlanTest.cpp
        node/radio/GoldenLinkTest.cpp
        node/radio/LinkLimitsTest.cpp
        node/radio/ModemTest.cpp
        node/radio/ModulationTest.cpp
        node/radio/PolarisationsTest.cpp
        node/radio/PpsCoarseTest.cpp
        node/radio/PpsFailureTest.cpp
        node/radio/PpsOverTheLinkTest.cpp
        node/radio/PpsTest.cpp
        node/radio/PropagationPropertyTest.cpp
        node/radio/PropagationTest.cpp
        node/radio/RadioLinkPropertyTest.cpp
        node/radio/RadioLinkTest.cpp
        node/radio/RadioLinkThreadsTest.cpp
        node/radio/RadioLinkTimeTest.cpp
        node/radio/RainTest.cpp
        node/radio/RangeTest.cpp
        node/radio/TremorTest.cpp
        node/radio/WeatherTest.cpp
        node/radio/XpicAcquisitionTest.cpp
        node/radio/XpicTest.cpp
    LIBRARIES kel_node)

add_kel_test(services_tests
    SOURCES
        node/services/AnswerTest.cpp
        node/services/BoardSupportTest.cpp
        node/services/CapabilityServiceTest.cpp
        node/services/ChannelStatusServiceTest.cpp
        node/services/DpdServiceTest.cpp
        node/services/FaultCodeTest.cpp
        node/services/FaultedServiceTest.cpp
        node/services/FaultPlanTest.cpp
        node/services/ModemStatusServiceTest.cpp
        node/services/ModulationNamesTest.cpp
        node/services/NearEndServiceTest.cpp
        node/services/OneChannelServiceTest.cpp
        node/services/PlatformCallTest.cpp
        node/services/PpsCalibrationServiceTest.cpp
        node/services/PpsServiceTest.cpp
        node/services/RecordText.cpp
        node/services/RefusalServiceTest.cpp
        node/services/ServiceCalls.cpp
        node/services/ServiceThreadsTest.cpp
        node/services/TopApiTest.cpp
        node/services/XpicAcquisitionServiceTest.cpp
        node/services/XpicRefusalTest.cpp
        node/services/XpicServiceTest.cpp
    LIBRARIES kel_node)

add_kel_test(scenario_tests
    SOURCES
        node/scenario/CrossCheckTest.cpp
        node/scenario/FaultCheckTest.cpp
        node/scenario/FirstMistakeTest.cpp
        node/scenario/KeyList.cpp
        node/scenario/KeyListTest.cpp
        node/scenario/LibraryTest.cpp
        node/scenario/NumberKeyTest.cpp
        support/Portrait.cpp
        node/scenario/RandomScenarioTest.cpp
        node/scenario/ReadyScenarioTest.cpp
        node/scenario/ReferenceTest.cpp
        node/scenario/SyntaxTest.cpp
        node/scenario/TypedFaultTest.cpp
        node/scenario/UnknownKeyTest.cpp
        node/scenario/ValueTest.cpp
        node/scenario/WordKeyTest.cpp
        node/scenario/WrongTypeTest.cpp
        node/wording/DidYouMeanTest.cpp
        node/wording/InputErrorTest.cpp
        node/wording/LocaleTest.cpp
        node/wording/NumberTest.cpp
    LIBRARIES kel_node)
add_dependencies(scenario_tests test_locales)

add_kel_test(node_tests
    SOURCES
        node/framework/AdmissionTest.cpp
        node/framework/FrameworkTest.cpp
        node/startup/BrokerEntriesTest.cpp
        node/startup/ChannelsToldTest.cpp
        node/startup/CommandThreadsTest.cpp
        node/startup/FailedModulesTest.cpp
        node/startup/FaultedCommandsTest.cpp
        node/startup/StartUpFailureTest.cpp
        node/startup/StartUpTest.cpp
        node/trace/TraceMessageTest.cpp
        node/trace/TraceTest.cpp
        node/trace/TraceThreadsTest.cpp
    LIBRARIES kel_node)

add_kel_test(commands_tests
    SOURCES
        node/commands/ArgumentErrorTest.cpp
        node/commands/ChoicesTest.cpp
        node/commands/CommandTableTest.cpp
        node/commands/ConsoleCommandsTest.cpp
        node/commands/DebugCommandsTest.cpp
        node/commands/DurationTest.cpp
        node/commands/FaultCommandsTest.cpp
        node/commands/LineTest.cpp
        node/commands/LinkCommandsTest.cpp
        node/commands/LinkLinesTest.cpp
        node/commands/LinkTextTest.cpp
        node/commands/MisfitTest.cpp
        node/commands/NodeDeskTest.cpp
        node/commands/OptionTest.cpp
        node/commands/OutcomeFieldsTest.cpp
        node/commands/QuantityTest.cpp
        node/commands/SampleTest.cpp
        node/commands/ScenarioCommandsTest.cpp
        node/commands/TraceCommandsTest.cpp
        node/commands/ValueTest.cpp
    LIBRARIES kel_cli kel_node)

add_kel_test(output_tests
    SOURCES
        support/AnswerSamples.cpp
        support/AnswerSchema.cpp
        node/output/JsonBytesTest.cpp
        node/output/JsonPageTest.cpp
        node/output/JsonTest.cpp
        node/output/JsonTextTest.cpp
        node/output/SchemaMemberTest.cpp
        node/output/SchemaTest.cpp
        node/report/AnyTextTest.cpp
        node/report/CtFieldsTest.cpp
        node/report/FieldTest.cpp
        node/report/NestedFieldTest.cpp
        node/report/ReportFieldsTest.cpp
    LIBRARIES kel_cli kel_node valijson)
add_dependencies(output_tests test_locales)

add_kel_test(view_tests
    SOURCES
        node/output/JsonOutputTest.cpp
        node/output/TextOutputTest.cpp
        node/output/TraceViewTest.cpp
        node/output/WatchFrameTest.cpp
        node/output/WatchLettersTest.cpp
        node/output/WatchViewTest.cpp
    LIBRARIES kel_cli kel_node)

add_kel_test(plot_tests
    SOURCES
        node/plot/AxisTest.cpp
        node/plot/GnuplotTest.cpp
        node/plot/PictureScriptTest.cpp
        node/plot/PictureTest.cpp
        node/plot/TextScriptTest.cpp
        node/plot/TextTest.cpp
        node/plot/WordsTest.cpp
    LIBRARIES kel_cli kel_node)
add_dependencies(plot_tests test_locales)

add_kel_test(terminal_tests
    SOURCES
        node/terminal/HistoryFileTest.cpp
        node/terminal/InterruptTest.cpp
        node/terminal/LayoutTest.cpp
        node/terminal/LettersTest.cpp
        node/terminal/PlainLinesTest.cpp
        node/terminal/ScreenSizeTest.cpp
        node/terminal/StandardInputTest.cpp
        node/terminal/StateFolderTest.cpp
    LIBRARIES kel_cli kel_node)

# The editor of a build without line editing, whether this is one or not.
add_kel_test(plain_line_editor_tests
    SOURCES
        node/terminal/plain/PlainLineEditorTest.cpp
        ${PROJECT_SOURCE_DIR}/node/terminal/HeldSignals.cpp
        ${PROJECT_SOURCE_DIR}/node/terminal/Interrupt.cpp
        ${PROJECT_SOURCE_DIR}/node/terminal/PlainLineEditor.cpp
        ${PROJECT_SOURCE_DIR}/node/terminal/PlainLines.cpp
        ${PROJECT_SOURCE_DIR}/node/terminal/StandardInput.cpp)
target_include_directories(plain_line_editor_tests PRIVATE ${PROJECT_SOURCE_DIR})

if(KEL_LINE_EDITING)
    add_kel_test(line_editor_tests
        SOURCES
            node/terminal/CompletionKeyTest.cpp
            node/terminal/EditorSession.cpp
            node/terminal/EndingSignalTest.cpp
            node/terminal/HistoryTest.cpp
            node/terminal/KeyboardTest.cpp
            node/terminal/LineEditorTest.cpp
            node/terminal/PrintTest.cpp
            support/Screen.cpp
            support/Terminal.cpp
        LIBRARIES kel_cli kel_node PkgConfig::vterm)
    add_executable(editor_host node/terminal/EditorHost.cpp)
    target_link_libraries(editor_host PRIVATE kel_cli kel_node kel_test_flags)
    add_dependencies(line_editor_tests editor_host)
    target_compile_definitions(line_editor_tests PRIVATE KEL_EDITOR_HOST="$<TARGET_FILE:editor_host>")
endif()

add_kel_test(reference_tests
    SOURCES
        node/reference/BashCompletionTest.cpp
        node/reference/ChoiceTest.cpp
        node/reference/CommandHelpTest.cpp
        node/reference/CommandReferenceTest.cpp
        node/reference/CompletionTest.cpp
        node/reference/EscapeTest.cpp
        node/reference/ExplanationTest.cpp
        node/reference/FillTest.cpp
        node/reference/HelpTest.cpp
        node/reference/HowToTest.cpp
        node/reference/ManPageTest.cpp
        node/reference/PlaceTest.cpp
        node/reference/ProgramOptionsTest.cpp
    LIBRARIES kel_reference kel_cli kel_node)

add_kel_test(cli_tests
    SOURCES
        node/cli/AnswerTest.cpp
        node/cli/BrokenRecordingTest.cpp
        node/cli/ClockTest.cpp
        node/cli/HistoryTest.cpp
        node/cli/OptionsTest.cpp
        node/cli/ProgressTest.cpp
        node/cli/PromptTest.cpp
        node/cli/RecordingFailureTest.cpp
        node/cli/RecordingTest.cpp
        node/cli/ReplayDifferenceTest.cpp
        node/cli/ReplayTest.cpp
        node/cli/ScriptTest.cpp
        node/cli/SessionTest.cpp
        node/cli/SessionTraceTest.cpp
        node/cli/SessionWatchTest.cpp
    LIBRARIES kel_cli kel_node)

# The simulated node when memory runs out.
add_kel_test(node_memory_tests
    SOURCES
        allocation/FailingAllocation.cpp
        node/startup/StartUpMemoryTest.cpp
        node/trace/TraceMemoryTest.cpp
    LIBRARIES kel_node)
