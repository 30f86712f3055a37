# Builds a program against an installation, in one of the ways that users do it, and runs it.
#   cmake -DWAY= -DLANGUAGE= -DPROGRAM= -DPREFIX= -DLIBDIR= -DFLAGS= -DC_COMPILER= -DCXX_COMPILER= -DSCRATCH= -DUSER=
#         -P user_builds.cmake
file(REMOVE_RECURSE ${SCRATCH})
file(MAKE_DIRECTORY ${SCRATCH})
set(binary ${SCRATCH}/program)

function(run)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT code EQUAL 0)
    message(FATAL_ERROR "${ARGV}:\n${output}")
  endif()
endfunction()

function(ask_pkg_config result)
  execute_process(COMMAND ${CMAKE_COMMAND} -E env PKG_CONFIG_PATH=${PREFIX}/${LIBDIR}/pkgconfig pkg-config ${ARGN}
                  RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE error OUTPUT_STRIP_TRAILING_WHITESPACE)
  if(NOT code EQUAL 0)
    message(FATAL_ERROR "pkg-config ${ARGN}: ${error}")
  endif()
  separate_arguments(output UNIX_COMMAND "${output}")
  set(${result} ${output} PARENT_SCOPE)
endfunction()

if(WAY STREQUAL pkg_config)
  ask_pkg_config(flags --cflags --libs lumo_ui_tarn)
  ask_pkg_config(libdir --variable=libdir lumo_ui_tarn)
  run(${${LANGUAGE}_COMPILER} ${FLAGS} ${PROGRAM} -o ${binary} ${flags} -Wl,-rpath,${libdir})
elseif(WAY STREQUAL pkg_config_static)
  ask_pkg_config(flags --static --cflags --libs lumo_ui_tarn_static)
  run(${${LANGUAGE}_COMPILER} ${FLAGS} ${PROGRAM} -o ${binary} ${flags})
else()
  string(REPLACE find_package_ "" kind ${WAY})
  set(found -DCMAKE_PREFIX_PATH=${PREFIX})
  if(LIBDIR STREQUAL lib64)  # not searched on Debian
    set(found -Dlumo_ui_tarn_DIR=${PREFIX}/${LIBDIR}/cmake/lumo_ui_tarn)
  endif()
  run(${CMAKE_COMMAND} -G Ninja -S ${USER} -B ${SCRATCH} ${found} -DKIND=${kind} -DLANGUAGE=${LANGUAGE}
      -DPROGRAM=${PROGRAM} -DCMAKE_${LANGUAGE}_COMPILER=${${LANGUAGE}_COMPILER} -DCMAKE_${LANGUAGE}_FLAGS=${FLAGS})
  run(${CMAKE_COMMAND} --build ${SCRATCH})
endif()
run(${binary})

# A program with the archive depends on none of the shared libraries; the others do.
execute_process(COMMAND ldd ${binary} OUTPUT_VARIABLE needed)
string(FIND "${needed}" ${PREFIX} at)
if(WAY MATCHES static AND NOT at EQUAL -1 OR NOT WAY MATCHES static AND at EQUAL -1)
  message(FATAL_ERROR "linked with the wrong libraries:\n${needed}")
endif()
