include(CMakePackageConfigHelpers)

set(daksdp_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/daksdp)
set(daksdp_pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
set(daksdp_installed daksdp daksdp_static)
set(daksdp_modules daksdp)
if(TARGET dakport)
    list(APPEND daksdp_installed dakport)
    list(APPEND daksdp_modules dakport)
    # `pkg-config --static` names all that a program needs.
    set(daksdp_private_requirement "dakport = ${PROJECT_VERSION}")
else()
    set(daksdp_left_out PATTERN host EXCLUDE)
endif()

install(TARGETS ${daksdp_installed} EXPORT daksdp-targets)
install(EXPORT daksdp-targets NAMESPACE daksdp:: DESTINATION ${daksdp_package_dir} FILE daksdpTargets.cmake)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/daksdpConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES cmake/daksdpConfig.cmake ${PROJECT_BINARY_DIR}/daksdpConfigVersion.cmake
    DESTINATION ${daksdp_package_dir})

# Paths start where the module's file lies, so that the installed tree can be moved.
string(REGEX REPLACE "[^/]+" ".." daksdp_prefix_from_pc ${daksdp_pkgconfig_dir})
foreach(module ${daksdp_modules})
    configure_file(cmake/${module}.pc.in ${PROJECT_BINARY_DIR}/${module}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${module}.pc DESTINATION ${daksdp_pkgconfig_dir})
endforeach()

install(DIRECTORY src/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/daksdp FILES_MATCHING PATTERN "*.h"
    ${daksdp_left_out})

if(TARGET daksdp_tool)
    string(REGEX REPLACE "[^/]+" ".." daksdp_prefix_from_bin ${CMAKE_INSTALL_BINDIR})
    set_target_properties(daksdp_tool PROPERTIES
        INSTALL_RPATH $ORIGIN/${daksdp_prefix_from_bin}/${CMAKE_INSTALL_LIBDIR})
    install(TARGETS daksdp_tool)
    if(EXISTS ${PROJECT_SOURCE_DIR}/docs/daksdp.1)
        install(FILES docs/daksdp.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
    endif()
endif()
