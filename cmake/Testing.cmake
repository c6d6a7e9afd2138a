# How tests are declared. A test case runs as a process of its own where it depends on hooks, once-only
# tokens or the device model, which are process-wide; users set no environment variables for any of it.
include(GoogleTest)

# Foundation creates a folder in HOME as soon as it is asked for defaults, so tests get their own.
set(testHome "${CMAKE_BINARY_DIR}/home")
file(MAKE_DIRECTORY "${testHome}/GNUstep/Defaults")
set(ZQDIAL_TEST_ENVIRONMENT "HOME=${testHome}" "GNUSTEP_USER_ROOT=${testHome}/GNUstep")

# zqdial_add_test(NAME <name> SOURCES <file>... [LIBS <target>...] [TOGETHER | APART <filter>])
# A GoogleTest executable <name> in tests/ of the build folder, each of its cases one CTest test.
# To start a process takes longer than most cases: with TOGETHER one process, and one CTest test, runs
# them all, with APART all but those of a GoogleTest filter.
# Cases are listed when CTest starts, not while building: a test executable that cannot even start
# is then a failing test rather than a broken build.
function(zqdial_add_test)
    cmake_parse_arguments(PARSE_ARGV 0 arg "TOGETHER" "NAME;APART" "SOURCES;LIBS")
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
    if(arg_TOGETHER OR arg_APART)
        add_test(NAME ${arg_NAME} COMMAND ${arg_NAME} "--gtest_filter=-${arg_APART}")
        set_tests_properties(${arg_NAME} PROPERTIES
            ENVIRONMENT "${ZQDIAL_TEST_ENVIRONMENT}" TIMEOUT 120)
    endif()
    if(NOT arg_TOGETHER)
        gtest_discover_tests(${arg_NAME}
            TEST_FILTER "${arg_APART}"
            DISCOVERY_MODE PRE_TEST
            DISCOVERY_TIMEOUT 60
            PROPERTIES ENVIRONMENT "${ZQDIAL_TEST_ENVIRONMENT}" TIMEOUT 120)
    endif()
endfunction()

# zqdial_must_not_compile(NAME <name> SOURCE <file> EXPECT <regular expression>)
# A rule that the compiler enforces. The source compiles as it stands; with MUST_NOT_COMPILE defined it
# must not, and the compiler's message must match the expression. Checked by the build, and again when
# the source or a header of it changes. Sanitizers have no say in it.
function(zqdial_must_not_compile)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "NAME;SOURCE;EXPECT" "")
    if(NOT arg_NAME OR NOT arg_SOURCE OR NOT arg_EXPECT OR arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "zqdial_must_not_compile needs NAME, SOURCE and EXPECT; what is "
            "'${arg_UNPARSED_ARGUMENTS}'?")
    endif()
    if(ZQDIAL_SANITIZE)
        return()
    endif()
    cmake_path(ABSOLUTE_PATH arg_SOURCE BASE_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}")
    set(stamp "${CMAKE_CURRENT_BINARY_DIR}/${arg_NAME}.stamp")
    set(script "${PROJECT_SOURCE_DIR}/cmake/MustNotCompile.cmake")
    add_custom_command(OUTPUT ${stamp}
        COMMAND ${CMAKE_COMMAND}
            "-DCOMPILER=${CMAKE_CXX_COMPILER}"
            "-DFLAGS=-std=c++20;-fsyntax-only;-I${PROJECT_SOURCE_DIR}/src;-idirafter${objcHeaders}"
            "-DSOURCE=${arg_SOURCE}"
            "-DEXPECT=${arg_EXPECT}"
            "-DSTAMP=${stamp}"
            -P "${script}"
        DEPENDS ${arg_SOURCE} ${script}
        DEPFILE ${stamp}.d
        COMMENT "Checking that ${arg_NAME} does not compile"
        VERBATIM)
    add_custom_target(must-not-compile.${arg_NAME} ALL DEPENDS ${stamp})
endfunction()
