# Installation. Component `library` is for running programs, `development` for building programs, `tools` for inspecting
# answers, `fleet` for buses and stores, `documentation` for all users.
include(CMakePackageConfigHelpers)

# In Debian packages the loader finds the libraries on its search path. Otherwise they are found relative to the
# installed files, so that installations are relocatable.
option(TARN_DEBIAN "install for Debian packages" OFF)

# Optional, because the archive takes as long to build as everything else.
option(TARN_STATIC "build, test and install the archive as well" OFF)

set(include_dir ${CMAKE_INSTALL_INCLUDEDIR})
set(library_dir ${CMAKE_INSTALL_LIBDIR})
set(cmake_dir ${library_dir}/cmake/lumo_ui_tarn)

# ---- before anything is written, check that everything is built
function(require_built component)
  foreach(file IN LISTS ARGN)
    install(CODE "if(NOT EXISTS \"${file}\")\n  string(APPEND not_built \"\\n  ${file}\")\nendif()"
            COMPONENT ${component})
  endforeach()
endfunction()
require_built(library $<TARGET_FILE:lumo_ui_tarn> $<TARGET_FILE:mirklib> $<TARGET_FILE:skald> $<TARGET_FILE:veld>)
require_built(development ${CMAKE_BINARY_DIR}/docs/lumo_ui_tarn.3.gz ${TARN_PYTHON_GENERATED})
require_built(tools $<TARGET_FILE:tarn> ${TARN_DISSECTOR} ${TARN_PYTHON_FILES} ${CMAKE_BINARY_DIR}/docs/tarn.1.gz)
require_built(documentation ${CMAKE_BINARY_DIR}/docs/tarn_frame.5.gz)
if(TARN_STATIC)
  require_built(development $<TARGET_FILE:lumo_ui_tarn_static>)
endif()
if(TARN_REFERENCE)
  require_built(documentation ${CMAKE_BINARY_DIR}/docs/reference.stamp)
endif()
if(NOT TARN_PYTHON_FILES)
  install(CODE "message(\"${TARN_NO_PYTHON}\")" COMPONENT tools)
endif()
install(CODE "if(not_built)
  message(FATAL_ERROR \"nothing is installed, because these files are not built:\${not_built}\n\"
                      \"Build them first: cmake --build ${CMAKE_BINARY_DIR}\")
endif()" ALL_COMPONENTS)

# ---- libraries and programs
if(NOT TARN_DEBIAN)
  file(RELATIVE_PATH to_libraries ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
  set_target_properties(lumo_ui_tarn mirklib skald veld PROPERTIES INSTALL_RPATH "$ORIGIN")
  set_target_properties(tarn PROPERTIES INSTALL_RPATH "$ORIGIN/${to_libraries}")
endif()
install(TARGETS lumo_ui_tarn mirklib skald veld mirk_contract EXPORT lumo_ui_tarn_shared
        LIBRARY DESTINATION ${library_dir} COMPONENT library NAMELINK_COMPONENT development
        INCLUDES DESTINATION ${include_dir})
install(TARGETS tarn RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools)
install(FILES ${TARN_DISSECTOR} DESTINATION ${library_dir}/wireshark/plugins COMPONENT tools)

# ---- the fleet, if its libraries were found
if(TARN_WITH_FLEET)
  require_built(fleet $<TARGET_FILE:tarn-fleet> ${TARN_FLEET_MANUALS}/tarn-simulate.1.gz)
  if(NOT TARN_DEBIAN)
    set_target_properties(tarn-fleet PROPERTIES INSTALL_RPATH "$ORIGIN/..")
  endif()
  install(TARGETS tarn-fleet RUNTIME DESTINATION ${TARN_FLEET_DIR} COMPONENT fleet)
  install(DIRECTORY ${TARN_FLEET_MANUALS}/ DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT fleet
          FILES_MATCHING PATTERN "*.1.gz")
  install(DIRECTORY fleet/examples DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/lumo-ui-tarn-fleet COMPONENT fleet)
endif()

# ---- files for building programs
install(DIRECTORY include/ platform/include/ DESTINATION ${include_dir} COMPONENT development
        FILES_MATCHING PATTERN "*.h" PATTERN "*.hpp")
if(TARN_STATIC)
  set_target_properties(lumo_ui_tarn_static PROPERTIES EXCLUDE_FROM_ALL OFF)
  install(TARGETS lumo_ui_tarn_static EXPORT lumo_ui_tarn_static ARCHIVE DESTINATION ${library_dir}
          COMPONENT development INCLUDES DESTINATION ${include_dir})
  install(EXPORT lumo_ui_tarn_static NAMESPACE lumo_ui_tarn:: FILE lumo_ui_tarn_static.cmake
          DESTINATION ${cmake_dir} COMPONENT development)
  set(static_module lumo_ui_tarn_static)
endif()
install(EXPORT lumo_ui_tarn_shared NAMESPACE lumo_ui_tarn:: FILE lumo_ui_tarn_shared.cmake
        DESTINATION ${cmake_dir} COMPONENT development)
configure_package_config_file(packaging/lumo_ui_tarn-config.cmake.in ${CMAKE_BINARY_DIR}/lumo_ui_tarn-config.cmake
                              INSTALL_DESTINATION ${cmake_dir} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/lumo_ui_tarn-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/lumo_ui_tarn-config.cmake ${CMAKE_BINARY_DIR}/lumo_ui_tarn-config-version.cmake
        DESTINATION ${cmake_dir} COMPONENT development)
file(RELATIVE_PATH to_prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
foreach(module lumo_ui_tarn mirk_platform ${static_module})
  configure_file(packaging/${module}.pc.in ${CMAKE_BINARY_DIR}/${module}.pc @ONLY)
  install(FILES ${CMAKE_BINARY_DIR}/${module}.pc DESTINATION ${library_dir}/pkgconfig COMPONENT development)
endforeach()

# ---- shell completion
set(TARN_ZSH_DIR ${CMAKE_INSTALL_DATAROOTDIR}/zsh/site-functions)
if(TARN_DEBIAN)
  set(TARN_ZSH_DIR ${CMAKE_INSTALL_DATAROOTDIR}/zsh/vendor-completions)
endif()
install(FILES tools/tarn/completion/tarn.bash DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/bash-completion/completions
        RENAME tarn COMPONENT tools)
install(FILES tools/tarn/completion/_tarn DESTINATION ${TARN_ZSH_DIR} COMPONENT tools)

# ---- the Python package, if its requirements were found
if(TARN_PYTHON_FILES)
  install(FILES ${TARN_PYTHON_FILES} DESTINATION ${TARN_PYTHON_DIR} COMPONENT tools)
  install(FILES ${TARN_PYTHON_GENERATED} DESTINATION ${library_dir}/lumo_ui_tarn/python COMPONENT development)
endif()

# ---- documents
install(DIRECTORY ${CMAKE_BINARY_DIR}/docs/ DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tools
        FILES_MATCHING PATTERN "tarn*.1.gz" PATTERN "reference" EXCLUDE PATTERN "CMakeFiles" EXCLUDE)
install(FILES ${CMAKE_BINARY_DIR}/docs/lumo_ui_tarn.3.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man3
        COMPONENT development)
install(FILES ${CMAKE_BINARY_DIR}/docs/tarn_frame.5.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man5
        COMPONENT documentation)
if(TARN_REFERENCE)
  install(DIRECTORY ${CMAKE_BINARY_DIR}/docs/reference/html DESTINATION ${CMAKE_INSTALL_DOCDIR}
          COMPONENT documentation)
endif()
install(FILES README.md CHANGELOG.md CONTRIBUTING.md SECURITY.md DESTINATION ${CMAKE_INSTALL_DOCDIR}
        COMPONENT documentation)
install(DIRECTORY docs examples DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documentation
        PATTERN CMakeLists.txt EXCLUDE PATTERN Doxyfile EXCLUDE)

if(TARN_DEBIAN)
  include(packaging/packages.cmake)
endif()
