# The tests of tests/outside around the library that ships: compiled for each slice's processor
# against this system's Foundation for it, linked with the loader, and run by an emulator of the
# processor. Not part of "all": "make device-test" builds the target "outside".

set(OUTSIDE_SOURCES "${SOURCE_ROOT}/tests/outside")
set(LOADER_SOURCES "${CMAKE_CURRENT_SOURCE_DIR}/loader")
include("${OUTSIDE_SOURCES}/Sources.cmake")

# For each slice: the system's name of the processor, the package architecture, the emulator with an
# old processor that iOS 7 ran on or one like it, and the packages' group.
set(triple_arm64 aarch64-linux-gnu)
set(packages_arm64 arm64)
set(emulator_arm64 qemu-aarch64 -cpu cortex-a57)
set(group_arm64 qemu)
set(loaderOptions_arm64)
# Floats in core registers, as on iOS: armel, not armhf.
set(triple_armv7 arm-linux-gnueabi)
set(packages_armv7 armel)
set(emulator_armv7 qemu-arm -cpu cortex-a8)
set(group_armv7 qemu-armv7)
# Its system is for older processors, whose C++ library has no futures for newer ones.
set(loaderOptions_armv7 -marm -march=armv7-a -mtp=cp15)

set(OUTSIDE_COMPILE -O1 -g0 -fPIC -Wno-psabi)
set(LOADER_OPTIONS -std=c++20 -Wall -Wextra -Wshadow -Werror -I "${LOADER_SOURCES}"
    "-DZQDIAL_IMPORTS=\"${IMPORTS}\"" "-DZQDIAL_PROGRAM_IMPORTS=\"${checkImports}\"")

# zqdial_unpack(<folder> <package architecture> <list of packages> <what they are>)
# A command that makes "complete" in the folder.
function(zqdial_unpack folder architecture list what)
    set(script "${LOADER_SOURCES}/sysroot.sh")
    add_custom_command(OUTPUT "${folder}/complete"
        COMMAND "${script}" ${architecture} "${folder}" "${list}"
        DEPENDS "${script}" "${list}"
        COMMENT "${architecture}: unpacking ${what}"
        VERBATIM)
endfunction()

# zqdial_unable(<target> <words>...)
# A target that fails, and says why and what helps.
function(zqdial_unable target)
    add_custom_target(${target}
        COMMAND ${CMAKE_COMMAND} -E echo ${ARGN}
        COMMAND ${CMAKE_COMMAND} -E false
        VERBATIM)
endfunction()

# zqdial_outside_object(<result variable> <slice> <source> <option>...)
function(zqdial_outside_object result slice source)
    get_filename_component(name "${source}" NAME)
    set(object "${folder}/${name}.o")
    add_custom_command(OUTPUT "${object}"
        COMMAND ${compile} ${ARGN} -MMD -MF "${object}.d" -MT "${object}" -c "${source}"
            -o "${object}"
        DEPENDS "${source}" "${sysroot}/complete"
        DEPFILE "${object}.d"
        COMMENT "${slice}: ${name}"
        VERBATIM)
    set(${result} "${object}" PARENT_SCOPE)
endfunction()

# zqdial_outside_objects(<result variable> <slice> <name>...)
function(zqdial_outside_objects result slice)
    set(objects)
    foreach(name IN LISTS ARGN)
        set(options ${OUTSIDE_OPTIONS})
        if(name MATCHES "\\.cpp$")
            list(FILTER options INCLUDE REGEX "-std")
        endif()
        zqdial_outside_object(object ${slice} "${OUTSIDE_SOURCES}/${name}" ${options}
            -I "${SOURCE_ROOT}/src" -I "${SOURCE_ROOT}/device"
            -isystem "${sysroot}/usr/include/GNUstep")
        list(APPEND objects "${object}")
    endforeach()
    set(${result} ${objects} PARENT_SCOPE)
endfunction()

# zqdial_outside_slice(<slice>)
# The target outside-<slice> and its tests.
function(zqdial_outside_slice slice)
    set(triple ${triple_${slice}})
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/${slice}/outside")
    set(sysroot "${CMAKE_CURRENT_BINARY_DIR}/sysroot-${packages_${slice}}")
    file(MAKE_DIRECTORY "${folder}")
    list(POP_FRONT emulator_${slice} emulator)
    find_program(COMPILER_${slice} ${triple}-g++-12)
    find_program(EMULATOR_${slice} ${emulator})
    if(NOT COMPILER_${slice} OR NOT EMULATOR_${slice})
        set(remedy "run tools/install-packages.sh ${group_${slice}} and try again")
        zqdial_unable(outside-${slice} "no ${triple}-g++-12 or ${emulator}: ${remedy}")
        return()
    endif()

    zqdial_unpack("${sysroot}" ${packages_${slice}} "${LOADER_SOURCES}/sysroot.txt"
        "Foundation and what it needs")
    set(compile "${COMPILER_${slice}}" ${OUTSIDE_COMPILE})
    set(paths "${sysroot}/usr/lib" "${sysroot}/usr/lib/${triple}" "${sysroot}/lib/${triple}")
    list(JOIN paths ":" paths)
    set(link "${COMPILER_${slice}}" -L "${folder}" "-Wl,-rpath-link,${paths}"
        -Wl,-rpath,$ORIGIN -Wl,--no-as-needed)
    set(foundation "${sysroot}/usr/lib/libgnustep-base.so.1.28"
        "${sysroot}/usr/lib/${triple}/libobjc.so.4")

    set(libraries)
    foreach(framework IN LISTS OUTSIDE_FRAMEWORKS)
        string(REPLACE ":" ";" sources ${framework})
        list(POP_FRONT sources name)
        zqdial_outside_objects(objects ${slice} ${sources})
        add_custom_command(OUTPUT "${folder}/lib${name}.so"
            COMMAND ${link} -shared -Wl,-soname,lib${name}.so ${objects} -o "${folder}/lib${name}.so"
                ${foundation}
            DEPENDS ${objects}
            COMMENT "${slice}: lib${name}.so"
            VERBATIM)
        list(APPEND libraries "${folder}/lib${name}.so")
    endforeach()

    zqdial_outside_objects(objects ${slice} ${OUTSIDE_HOST})
    file(GLOB loader CONFIGURE_DEPENDS "${LOADER_SOURCES}/*.cpp" "${LOADER_SOURCES}/${slice}/*.cpp"
        "${LOADER_SOURCES}/${slice}/*.S")
    foreach(source IN LISTS loader)
        zqdial_outside_object(object ${slice} "${source}" ${LOADER_OPTIONS}
            ${loaderOptions_${slice}})
        list(APPEND objects "${object}")
    endforeach()
    set(host "${folder}/outside-host")
    add_custom_command(OUTPUT "${host}"
        COMMAND ${link} -rdynamic ${objects} -o "${host}" -lUIKit -lZQCommon -lsubstrate
            -Wl,--wrap=dlopen,--wrap=dlsym,--wrap=dlerror ${foundation} -ldl -pthread
        DEPENDS ${objects} ${libraries}
        COMMENT "${slice}: outside-host"
        VERBATIM)
    add_custom_target(outside-${slice} DEPENDS "${host}" ${libraries} library phone-check)

    set(run "${EMULATOR_${slice}}" ${emulator_${slice}} -L "${sysroot}" "${host}")
    foreach(test IN LISTS OUTSIDE_RUNS)
        string(REPLACE ":" ";" test ${test})
        list(POP_FRONT test name version)
        add_test(NAME outside.${slice}.${name} COMMAND ${run} "${LIBRARY}" ${test})
        set_tests_properties(outside.${slice}.${name} PROPERTIES ENVIRONMENT
            "OUTSIDE_SYSTEM_VERSION=${version};${OUTSIDE_ENVIRONMENT}")
    endforeach()
endfunction()

add_custom_target(outside)
foreach(slice IN LISTS SLICES)
    zqdial_outside_slice(${slice})
    add_dependencies(outside outside-${slice})
endforeach()
