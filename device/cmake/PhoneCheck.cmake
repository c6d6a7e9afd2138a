# phonecheck, the command that compares a phone's classes with what the add-on expects. It lies beside
# the package, not in it: whoever wants to know copies it to a phone.

set(checkImports "${CMAKE_CURRENT_SOURCE_DIR}/phonecheck/imports.txt")
set(checkExports "${CMAKE_CURRENT_BINARY_DIR}/phonecheck.exports.txt")
file(CONFIGURE OUTPUT "${checkExports}" CONTENT "_main\n" @ONLY)
set(checkSlices)
foreach(slice IN LISTS SLICES)
    set(objects)
    foreach(source IN ITEMS device/phonecheck/main.cpp device/phonecheck/Comparison.cpp)
        zqdial_device_object(object ${slice} ${source})
        list(APPEND objects "${object}")
    endforeach()
    zqdial_device_stubs(stubs ${slice} "${checkImports}" phonecheck-stubs)
    set(linked "${CMAKE_CURRENT_BINARY_DIR}/${slice}/phonecheck.linked")
    set(finished "${CMAKE_CURRENT_BINARY_DIR}/${slice}/phonecheck")
    add_custom_command(OUTPUT "${finished}"
        COMMAND ${linker_${slice}} -execute -dead_strip -pie -rpath "${reserve}"
            -exported_symbols_list "${checkExports}" -o "${linked}" ${objects} ${stubs}
        COMMAND ${RUN_PYTHON} "${TOOLS}/finish_dylib.py" "${linked}" "${finished}"
            --architecture ${slice} --identifier phonecheck --root "${SOURCE_ROOT}"
        DEPENDS ${objects} ${stubs} "${TOOLS}/finish_dylib.py"
        COMMENT "${slice}: linking phonecheck"
        VERBATIM)
    list(APPEND checkSlices "${finished}")
endforeach()

set(PHONE_CHECK "${CMAKE_CURRENT_BINARY_DIR}/phonecheck")
add_custom_command(OUTPUT "${PHONE_CHECK}"
    COMMAND "${LLVM_LIPO}" -create ${checkSlices} -output "${PHONE_CHECK}"
    COMMAND ${CMAKE_COMMAND} -E env chmod 755 "${PHONE_CHECK}"
    DEPENDS ${checkSlices}
    COMMENT "Joining phonecheck"
    VERBATIM)
add_custom_target(phone-check ALL DEPENDS "${PHONE_CHECK}")
