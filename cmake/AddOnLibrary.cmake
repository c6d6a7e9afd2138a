# How the add-on library is linked: one init routine, no start files, a fixed list of exports.

# zqdial_library_link_options(<target>)
# The loader runs ZQDialMain (DT_INIT) and nothing else when it maps the library: without the
# compiler's start files there is no initialiser list. The host's own frameworks stay recorded as
# needed even while no symbol of theirs is used yet, since that list is a contract with whoever
# brings other ones.
function(zqdial_library_link_options target)
    set(map "${PROJECT_SOURCE_DIR}/cmake/libZQDial.map")
    target_link_options(${target} PRIVATE
        -nostartfiles LINKER:-init,ZQDialMain LINKER:--version-script=${map} LINKER:--no-as-needed)
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${map}")
endfunction()

# zqdial_add_contract_test(<target>)
# Checks the linked library against tools/contract as one CTest test, and as the build target
# "contract". Sanitizers add initialisers and libraries of their own, so their builds skip it.
function(zqdial_add_contract_test target)
    if(ZQDIAL_SANITIZE)
        return()
    endif()
    set(check "${PROJECT_SOURCE_DIR}/tools/check-contract.sh" $<TARGET_FILE:${target}>)
    add_test(NAME contract.${target} COMMAND ${check})
    add_custom_target(contract COMMAND ${check} DEPENDS ${target} VERBATIM)
endfunction()
