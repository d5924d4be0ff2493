include(CMakePackageConfigHelpers)

# The core library, with which another host can be connected: find_package(Orvane), then link Orvane::core.
install(TARGETS orvane_core EXPORT OrvaneTargets ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
set_target_properties(orvane_core PROPERTIES EXPORT_NAME core)
install(DIRECTORY src/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/orvane FILES_MATCHING PATTERN "*.h"
    PATTERN model EXCLUDE
    PATTERN embedded EXCLUDE
    PATTERN cli EXCLUDE
    PATTERN addin EXCLUDE)
install(EXPORT OrvaneTargets NAMESPACE Orvane:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Orvane)
install(FILES cmake/OrvaneConfig.cmake cmake/FindFreeImage.cmake DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Orvane)
write_basic_package_version_file(OrvaneConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/OrvaneConfigVersion.cmake DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Orvane)

# The sample library of appearances, in which the command looks for the pictures that a model does not name.
install(DIRECTORY examples/library/data DESTINATION ${CMAKE_INSTALL_DATADIR}/orvane/library)
