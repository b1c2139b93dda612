include(CMakePackageConfigHelpers)

set(daksdp_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/daksdp)
set(daksdp_installed daksdp daksdp_static)
if(TARGET dakport)
    list(APPEND daksdp_installed dakport)
endif()

install(TARGETS ${daksdp_installed} EXPORT daksdp-targets)
install(EXPORT daksdp-targets NAMESPACE daksdp:: DESTINATION ${daksdp_package_dir} FILE daksdpConfig.cmake)
install(DIRECTORY src/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/daksdp FILES_MATCHING PATTERN "*.h")
if(TARGET daksdp_tool)
    install(TARGETS daksdp_tool)
endif()

write_basic_package_version_file(${PROJECT_BINARY_DIR}/daksdpConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/daksdpConfigVersion.cmake DESTINATION ${daksdp_package_dir})
