# Run by the build (see zqdial_must_not_compile): SOURCE compiles without MUST_NOT_COMPILE, which shows
# that nothing else is wrong with it, and is refused with a message matching EXPECT when defined.

execute_process(COMMAND ${COMPILER} ${FLAGS} -MD -MF ${STAMP}.d -MT ${STAMP} ${SOURCE}
    RESULT_VARIABLE result ERROR_VARIABLE messages)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${SOURCE} must compile as it stands, but:\n${messages}")
endif()

execute_process(COMMAND ${COMPILER} ${FLAGS} -DMUST_NOT_COMPILE ${SOURCE}
    RESULT_VARIABLE result ERROR_VARIABLE messages)
if(result EQUAL 0)
    message(FATAL_ERROR "${SOURCE} compiles with MUST_NOT_COMPILE, but the rule forbids it")
endif()
if(NOT messages MATCHES "${EXPECT}")
    message(FATAL_ERROR "${SOURCE} is refused, but not with '${EXPECT}':\n${messages}")
endif()

file(TOUCH "${STAMP}")
