# Debian packages, one for each component: run cpack -G DEB in a build with TARN_DEBIAN.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME lumo-ui-tarn)
set(CPACK_PACKAGE_CONTACT "The lumo_ui_tarn authors <authors@lumo-ui-tarn.invalid>")
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_ALL library development tools documentation)
if(TARN_WITH_FLEET)
  list(APPEND CPACK_COMPONENTS_ALL fleet)
endif()
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SOURCE lumo-ui-tarn)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(of_this_build "(= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")

# The description of a package: name, section, a line, and a paragraph.
function(describe component package section line paragraph)
  string(TOUPPER ${component} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package} PARENT_SCOPE)
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section} PARENT_SCOPE)
  set(CPACK_DEBIAN_${upper}_DESCRIPTION "${line}\n${paragraph}" PARENT_SCOPE)
  install(FILES packaging/copyright ${CMAKE_BINARY_DIR}/changelog.Debian.gz
          DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${package} COMPONENT ${component})
endfunction()
describe(library liblumo-ui-tarn1 libs "records and messages of traffic-aware routing (shared libraries)"
  "The traffic-aware routing feature tarn exchanges records between processes as
binary frames. This package contains the library that creates, accesses,
compares, writes and reads these records, and its reference runtime.")
describe(development liblumo-ui-tarn-dev libdevel "records and messages of traffic-aware routing (development)"
  "The traffic-aware routing feature tarn exchanges records between processes as
binary frames. This package contains headers, a static library, and files for
pkg-config and CMake.")
if(TARN_PYTHON_FILES)
  set(python_depends ", python3:any, python3-cffi-backend")
  set(python_text "\nand the Python package lumo_tarn")
endif()
# It stops services, and removes the bytecode that Python writes, which dpkg does not know.
set(CPACK_DEBIAN_TOOLS_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/prerm)
install(FILES packaging/systemd/tarn-answer@.service DESTINATION lib/systemd/system COMPONENT tools)
describe(tools lumo-ui-tarn-tools utils "request, convert, compare and inspect answers of the tarn feature"
  "The tool tarn requests bundles from a process and prints them, serves bundles
from files, converts frames to text, XML or JSON and back, dumps frames byte by
byte, compares answers and generates random ones. This package also contains a
dissector for Wireshark${python_text}.")
if(TARN_WITH_FLEET)
  describe(fleet lumo-ui-tarn-fleet utils "ask many devices for answers of the tarn feature"
    "The tool tarn asks many devices on a bus, a server of NATS, keeps what they answer\nin SQLite or PostgreSQL, and simulates devices.")
  install(FILES packaging/systemd/tarn-collect@.service packaging/systemd/tarn-device@.service
          DESTINATION lib/systemd/system COMPONENT fleet)
  set(CPACK_DEBIAN_FLEET_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/fleet/prerm)
  set(CPACK_DEBIAN_FLEET_PACKAGE_SHLIBDEPS ON)
  set(CPACK_DEBIAN_FLEET_PACKAGE_DEPENDS "lumo-ui-tarn-tools ${of_this_build}, libjs-dygraphs")
endif()
describe(documentation lumo-ui-tarn-doc doc "records and messages of traffic-aware routing (documentation)"
  "The traffic-aware routing feature tarn exchanges records between processes as
binary frames. This package contains manuals, the API reference and examples.")

# Dependencies on system libraries are read from the binaries; dependencies between these packages are listed here.
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SHLIBDEPS ON)
file(WRITE ${CMAKE_BINARY_DIR}/shlibs
     "liblumo_ui_tarn ${PROJECT_VERSION_MAJOR} liblumo-ui-tarn${PROJECT_VERSION_MAJOR} (>= ${PROJECT_VERSION})\n")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${CMAKE_BINARY_DIR}/shlibs ${PROJECT_SOURCE_DIR}/packaging/triggers)
install(FILES packaging/lintian-overrides DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/lintian/overrides
        RENAME liblumo-ui-tarn1 COMPONENT library)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_BINARY_DIR} ${CMAKE_BINARY_DIR}/platform)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "liblumo-ui-tarn1 ${of_this_build}${python_depends}")
# libxml2-dev does not depend on everything that a static link with it requires, and a C compiler does not include the C++
# library.
string(REGEX MATCH "^[0-9]+" compiler_version ${CMAKE_CXX_COMPILER_VERSION})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "liblumo-ui-tarn1 ${of_this_build}, libxml2-dev, zlib1g-dev, liblzma-dev, libstdc++-${compiler_version}-dev")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS lumo-ui-tarn-doc)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)

find_program(GZIP gzip REQUIRED)
execute_process(COMMAND ${GZIP} -9nc ${PROJECT_SOURCE_DIR}/packaging/changelog
                OUTPUT_FILE ${CMAKE_BINARY_DIR}/changelog.Debian.gz COMMAND_ERROR_IS_FATAL ANY)
include(CPack)
