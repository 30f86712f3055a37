# The comparison fails if a member of the handle is moved in a copy of the baseline, or if a parameter's type changes.
#   cmake -DABIDIFF= -DBASELINE= -DLIBRARY= -DSCRATCH= -P notices.cmake
file(READ ${BASELINE} original)

function(is_noticed name from to expected)
  string(FIND "${original}" "${from}" at)
  if(at EQUAL -1)
    message(FATAL_ERROR "${name}: the baseline has no ${from}")
  endif()
  string(LENGTH "${from}" length)
  math(EXPR behind "${at} + ${length}")
  string(SUBSTRING "${original}" 0 ${at} before)
  string(SUBSTRING "${original}" ${behind} -1 after)
  file(WRITE ${SCRATCH}/${name}.abi "${before}${to}${after}")
  execute_process(COMMAND ${ABIDIFF} --leaf-changes-only --no-added-syms --no-corpus-path ${SCRATCH}/${name}.abi ${LIBRARY}
                  RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT code EQUAL 4 OR NOT output MATCHES "${expected}")
    message(FATAL_ERROR "${name}: result ${code}\n${output}")
  endif()
endfunction()

string(REGEX MATCH "<class-decl name='mirk_handle'.*" handle "${original}")
string(REGEX MATCH "^[^\n]*\n[^\n]*\n[^\n]*name='sys_alloc'[^\n]*\n[^\n]*\n[^\n]*layout-offset-in-bits='64'>" head "${handle}")
string(REPLACE "layout-offset-in-bits='64'>" "layout-offset-in-bits='128'>" moved "${head}")
is_noticed(moved_member "${head}" "${moved}" "mirk_handle.* changed")

string(REGEX MATCH "typedef-decl name='uint64_t' [^>]* id='([0-9a-f]+)'" wide "${original}")
set(wide ${CMAKE_MATCH_1})
string(REGEX MATCH "<function-decl name='lumo_tarn_debug_setting_create'[^>]*>\n *<parameter type-id='[0-9a-f]+'/>\n *<parameter type-id='[0-9a-f]+'" declaration "${original}")
string(REGEX REPLACE "[0-9a-f]+'$" "${wide}'" other "${declaration}")
is_noticed(other_parameter "${declaration}" "${other}" "lumo_tarn_debug_setting_create")
