# What `cmake --install` puts where: the library, its headers in a directory of their own, a CMake package
# (find_package(zu), target zu::zu), a pkg-config file, the demo tool with its manual page. The tree can be moved.
# Packages are made of it by Package.cmake.

# Libraries of Debian lie in a directory of their architecture. So do these, below any prefix: what is installed is then
# what is packaged.
if(NOT DEFINED CMAKE_INSTALL_LIBDIR AND CMAKE_LIBRARY_ARCHITECTURE AND EXISTS /etc/debian_version)
    set(CMAKE_INSTALL_LIBDIR lib/${CMAKE_LIBRARY_ARCHITECTURE} CACHE PATH "Object code libraries")
endif()
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# A directory of its own keeps the headers, which include each other by name alone, from those of others.
set(ZU_HEADER_DIR ${CMAKE_INSTALL_INCLUDEDIR}/zu)
set(ZU_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/zu)
set(ZU_PKGCONFIG_DIR ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# The runtime component holds what a program needs to run and nothing that a second version would overwrite.
install(TARGETS zu EXPORT zuTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    INCLUDES DESTINATION ${ZU_HEADER_DIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/ DESTINATION ${ZU_HEADER_DIR} COMPONENT development
    FILES_MATCHING PATTERN "*.h" PATTERN "*.hpp")

# While the major version is 0, each minor version has an interface of its own (docs/releasing.md).
set(compatibility SameMajorVersion)
if(PROJECT_VERSION_MAJOR EQUAL 0)
    set(compatibility SameMinorVersion)
endif()
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/zuConfig.cmake.in ${PROJECT_BINARY_DIR}/zuConfig.cmake
    INSTALL_DESTINATION ${ZU_PACKAGE_DIR} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/zuConfigVersion.cmake COMPATIBILITY ${compatibility})
install(EXPORT zuTargets NAMESPACE zu:: DESTINATION ${ZU_PACKAGE_DIR} COMPONENT development)
install(FILES ${PROJECT_BINARY_DIR}/zuConfig.cmake ${PROJECT_BINARY_DIR}/zuConfigVersion.cmake
    DESTINATION ${ZU_PACKAGE_DIR} COMPONENT development)

# The pkg-config file finds the prefix from where it stands itself; directories outside the prefix stay as they are.
set(ZU_PC_LIBDIR "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
    set(ZU_PC_LIBDIR "${CMAKE_INSTALL_LIBDIR}")
endif()
set(ZU_PC_INCLUDEDIR "\${prefix}/${ZU_HEADER_DIR}")
if(IS_ABSOLUTE "${ZU_HEADER_DIR}")
    set(ZU_PC_INCLUDEDIR "${ZU_HEADER_DIR}")
endif()
set(ZU_PC_PREFIX "${CMAKE_INSTALL_PREFIX}")
if(NOT IS_ABSOLUTE "${ZU_PKGCONFIG_DIR}")
    file(RELATIVE_PATH ZU_PC_PREFIX "/${ZU_PKGCONFIG_DIR}" /)
    string(REGEX REPLACE "/$" "" ZU_PC_PREFIX "\${pcfiledir}/${ZU_PC_PREFIX}")
endif()
configure_file(${PROJECT_SOURCE_DIR}/cmake/zu.pc.in ${PROJECT_BINARY_DIR}/zu.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/zu.pc DESTINATION ${ZU_PKGCONFIG_DIR} COMPONENT development)

install(FILES ${PROJECT_SOURCE_DIR}/CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development)

if(TARGET zu-demo)
    if(NOT WIN32)
        # The tool finds the library in a tree that was moved, too.
        file(RELATIVE_PATH to_libraries "/${CMAKE_INSTALL_BINDIR}" "/${CMAKE_INSTALL_LIBDIR}")
        set_target_properties(zu-demo PROPERTIES INSTALL_RPATH "$ORIGIN/${to_libraries}")
        install(FILES ${PROJECT_SOURCE_DIR}/docs/zu-demo.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tools)
    endif()
    install(TARGETS zu-demo RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools)
endif()

include(${CMAKE_CURRENT_LIST_DIR}/Package.cmake)
