# Settings that every target shares: language level, warnings, output folders, run paths.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_OBJCXX_STANDARD 20)
set(CMAKE_OBJCXX_STANDARD_REQUIRED ON)
set(CMAKE_OBJCXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Release, RelWithDebInfo or Debug" FORCE)
endif()

# One folder for each kind of artefact, the same in every build folder.
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/archive")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(ZQDIAL_SHARE_DIR "${CMAKE_BINARY_DIR}/share") # pictures, worlds, the fontconfig file

# Libraries find each other beside themselves, wherever the build folder is moved to. RUNPATH (not
# RPATH), so that LD_LIBRARY_PATH may put another Phone application or companion in their place.
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
add_link_options(LINKER:--enable-new-dtags)
string(APPEND CMAKE_SHARED_LINKER_FLAGS " -Wl,--no-undefined")
# Each library runs its own copies of inline functions, so that an address tells whose code it is.
string(APPEND CMAKE_SHARED_LINKER_FLAGS " -Wl,-Bsymbolic-functions")

# Linked by every target of ours; third-party headers come in as system headers and stay silent.
add_library(zqdial-warnings INTERFACE)
target_compile_options(zqdial-warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 warns of overlapping copies inside std::string's operator+ where there are none.
    target_compile_options(zqdial-warnings INTERFACE -Wno-restrict)
endif()
