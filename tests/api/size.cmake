# Strips a copy of LIBRARY with STRIP and fails above 1.75 MB, of which the variant blocks of the types,
# which are initialized at compile time, take a quarter.
execute_process(COMMAND ${STRIP} -o ${COPY} ${LIBRARY} COMMAND_ERROR_IS_FATAL ANY)
file(SIZE ${COPY} size)
message("stripped: ${size} bytes")
if(size GREATER 1750000)
  message(FATAL_ERROR "${LIBRARY} has grown beyond 1750000 bytes")
endif()
