# How tests are declared. Every test case runs as a process of its own, since hooks, once-only
# tokens and the device model are process-wide; users set no environment variables for any of it.
include(GoogleTest)

# Foundation creates a folder in HOME as soon as it is asked for defaults, so tests get their own.
set(testHome "${CMAKE_BINARY_DIR}/home")
file(MAKE_DIRECTORY "${testHome}/GNUstep/Defaults")
set(ZQDIAL_TEST_ENVIRONMENT "HOME=${testHome}" "GNUSTEP_USER_ROOT=${testHome}/GNUstep")

# zqdial_add_test(NAME <name> SOURCES <file>... [LIBS <target>...])
# A GoogleTest executable <name> in tests/ of the build folder, each of its cases one CTest test.
# Cases are listed when CTest starts, not while building: a test executable that cannot even start
# is then a failing test rather than a broken build.
function(zqdial_add_test)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "NAME" "SOURCES;LIBS")
    if(NOT arg_NAME OR NOT arg_SOURCES OR arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "zqdial_add_test needs NAME and SOURCES; what is "
            "'${arg_UNPARSED_ARGUMENTS}'?")
    endif()
    add_executable(${arg_NAME} ${arg_SOURCES})
    set_target_properties(${arg_NAME} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    target_include_directories(${arg_NAME} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    target_link_libraries(${arg_NAME} PRIVATE
        ${arg_LIBS} GTest::gmock GTest::gtest_main zqdial-warnings)
    gtest_discover_tests(${arg_NAME}
        DISCOVERY_MODE PRE_TEST
        DISCOVERY_TIMEOUT 60
        PROPERTIES ENVIRONMENT "${ZQDIAL_TEST_ENVIRONMENT}" TIMEOUT 120)
endfunction()

# zqdial_must_not_compile(NAME <name> SOURCE <file> EXPECT <regular expression>)
# A CTest test of a rule that the compiler enforces. The source compiles as it stands; with
# MUST_NOT_COMPILE defined it must not, and the compiler's message must match the expression.
function(zqdial_must_not_compile)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "NAME;SOURCE;EXPECT" "")
    if(NOT arg_NAME OR NOT arg_SOURCE OR NOT arg_EXPECT OR arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "zqdial_must_not_compile needs NAME, SOURCE and EXPECT; what is "
            "'${arg_UNPARSED_ARGUMENTS}'?")
    endif()
    cmake_path(ABSOLUTE_PATH arg_SOURCE BASE_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}")
    add_test(NAME ${arg_NAME}
        COMMAND ${CMAKE_COMMAND}
            "-DCOMPILER=${CMAKE_CXX_COMPILER}"
            "-DFLAGS=-std=c++20;-fsyntax-only;-I${PROJECT_SOURCE_DIR}/src;-idirafter${objcHeaders}"
            "-DSOURCE=${arg_SOURCE}"
            "-DEXPECT=${arg_EXPECT}"
            -P "${PROJECT_SOURCE_DIR}/cmake/MustNotCompile.cmake")
    set_tests_properties(${arg_NAME} PROPERTIES LABELS must-not-compile)
endfunction()
