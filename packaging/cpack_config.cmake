# cpack reads this before it builds a package. A fixed time of all entries makes two packages of one build identical.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
    execute_process(COMMAND dpkg-parsechangelog -l ${CPACK_VELMORA_CHANGELOG} -S Timestamp
        OUTPUT_VARIABLE time OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    set(ENV{SOURCE_DATE_EPOCH} ${time})
endif()
