# Installs a build into an empty place and moves it to PREFIX, so that nothing in it may lean on where it was installed.
#   cmake -DBUILD= -DSOURCE= -DSCRATCH= -DPREFIX= -P install.cmake
cmake_minimum_required(VERSION 3.25)
set(first ${SCRATCH}/first)
file(REMOVE_RECURSE ${first} ${PREFIX} ${SCRATCH}/components)

function(run)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT code EQUAL 0)
    message(FATAL_ERROR "${ARGV}:\n${output}")
  endif()
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${first})
file(RENAME ${first} ${PREFIX})
file(GLOB_RECURSE whole RELATIVE ${PREFIX} ${PREFIX}/*)

# Every file belongs to one component.
set(parts "")
foreach(component library development tools documentation)
  set(place ${SCRATCH}/components/${component})
  run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${place} --component ${component})
  file(GLOB_RECURSE part RELATIVE ${place} ${place}/*)
  if(part STREQUAL "")
    message(FATAL_ERROR "the component ${component} is empty")
  endif()
  list(APPEND parts ${part})
endforeach()
list(SORT whole)
list(SORT parts)
if(NOT whole STREQUAL parts)
  message(FATAL_ERROR "the components hold\n${parts}\nand the whole is\n${whole}")
endif()

# Every header of the project is there.
foreach(folder include platform/include)
  file(GLOB_RECURSE headers RELATIVE ${SOURCE}/${folder} ${SOURCE}/${folder}/*)
  foreach(header IN LISTS headers)
    if(NOT EXISTS ${PREFIX}/include/${header})
      message(FATAL_ERROR "${header} is not installed")
    endif()
  endforeach()
endforeach()

# No text file contains a path into the source or build tree. Binaries do, in their debug information. A bare ${SOURCE}
# would prove nothing where the clone has a name as short as /src.
file(GLOB entries ${SOURCE}/*)
set(texts ${whole})
list(FILTER texts EXCLUDE REGEX "^bin/|\\.so|\\.a$")
foreach(file IN LISTS texts)
  file(READ ${PREFIX}/${file} text)
  foreach(path IN LISTS entries BUILD)
    string(FIND "${text}" "${path}" at)
    if(NOT at EQUAL -1)
      message(FATAL_ERROR "${file} contains ${path}")
    endif()
  endforeach()
endforeach()

run(${PREFIX}/bin/tarn schema)
