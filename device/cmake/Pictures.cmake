# The simulator's gallery as the library that ships draws it: the simulator is compiled for arm64,
# with the loader in its add-on's place, and run by an emulator of the processor. Not part of "all":
# "make device-pictures" builds the target "pictures".

if(NOT arm64 IN_LIST SLICES)
    zqdial_unable(pictures "the arm64 slice draws the pictures: name it in SLICES")
    return()
elseif(NOT COMPILER_arm64 OR NOT EMULATOR_arm64)
    add_custom_target(pictures)
    add_dependencies(pictures outside-arm64) # which says what is missing
    return()
endif()

set(pictureRoots)
set(pictureLibraries)
foreach(part IN ITEMS "" -pictures)
    set(root "${CMAKE_CURRENT_BINARY_DIR}/sysroot-arm64${part}")
    list(APPEND pictureRoots "${root}")
    list(APPEND pictureLibraries "${root}/usr/lib" "${root}/usr/lib/${triple_arm64}"
        "${root}/lib/${triple_arm64}")
endforeach()
zqdial_unpack("${root}" arm64 "${LOADER_SOURCES}/simulator/sysroot.txt"
    "what the simulator needs")

list(JOIN pictureLibraries ":" pictureLibraries)
set(pictureLink "-Wl,-rpath-link,${pictureLibraries}")
set(pictureBuild "${CMAKE_CURRENT_BINARY_DIR}/arm64/simulator")
# Headers are this machine's, which are the same on every processor. Two roundings as in the host's
# arithmetic, where arm64 has one for a product and a sum.
add_custom_target(pictures
    COMMAND ${CMAKE_COMMAND} -S "${SOURCE_ROOT}" -B "${pictureBuild}" -G Ninja
        -DCMAKE_SYSTEM_NAME=Linux -DCMAKE_SYSTEM_PROCESSOR=aarch64
        "-DCMAKE_CXX_COMPILER=${COMPILER_arm64}" "-DCMAKE_OBJCXX_COMPILER=${COMPILER_arm64}"
        "-DZQDIAL_OBJC_GCC=${COMPILER_arm64}"
        -DCMAKE_CXX_FLAGS=-ffp-contract=off -DCMAKE_CXX_FLAGS_RELEASE=-O1
        "-DCMAKE_FIND_ROOT_PATH=${pictureRoots}" -DCMAKE_FIND_ROOT_PATH_MODE_LIBRARY=ONLY
        "-DCMAKE_SHARED_LINKER_FLAGS=${pictureLink}" "-DCMAKE_EXE_LINKER_FLAGS=${pictureLink}"
        --log-level=WARNING
    COMMAND ${CMAKE_COMMAND} --build "${pictureBuild}" --target phone-simulator
    DEPENDS library "${CMAKE_CURRENT_BINARY_DIR}/sysroot-arm64/complete" "${root}/complete"
    COMMENT "arm64: the simulator"
    USES_TERMINAL
    VERBATIM)
