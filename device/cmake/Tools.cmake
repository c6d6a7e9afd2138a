# The programs of the device's build, each with the Debian package that has it. A build machine's own
# choice of one is set as -D<variable>=<program>.

# zqdial_find_tool(<variable> <program> <package> [<what to do without it>])
function(zqdial_find_tool variable program package)
    find_program(${variable} NAMES ${program})
    if(NOT ${variable})
        message(FATAL_ERROR "no ${program}: install the package ${package} "
            "('apt install ${package}')${ARGN}")
    endif()
endfunction()

zqdial_find_tool(CLANG clang++-19 clang-19)
zqdial_find_tool(LLVM_NM llvm-nm-19 llvm-19)
zqdial_find_tool(LLVM_LIPO llvm-lipo-19 llvm-19)
zqdial_find_tool(DPKG_DEB dpkg-deb dpkg)
# The distribution's own Python, the only one that sees its packages of Python modules.
zqdial_find_tool(PYTHON /usr/bin/python3 python3)

set(LIBCXX_HEADERS /usr/lib/llvm-19/include/c++/v1 CACHE PATH "Headers of clang's C++ library")
if(NOT EXISTS "${LIBCXX_HEADERS}/string_view")
    message(FATAL_ERROR "no C++ headers in ${LIBCXX_HEADERS}: install the package libc++-19-dev "
        "('apt install libc++-19-dev')")
endif()

if(arm64 IN_LIST SLICES)
    zqdial_find_tool(LD_ARM64 ld64.lld-19 lld-19)
endif()
if(armv7 IN_LIST SLICES)
    zqdial_find_tool(LD_ARMV7 ld64.lld.darwinold-13 lld-13
        ", or leave armv7 out with 'make device SLICES=arm64'")
    # Newer versions of the linker come without the back end that writes armv7. The older one gives
    # itself away by an option that it does not know.
    execute_process(COMMAND "${LD_ARMV7}" -platform_version ios 7.0 7.0
        OUTPUT_VARIABLE words ERROR_VARIABLE words)
    if(NOT words MATCHES "unknown argument: -platform_version")
        message(FATAL_ERROR "${LD_ARMV7} has no older Mach-O back end, which armv7 needs: set "
            "LD_ARMV7 to ld64.lld.darwinold-13 of the package lld-13, "
            "or leave armv7 out with 'make device SLICES=arm64'")
    endif()
endif()
