# Installing a tree that is not built lists the missing files and writes nothing.
#   cmake -DSOURCE= -DSCRATCH= -P unbuilt.cmake
file(REMOVE_RECURSE ${SCRATCH})
execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE} -B ${SCRATCH}/build -G Ninja -DBUILD_TESTING=OFF -DTARN_PYTHON=false
                RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT code EQUAL 0)
  message(FATAL_ERROR "the configuration fails:\n${output}")
endif()
set(left_out "the Python package lumo_tarn is left out")
if(NOT output MATCHES "${left_out}")
  message(FATAL_ERROR "the configuration does not report \"${left_out}\":\n${output}")
endif()

execute_process(COMMAND ${CMAKE_COMMAND} --install ${SCRATCH}/build --prefix ${SCRATCH}/prefix
                RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(code EQUAL 0 OR EXISTS ${SCRATCH}/prefix)
  message(FATAL_ERROR "something is installed although nothing is built:\n${output}")
endif()
foreach(expected "${left_out}" "nothing is installed" liblumo_ui_tarn.so libmirklib.so libskald.so libveld.so tools/tarn/tarn
        tarn.lua tarn.1.gz lumo_ui_tarn.3.gz tarn_frame.5.gz)
  string(FIND "${output}" "${expected}" at)
  if(at EQUAL -1)
    message(FATAL_ERROR "the installation does not report \"${expected}\":\n${output}")
  endif()
endforeach()
