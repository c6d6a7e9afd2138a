# How one slice of the device library is made: every source compiled for its target, the objects held
# against the list of foreign symbols, linked against stubs made of that list, and finished.

set(compileOptions
    -std=c++20 -Oz
    # Without these two clang quietly takes this machine's headers.
    -isysroot "${CMAKE_CURRENT_SOURCE_DIR}/sysroot"
    -stdlib++-isystem "${LIBCXX_HEADERS}"
    # Each would need far more of the C library than the sysroot has.
    -D_LIBCPP_HAS_NO_THREADS -D_LIBCPP_HAS_NO_LOCALIZATION -D_LIBCPP_HAS_NO_WIDE_CHARACTERS
    -fvisibility=hidden -fvisibility-inlines-hidden
    # Type information would be imported from the device's C++ library, a guard from its C library.
    -fno-rtti -fno-stack-protector
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion
    # Nothing may run at load but ZQDialMain.
    -Wglobal-constructors -Wexit-time-destructors
    -Werror
    -I "${SOURCE_ROOT}/src" [[-DOBJC_LEDGER="members/Ledger.hpp"]]
    "-ffile-prefix-map=${SOURCE_ROOT}/=")
if(ZQDIAL_SEARCH_HOST)
    list(APPEND compileOptions "-DZQDIAL_SEARCH_HOST=\"${ZQDIAL_SEARCH_HOST}\"")
endif()

set(targetOptions_arm64 --target=arm64-apple-ios7.0)
# In ARM code: the older linker breaks Thumb.
set(targetOptions_armv7 --target=armv7-apple-ios7.0 -marm)

# The older linker has no option that reserves room for load commands, so a long path does.
string(REPEAT /reserved 16 reserve)
set(linkOptions -dylib -dead_strip -install_name "${INSTALL_PATH}/libZQDial.dylib"
    -compatibility_version 1 -current_version ${PROJECT_VERSION} -rpath "${reserve}")
set(linker_arm64 "${LD_ARM64}" -arch arm64 -platform_version ios 7.0 8.0
    # A loader of iOS 7 knows neither chained fixups nor signatures with SHA-256.
    -no_fixup_chains -no_adhoc_codesign -no_encryption)
# The older linker leaves what its memory held before in the gaps between constants. Asked for, the
# C library hands out memory filled with the complement of this number: zeros.
set(linker_armv7 ${CMAKE_COMMAND} -E env MALLOC_PERTURB_=255
    "${LD_ARMV7}" -arch armv7 -ios_version_min 7.0 -sdk_version 8.0)
set(stubSuffix_arm64 tbd)
set(stubSuffix_armv7 yaml)

# What a source depends on beside the headers that its compilation names.
file(GLOB_RECURSE sysroot CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/sysroot/*.h")

# zqdial_device_object(<result variable> <slice> <source below the root>)
# The object file of one source. The names of its headers come back by a dependency file.
function(zqdial_device_object result slice source)
    set(input "${SOURCE_ROOT}/${source}")
    set(object "${CMAKE_CURRENT_BINARY_DIR}/${slice}/${source}.o")
    get_filename_component(folder "${object}" DIRECTORY)
    file(MAKE_DIRECTORY "${folder}")
    set(compile "${CLANG}" ${targetOptions_${slice}} ${compileOptions}
        -MMD -MF "${object}.d" -MT "${object}" "${input}")
    if(slice STREQUAL armv7)
        # By way of assembly, changed where the older linker would make wrong code of it.
        set(changes "${CMAKE_CURRENT_SOURCE_DIR}/armv7_assembly.sed")
        set(commands
            COMMAND ${compile} -S -o "${object}.compiled.s"
            COMMAND sed -f "${changes}" "${object}.compiled.s" > "${object}.s"
            COMMAND "${CLANG}" ${targetOptions_armv7} -c "${object}.s" -o "${object}")
    else()
        set(changes)
        set(commands COMMAND ${compile} -c -o "${object}")
    endif()
    add_custom_command(OUTPUT "${object}" ${commands}
        DEPENDS "${input}" ${sysroot} ${changes}
        DEPFILE "${object}.d"
        COMMENT "${slice}: ${source}"
        VERBATIM)
    set(${result} "${object}" PARENT_SCOPE)
endfunction()

# zqdial_device_stubs(<result variable> <slice> <list of foreign symbols> <folder>)
# The stubs that a slice is linked against, in the order of the list, which becomes the order of the
# load commands.
function(zqdial_device_stubs result slice list folder)
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/${slice}/${folder}")
    set(stubs)
    file(STRINGS "${list}" foreignImages REGEX "^/")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${list}")
    foreach(image IN LISTS foreignImages)
        get_filename_component(name "${image}" NAME)
        list(APPEND stubs "${folder}/${name}.${stubSuffix_${slice}}")
    endforeach()
    add_custom_command(OUTPUT ${stubs}
        COMMAND ${RUN_PYTHON} "${TOOLS}/make_stubs.py" "${list}" ${slice} "${folder}"
        DEPENDS "${list}" "${TOOLS}/make_stubs.py" "${TOOLS}/imports.py"
        COMMENT "${slice}: stubs of the foreign images"
        VERBATIM)
    set(${result} ${stubs} PARENT_SCOPE)
endfunction()

# zqdial_device_slice(<result variable> <slice>)
# The finished thin library of one slice. What the linker left stays beside it with all its symbols,
# to read addresses in crash reports with.
function(zqdial_device_slice result slice)
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/${slice}")
    set(objects)
    foreach(source IN LISTS ZQDIAL_BRIDGE_SOURCES ZQDIAL_ADDON_SOURCES)
        zqdial_device_object(object ${slice} src/${source})
        list(APPEND objects "${object}")
    endforeach()
    zqdial_device_stubs(stubs ${slice} "${IMPORTS}" stubs)

    set(checked "${folder}/imports.checked")
    add_custom_command(OUTPUT "${checked}"
        COMMAND ${RUN_PYTHON} "${TOOLS}/check_imports.py" "${IMPORTS}" ${slice} ${objects}
            --nm "${LLVM_NM}" --root "${folder}"
        COMMAND ${CMAKE_COMMAND} -E touch "${checked}"
        DEPENDS ${objects} "${IMPORTS}" "${TOOLS}/check_imports.py" "${TOOLS}/imports.py"
        COMMENT "${slice}: foreign symbols"
        VERBATIM)

    set(linked "${folder}/linked.dylib")
    add_custom_command(OUTPUT "${linked}"
        COMMAND ${linker_${slice}} ${linkOptions} -exported_symbols_list "${EXPORTS}"
            -o "${linked}" ${objects} ${stubs}
        DEPENDS ${objects} ${stubs} "${checked}" "${EXPORTS}"
        COMMENT "${slice}: linking"
        VERBATIM)

    set(finished "${folder}/libZQDial.dylib")
    add_custom_command(OUTPUT "${finished}"
        COMMAND ${RUN_PYTHON} "${TOOLS}/finish_dylib.py" "${linked}" "${finished}"
            --architecture ${slice} --init _ZQDialMain --identifier libZQDial
            --root "${SOURCE_ROOT}"
        DEPENDS "${linked}" ${allSources} "${TOOLS}/finish_dylib.py" "${TOOLS}/mach_image.py"
            "${TOOLS}/symbol_table.py" "${TOOLS}/code_signature.py"
        COMMENT "${slice}: init routine, UUID, signature"
        VERBATIM)
    set(${result} "${finished}" PARENT_SCOPE)
endfunction()
