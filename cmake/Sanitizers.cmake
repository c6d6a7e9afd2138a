# Sanitized builds. Their options and suppressions are compiled into every
# executable, so that tests and tools run by hand need no environment variables.

set(ZQDIAL_SANITIZE "" CACHE STRING "Sanitizers to build with: empty, address,undefined or thread")
if(NOT ZQDIAL_SANITIZE)
    return()
endif()

add_compile_options(-fsanitize=${ZQDIAL_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
add_link_options(-fsanitize=${ZQDIAL_SANITIZE})

if(ZQDIAL_SANITIZE MATCHES address)
    set(defaults AddressSanitizerDefaults.cpp)
    set(suppressions "${PROJECT_SOURCE_DIR}/tests/support/lsan.supp")
else()
    set(defaults ThreadSanitizerDefaults.cpp)
    set(suppressions "${PROJECT_SOURCE_DIR}/tests/support/tsan.supp")
endif()
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${suppressions}")
file(READ "${suppressions}" ZQDIAL_SUPPRESSIONS)
configure_file("${CMAKE_CURRENT_LIST_DIR}/${defaults}.in" ${defaults} @ONLY)
add_library(sanitizer-defaults OBJECT "${PROJECT_BINARY_DIR}/${defaults}")
target_link_libraries(sanitizer-defaults PRIVATE zqdial-warnings)

# From here on, every executable of the project takes the object file in.
set(isExecutable "$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>")
link_libraries("$<${isExecutable}:$<TARGET_OBJECTS:sanitizer-defaults>>")
