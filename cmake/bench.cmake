find_package(benchmark REQUIRED)

# The static library, so that counts have no detours through the dynamic linker.
add_executable(linear_time_bench ${PROJECT_SOURCE_DIR}/bench/linear_time_bench.cpp
    ${PROJECT_SOURCE_DIR}/bench/port_bench.cpp)
daksdp_warnings(linear_time_bench)
target_include_directories(linear_time_bench PRIVATE ${PROJECT_SOURCE_DIR}/tests)
target_link_libraries(linear_time_bench PRIVATE daksdp::static benchmark::benchmark)
