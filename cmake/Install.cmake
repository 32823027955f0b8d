# What `cmake --install` and `cpack` put where: the library, its headers in a directory of their own, a CMake package
# (find_package(zu), target zu::zu), a pkg-config file, the demo tool with its manual page.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(ZU_HEADER_DIR ${CMAKE_INSTALL_INCLUDEDIR}/zu)
set(ZU_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/zu)

target_include_directories(zu INTERFACE $<INSTALL_INTERFACE:${ZU_HEADER_DIR}>)
install(TARGETS zu EXPORT zuTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/ DESTINATION ${ZU_HEADER_DIR} COMPONENT development
    FILES_MATCHING PATTERN "*.h" PATTERN "*.hpp")

install(EXPORT zuTargets NAMESPACE zu:: DESTINATION ${ZU_PACKAGE_DIR} COMPONENT development)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/zuConfig.cmake.in ${PROJECT_BINARY_DIR}/zuConfig.cmake
    INSTALL_DESTINATION ${ZU_PACKAGE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/zuConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/zuConfig.cmake ${PROJECT_BINARY_DIR}/zuConfigVersion.cmake
    DESTINATION ${ZU_PACKAGE_DIR} COMPONENT development)

configure_file(${PROJECT_SOURCE_DIR}/cmake/zu.pc.in ${PROJECT_BINARY_DIR}/zu.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/zu.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)

if(TARGET zu-demo)
    install(TARGETS zu-demo RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
    if(NOT WIN32)
        install(FILES ${PROJECT_SOURCE_DIR}/docs/zu-demo.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT runtime)
    endif()
endif()

set(CPACK_PACKAGE_NAME zu)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "The zu maintainers")
set(CPACK_PACKAGE_CONTACT "maintainers@users.noreply.c-seed-8f47f91d.example")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${PROJECT_DESCRIPTION})
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
if(WIN32)
    set(CPACK_GENERATOR ZIP)
    set(CPACK_ARCHIVE_COMPONENT_INSTALL OFF)
else()
    set(CPACK_GENERATOR DEB)
    set(CPACK_DEB_COMPONENT_INSTALL ON)
    set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libzu${PROJECT_VERSION_MAJOR})
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libzu-dev)
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "libzu${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION})")
endif()
include(CPack)
