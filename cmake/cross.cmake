# A build for another processor, with Debian's cross compilers. The presets aarch64, riscv64 and s390x use this file. The
# libraries of the target are in build/sysroots, where tools/sysroot installs them; programs run under qemu.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR ${TARN_PROCESSOR})
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TARN_PROCESSOR)
set(CMAKE_C_COMPILER ${TARN_PROCESSOR}-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER ${TARN_PROCESSOR}-linux-gnu-g++)
cmake_path(SET CMAKE_SYSROOT NORMALIZE ${CMAKE_CURRENT_LIST_DIR}/../build/sysroots/${TARN_PROCESSOR})
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-${TARN_PROCESSOR} -L ${CMAKE_SYSROOT})
set(CMAKE_LIBRARY_ARCHITECTURE ${TARN_PROCESSOR}-linux-gnu)
foreach(what LIBRARY INCLUDE PACKAGE)
  set(CMAKE_FIND_ROOT_PATH_MODE_${what} ONLY)
endforeach()
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
