# cmake --install: headers, both libraries, a CMake package and a pkg-config file, rnximg, the Python binding. The
# components are those of the Debian packages.
include(CMakePackageConfigHelpers)

# rnxip finds rnxcore beside itself, wherever they are installed.
set_target_properties(rnxip PROPERTIES INSTALL_RPATH "$ORIGIN")
install(TARGETS rnxip rnxcore EXPORT rnxipTargets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  COMPONENT librnxip NAMELINK_COMPONENT librnxip-dev)
install(FILES include/rnxip.h include/rnxcore.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT librnxip-dev)
install(DIRECTORY include/rnxip DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT librnxip-dev
  FILES_MATCHING PATTERN "*.h")
install(EXPORT rnxipTargets NAMESPACE rnxip:: FILE rnxipConfig.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/rnxip COMPONENT librnxip-dev)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/rnxipConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/rnxipConfigVersion.cmake DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/rnxip COMPONENT librnxip-dev)

# From the pkg-config file up to the prefix, so that an installed folder may be moved.
file(RELATIVE_PATH RNXIP_PREFIX_FROM_PC "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
string(REGEX REPLACE "/$" "" RNXIP_PREFIX_FROM_PC "${RNXIP_PREFIX_FROM_PC}")
configure_file(cmake/rnxip.pc.in ${PROJECT_BINARY_DIR}/rnxip.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/rnxip.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT librnxip-dev)

# The Python binding, with the table of exports beside it.
set(RNXIP_PYTHON_DIR "lib/python3/dist-packages" CACHE STRING "Where Python packages are installed, below the prefix")
install(DIRECTORY python/rnxip DESTINATION ${RNXIP_PYTHON_DIR} COMPONENT python3-rnxip FILES_MATCHING PATTERN "*.py")
install(FILES ${GENERATED}/table.json DESTINATION ${RNXIP_PYTHON_DIR}/rnxip COMPONENT python3-rnxip)
