# lumo_ui_tarn_static: the library and the reference runtime in one archive, for programs that need no other runtime.
#
# Both are compiled as one program, so that calls of the runtime's primitives are inlined. The result is one object of
# ordinary machine code: linking the archive requires neither this compiler nor its flags.
find_package(LibXml2 REQUIRED)
find_package(Threads REQUIRED)
add_library(tarn_static_library OBJECT EXCLUDE_FROM_ALL ${TARN_FAMILIES} core/manifest.S)
add_dependencies(tarn_static_library tarn_exports)
target_include_directories(tarn_static_library PRIVATE ${PROJECT_SOURCE_DIR} ${generated})
target_compile_definitions(tarn_static_library PRIVATE TARN_RUNTIME_INSIDE)
# Hidden symbols of the object become local, which is impossible for unique symbols.
target_compile_options(tarn_static_library PRIVATE ${TARN_LIBRARY_OPTIONS} $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-fno-gnu-unique>)
target_link_libraries(tarn_static_library PRIVATE mirk_contract tarn_schema)

add_library(tarn_static_runtime OBJECT EXCLUDE_FROM_ALL ${MIRK_MIRKLIB_SOURCES} ${MIRK_SKALD_SOURCES} ${MIRK_VELD_SOURCES})
target_include_directories(tarn_static_runtime SYSTEM PRIVATE ${ASIO_INCLUDE_DIR})
target_include_directories(tarn_static_runtime PRIVATE ${PROJECT_SOURCE_DIR} platform/include)
target_compile_definitions(tarn_static_runtime PRIVATE ASIO_STANDALONE ASIO_NO_DEPRECATED)
target_compile_options(tarn_static_runtime PRIVATE -fno-strict-aliasing $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)
target_link_libraries(tarn_static_runtime PRIVATE mirk_contract LibXml2::LibXml2 Threads::Threads)

# Only g++ can write machine code from here. With other compilers the archive is the same, but without the inlining.
set(whole_program)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_BUILD_TYPE STREQUAL Release AND NOT TARN_SANITIZE AND NOT TARN_COVERAGE)
  target_compile_options(tarn_static_library PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-flto -fno-semantic-interposition>)
  target_compile_options(tarn_static_runtime PRIVATE -flto -fno-semantic-interposition)
  set(whole_program -flto -flto-partition=none -flinker-output=nolto-rel -O2 -fPIC -fno-gnu-unique -fno-semantic-interposition -fno-strict-aliasing)
endif()
set(whole ${CMAKE_BINARY_DIR}/lumo_ui_tarn_static.o)
add_custom_command(
  OUTPUT ${whole}
  COMMAND ${CMAKE_CXX_COMPILER} -nostdlib -r -Wl,--force-group-allocation ${whole_program} -o ${whole}
          $<TARGET_OBJECTS:tarn_static_library> $<TARGET_OBJECTS:tarn_static_runtime>
  COMMAND ${CMAKE_OBJCOPY} --localize-hidden ${whole}
  DEPENDS $<TARGET_OBJECTS:tarn_static_library> $<TARGET_OBJECTS:tarn_static_runtime>
  COMMENT "compiling library and runtime as one"
  COMMAND_EXPAND_LISTS VERBATIM)
set_source_files_properties(${whole} PROPERTIES EXTERNAL_OBJECT ON GENERATED ON)
add_library(lumo_ui_tarn_static STATIC EXCLUDE_FROM_ALL ${whole})
set_target_properties(lumo_ui_tarn_static PROPERTIES LINKER_LANGUAGE CXX)
target_include_directories(lumo_ui_tarn_static PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/platform/include>)
target_link_libraries(lumo_ui_tarn_static PUBLIC mirk_contract PRIVATE LibXml2::LibXml2 Threads::Threads stdc++)
