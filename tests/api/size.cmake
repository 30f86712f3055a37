# Strips a copy of LIBRARY with STRIP and fails above LIMIT bytes. The variant blocks of the types, which are initialized
# at compile time, take a quarter of them.
execute_process(COMMAND ${STRIP} -o ${COPY} ${LIBRARY} COMMAND_ERROR_IS_FATAL ANY)
file(SIZE ${COPY} size)
message("stripped: ${size} bytes")
if(size GREATER LIMIT)
  message(FATAL_ERROR "${LIBRARY} has grown beyond ${LIMIT} bytes")
endif()
