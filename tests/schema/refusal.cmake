# Compiles the catalogue with an error in one of its headers and expects the compiler to refuse it and name the rule. The
# unchanged header must compile, or the refusal would prove nothing.
#   cmake -DCOMPILER= -DROOT= -DWORK= -DHEADER= -DRIGHT= -DWRONG= -DRULE= -P refusal.cmake
file(READ ${ROOT}/${HEADER} right)
string(REPLACE "${RIGHT}" "${WRONG}" wrong "${right}")
if(wrong STREQUAL right)
  message(FATAL_ERROR "${HEADER} no longer contains \"${RIGHT}\"; choose another error")
endif()
file(WRITE ${WORK}/catalogue.cpp "#include \"schema/catalogue.h\"\n")

function(compile text result output)
  file(WRITE ${WORK}/${HEADER} "${text}")
  execute_process(COMMAND ${COMPILER} -std=c++20 -fsyntax-only -I${WORK} -I${ROOT} ${WORK}/catalogue.cpp
                  RESULT_VARIABLE code OUTPUT_VARIABLE out ERROR_VARIABLE out)
  set(${result} ${code} PARENT_SCOPE)
  set(${output} "${out}" PARENT_SCOPE)
endfunction()

compile("${right}" code output)
if(NOT code EQUAL 0)
  message(FATAL_ERROR "the catalogue does not compile as it stands:\n${output}")
endif()
compile("${wrong}" code output)
if(code EQUAL 0)
  message(FATAL_ERROR "the wrong table compiled")
endif()
if(NOT output MATCHES "${RULE}")
  message(FATAL_ERROR "the compiler's message does not name ${RULE}:\n${output}")
endif()
