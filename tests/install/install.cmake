# Installs a build into an empty folder and moves it to PREFIX, so that nothing can depend on the original path.
#   cmake -DBUILD= -DSOURCE= -DSCRATCH= -DPREFIX= -DFLEET= -P install.cmake
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

# Every file belongs to exactly one component.
set(parts "")
set(components library development tools documentation)
if(FLEET)
  list(APPEND components fleet)
endif()
foreach(component IN LISTS components)
  set(folder ${SCRATCH}/components/${component})
  run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${folder} --component ${component})
  file(GLOB_RECURSE part RELATIVE ${folder} ${folder}/*)
  if(part STREQUAL "")
    message(FATAL_ERROR "the component ${component} is empty")
  endif()
  list(APPEND parts ${part})
endforeach()
list(SORT whole)
list(SORT parts)
if(NOT whole STREQUAL parts)
  message(FATAL_ERROR "the components contain\n${parts}\nand the whole installation\n${whole}")
endif()

# Every public header is installed.
foreach(folder include platform/include)
  file(GLOB_RECURSE headers RELATIVE ${SOURCE}/${folder} ${SOURCE}/${folder}/*)
  foreach(header IN LISTS headers)
    if(NOT EXISTS ${PREFIX}/include/${header})
      message(FATAL_ERROR "${header} is not installed")
    endif()
  endforeach()
endforeach()

# No text file contains a path of the source or build tree. Binaries may, in their debug information. The search is for
# paths of files, since the path of the source tree may be as short as /src.
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
