# The package that a phone's owner installs: the library, the filter that names the process it is meant
# for, and nothing that runs while installing. Only a library with both slices serves every phone, so
# one of a single slice is not packaged.

set(PACKAGE)
if(armv7 IN_LIST SLICES AND arm64 IN_LIST SLICES)
    set(PACKAGE "${CMAKE_CURRENT_BINARY_DIR}/com.zequor.zqdial_${PROJECT_VERSION}_iphoneos-arm.deb")
    set(stage "${CMAKE_CURRENT_BINARY_DIR}/package")
    set(filter "${CMAKE_CURRENT_SOURCE_DIR}/libZQDial.plist")
    configure_file(control.in control @ONLY)

    # Times of files are the version's date (in seconds since 1970), not the build's.
    execute_process(COMMAND date --utc --date=${ZQDIAL_VERSION_DATE} +%s
        OUTPUT_VARIABLE epoch OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    # The packaging tools of old devices read gzip alone.
    add_custom_command(OUTPUT "${PACKAGE}"
        COMMAND ${CMAKE_COMMAND} -E rm -rf "${stage}"
        COMMAND install -d -m 755 "${stage}/DEBIAN" "${stage}${INSTALL_PATH}"
        COMMAND install -m 644 "${CMAKE_CURRENT_BINARY_DIR}/control" "${stage}/DEBIAN/control"
        COMMAND install -m 755 "${LIBRARY}" "${stage}${INSTALL_PATH}/libZQDial.dylib"
        COMMAND install -m 644 "${filter}" "${stage}${INSTALL_PATH}/libZQDial.plist"
        COMMAND ${CMAKE_COMMAND} -E env SOURCE_DATE_EPOCH=${epoch} "${DPKG_DEB}"
            --root-owner-group -Zgzip --uniform-compression --build "${stage}" "${PACKAGE}"
        DEPENDS "${LIBRARY}" "${filter}" "${CMAKE_CURRENT_BINARY_DIR}/control"
        COMMENT "Packaging"
        VERBATIM)
    add_custom_target(package ALL DEPENDS "${PACKAGE}")
endif()

# A package of another version, or of both slices beside a library of one, would be taken for today's.
file(GLOB stale "${CMAKE_CURRENT_BINARY_DIR}/*.deb")
list(REMOVE_ITEM stale "${PACKAGE}")
if(stale)
    file(REMOVE ${stale})
endif()
