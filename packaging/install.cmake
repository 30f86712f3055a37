# What an installation holds. Components are what people ask for: programs that run need `library`, people who build
# programs need `development`, people who look at answers need `tools`, and `documentation` is for all of them.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# Packages of Debian find their libraries where the loader looks; everything else finds them from where it lies itself,
# so that an installation can be moved.
option(TARN_DEBIAN "install as Debian's packages want it" OFF)

set(include_dir ${CMAKE_INSTALL_INCLUDEDIR})
set(library_dir ${CMAKE_INSTALL_LIBDIR})
set(cmake_dir ${library_dir}/cmake/lumo_ui_tarn)

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

# ---- what programs are built with
install(DIRECTORY include/ platform/include/ DESTINATION ${include_dir} COMPONENT development
        FILES_MATCHING PATTERN "*.h" PATTERN "*.hpp")
install(EXPORT lumo_ui_tarn_shared NAMESPACE lumo_ui_tarn:: FILE lumo_ui_tarn_shared.cmake
        DESTINATION ${cmake_dir} COMPONENT development)
configure_package_config_file(packaging/lumo_ui_tarn-config.cmake.in ${CMAKE_BINARY_DIR}/lumo_ui_tarn-config.cmake
                              INSTALL_DESTINATION ${cmake_dir} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/lumo_ui_tarn-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/lumo_ui_tarn-config.cmake ${CMAKE_BINARY_DIR}/lumo_ui_tarn-config-version.cmake
        DESTINATION ${cmake_dir} COMPONENT development)
file(RELATIVE_PATH to_prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
foreach(module lumo_ui_tarn mirk_platform)
  configure_file(packaging/${module}.pc.in ${CMAKE_BINARY_DIR}/${module}.pc @ONLY)
  install(FILES ${CMAKE_BINARY_DIR}/${module}.pc DESTINATION ${library_dir}/pkgconfig COMPONENT development)
endforeach()

# ---- what people read
install(FILES README.md docs/design.md docs/tour.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documentation)
install(DIRECTORY examples docs/pictures DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documentation)
