# Every library that the host build takes from the system, each as one target to link; the packages
# they come from are listed in packages.txt.

find_package(Threads REQUIRED)
find_package(PkgConfig REQUIRED)
find_package(nlohmann_json 3.10 REQUIRED)  # nlohmann_json::nlohmann_json
find_package(CLI11 2.1 REQUIRED)           # CLI11::CLI11
find_package(ICU REQUIRED COMPONENTS uc)   # ICU::uc
if(NOT CMAKE_CROSSCOMPILING)
    find_package(GTest REQUIRED)           # GTest::gtest_main, GTest::gmock
    find_package(benchmark REQUIRED)       # benchmark::benchmark_main
    pkg_check_modules(ffi REQUIRED IMPORTED_TARGET libffi)          # PkgConfig::ffi
endif()
pkg_check_modules(sqlite3 REQUIRED IMPORTED_TARGET sqlite3)         # PkgConfig::sqlite3
if(NOT CMAKE_CROSSCOMPILING)
    pkg_check_modules(soup REQUIRED IMPORTED_TARGET libsoup-3.0)    # PkgConfig::soup
endif()
pkg_check_modules(glib REQUIRED IMPORTED_TARGET glib-2.0)           # PkgConfig::glib
pkg_check_modules(cairo REQUIRED IMPORTED_TARGET cairo)             # PkgConfig::cairo
pkg_check_modules(spng REQUIRED IMPORTED_TARGET spng)               # PkgConfig::spng
pkg_check_modules(pangocairo REQUIRED IMPORTED_TARGET pangocairo)   # PkgConfig::pangocairo
pkg_check_modules(pangoft2 REQUIRED IMPORTED_TARGET pangoft2)       # PkgConfig::pangoft2
pkg_check_modules(fontconfig REQUIRED IMPORTED_TARGET fontconfig)   # PkgConfig::fontconfig
find_program(RSVG_CONVERT rsvg-convert REQUIRED)

# zqdial_imported_library(<target> <library name> <header that proves the development package>)
function(zqdial_imported_library target name header)
    find_library(${target}_LIBRARY ${name} REQUIRED)
    find_path(${target}_INCLUDE ${header} REQUIRED)
    add_library(${target} INTERFACE IMPORTED GLOBAL)
    target_include_directories(${target} SYSTEM INTERFACE "${${target}_INCLUDE}")
    target_link_libraries(${target} INTERFACE "${${target}_LIBRARY}")
endfunction()
zqdial_imported_library(phonenumber phonenumber phonenumbers/phonenumberutil.h)
zqdial_imported_library(geocoding geocoding phonenumbers/geocoding/phonenumber_offline_geocoder.h)
find_library(protobuf_LIBRARY protobuf REQUIRED) # what phonenumber's own headers call inline
target_link_libraries(phonenumber INTERFACE "${protobuf_LIBRARY}")
target_link_libraries(geocoding INTERFACE phonenumber)

# Objective-C runtime headers and library live in GCC's own folder, which only that GCC searches.
find_program(ZQDIAL_OBJC_GCC NAMES g++-12 g++ REQUIRED)
execute_process(COMMAND ${ZQDIAL_OBJC_GCC} -print-file-name=include
    OUTPUT_VARIABLE objcHeaders OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${ZQDIAL_OBJC_GCC} -print-file-name=libobjc.so
    OUTPUT_VARIABLE objcLibrary OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
if(NOT EXISTS "${objcHeaders}/objc/runtime.h" OR NOT EXISTS "${objcLibrary}")
    message(FATAL_ERROR "${ZQDIAL_OBJC_GCC} has no Objective-C runtime: run 'make test', or "
        "tools/install-packages.sh build, which installs gobjc++-12")
endif()
find_library(gnustepBase_LIBRARY gnustep-base REQUIRED)

# GCC's Objective-C runtime with GNUstep Base. Classes are named by strings only, so the linker
# would drop the libraries as unused: one unbreakable item keeps them. The header folder goes last,
# since it also holds GCC's versions of headers that another compiler must take from its own.
add_library(gnustep-base INTERFACE)
target_compile_options(gnustep-base INTERFACE "-idirafter${objcHeaders}")
target_link_libraries(gnustep-base INTERFACE
    "-Wl,--push-state,--no-as-needed,${gnustepBase_LIBRARY},${objcLibrary},--pop-state")
