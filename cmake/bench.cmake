find_package(benchmark REQUIRED)
find_package(PkgConfig)

# The shared library, which is what clients load, and optimised as a whole.
function(daksdp_bench name)
    list(TRANSFORM ARGN PREPEND ${PROJECT_SOURCE_DIR}/bench/)
    add_executable(${name} ${ARGN} ${PROJECT_SOURCE_DIR}/bench/port_bench.cpp)
    daksdp_warnings(${name})
    target_compile_definitions(${name} PRIVATE DAKSDP_EXAMPLES="${PROJECT_SOURCE_DIR}/examples")
    target_link_libraries(${name} PRIVATE daksdp::daksdp)
    # No symbol is looked up during a call: that takes time and stack of its own.
    target_link_options(${name} PRIVATE LINKER:-z,now)
endfunction()

daksdp_bench(linear_time_bench linear_time_bench.cpp plain_memory.cpp)
target_include_directories(linear_time_bench PRIVATE ${PROJECT_SOURCE_DIR}/tests)
target_link_libraries(linear_time_bench PRIVATE benchmark::benchmark)

daksdp_bench(speed_bench speed_bench.cpp operations.cpp peer_operations.cpp plain_memory.cpp)
target_link_libraries(speed_bench PRIVATE benchmark::benchmark ${CMAKE_DL_LIBS})

daksdp_bench(heap_bench heap_bench.cpp operations.cpp counted_memory.cpp)

daksdp_bench(stack_bench stack_bench.cpp operations.cpp plain_memory.cpp)

# Other SDP libraries, each where it is installed.
function(daksdp_peer name module)
    if(PKG_CONFIG_FOUND)
        pkg_check_modules(peer_${name} QUIET IMPORTED_TARGET ${module})
    endif()
    if(NOT peer_${name}_FOUND)
        message(STATUS "daksdp: no comparison with ${module}, which is not installed")
        return()
    endif()
    add_library(peer_${name} MODULE ${PROJECT_SOURCE_DIR}/bench/peer_${name}.cpp)
    daksdp_warnings(peer_${name})
    set_target_properties(peer_${name} PROPERTIES PREFIX "")
    target_compile_definitions(peer_${name} PRIVATE PEER_VERSION="${peer_${name}_VERSION}")
    target_link_libraries(peer_${name} PRIVATE PkgConfig::peer_${name})
endfunction()

daksdp_peer(gstreamer gstreamer-sdp-1.0)
daksdp_peer(osip libosip2)
daksdp_peer(sofia sofia-sip-ua)
