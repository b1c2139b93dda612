file(GLOB daksdp_tool_sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tools/*.cpp)

if(daksdp_tool_sources AND TARGET dakport)
    find_package(CLI11 REQUIRED)
    find_package(nlohmann_json REQUIRED)
    add_executable(daksdp_tool ${daksdp_tool_sources})
    daksdp_warnings(daksdp_tool)
    target_compile_definitions(daksdp_tool PRIVATE DAKSDP_VERSION="${PROJECT_VERSION}")
    set_target_properties(daksdp_tool PROPERTIES OUTPUT_NAME daksdp)
    target_link_libraries(daksdp_tool PRIVATE daksdp::daksdp daksdp::port CLI11::CLI11
        nlohmann_json::nlohmann_json)
elseif(daksdp_tool_sources)
    message(STATUS "daksdp: the inspector needs DAKSDP_HOST_PORT and is left out")
endif()
