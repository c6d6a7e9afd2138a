# Sources of a folder are compiled together: nine tenths of a source's time goes into the headers that
# its neighbours read as well. The price is that names in unnamed namespaces have to differ within a
# folder, and that a missing #include may go unnoticed here; "make clang" compiles each source alone.

option(ZQDIAL_COMPILE_TOGETHER "Compile the sources of a folder together" ON)
set(ZQDIAL_MOST_TOGETHER 12) # so that all cores have work, and a changed source takes seconds

# The targets of a folder and of those below it, one group for each folder of a target's sources.
function(zqdial_compile_together folder)
    if(NOT ZQDIAL_COMPILE_TOGETHER)
        return()
    endif()
    get_property(below DIRECTORY "${folder}" PROPERTY SUBDIRECTORIES)
    foreach(subfolder IN LISTS below)
        zqdial_compile_together("${subfolder}")
    endforeach()
    get_property(targets DIRECTORY "${folder}" PROPERTY BUILDSYSTEM_TARGETS)
    foreach(target IN LISTS targets)
        get_target_property(type ${target} TYPE)
        if(type MATCHES "LIBRARY|EXECUTABLE" AND NOT type STREQUAL INTERFACE_LIBRARY)
            zqdial_group_sources(${target})
        endif()
    endforeach()
endfunction()

function(zqdial_group_sources target)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
    get_target_property(base ${target} SOURCE_DIR)
    get_target_property(sources ${target} SOURCES)
    foreach(source IN LISTS sources)
        cmake_path(GET source PARENT_PATH folder)
        cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY "${base}" NORMALIZE)
        cmake_path(GET source EXTENSION extension)
        string(MAKE_C_IDENTIFIER "${folder}${extension}" group)
        math(EXPR ${group}_count "${${group}_count} + 1")
        math(EXPR batch "(${${group}_count} - 1) / ${ZQDIAL_MOST_TOGETHER}")
        set_source_files_properties("${source}" TARGET_DIRECTORY ${target}
            PROPERTIES UNITY_GROUP ${group}_${batch})
    endforeach()
endfunction()
