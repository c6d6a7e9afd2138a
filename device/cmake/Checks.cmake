# The checks of what was built: "check" reads library and package again with code of its own and prints
# the sizes; the tests run the library on emulated processors and hand the checks broken inputs.

set(commands
    COMMAND ${RUN_PYTHON} -m checker.check_dylib "${LIBRARY}" --root "${SOURCE_ROOT}"
        --slices ${SLICES})
set(outcome "device: the library is ${LIBRARY}")
if(PACKAGE)
    string(APPEND outcome ", the package to install ${PACKAGE}")
    list(APPEND commands
        COMMAND ${RUN_PYTHON} -m checker.check_package "${PACKAGE}" --library "${LIBRARY}"
            --version ${PROJECT_VERSION})
else()
    string(APPEND outcome " of ${SLICES} alone, without a package, which must serve every phone")
endif()
add_custom_target(check
    ${commands}
    COMMAND ${RUN_PYTHON} -m checker.size_table "${LIBRARY}"
    COMMAND ${CMAKE_COMMAND} -E echo "${outcome}"
    DEPENDS library $<TARGET_NAME_IF_EXISTS:package>
    COMMENT "Checking the library and its package"
    USES_TERMINAL
    VERBATIM)

enable_testing()
include(cmake/Outside.cmake)
include(cmake/Pictures.cmake)
add_test(NAME reproducible
    COMMAND "${SOURCE_ROOT}/tests/device/reproducible.sh" "${SOURCE_ROOT}"
        "${CMAKE_CURRENT_BINARY_DIR}")
foreach(test IN ITEMS faults.build faults.library faults.package faults.loader pictures)
    string(REPLACE faults. "" module ${test})
    add_test(NAME ${test}
        COMMAND ${RUN_PYTHON} -m unittest -v test_${module}
        WORKING_DIRECTORY "${SOURCE_ROOT}/tests/device")
    set_tests_properties(${test} PROPERTIES
        ENVIRONMENT "ZQDIAL_DEVICE_BUILD=${CMAKE_CURRENT_BINARY_DIR}")
endforeach()
