# The fuzz targets. With DAKSDP_FUZZ they are built for libFuzzer, which needs Clang, and everything with its
# sanitizers; with the tests, by any compiler, to replay the inputs that are kept.
set(daksdp_fuzz_targets body validation container fmtp document)
set(daksdp_fuzz_dir ${PROJECT_SOURCE_DIR}/fuzz)

function(daksdp_fuzz_executable target)
    add_executable(${target} ${ARGN} ${daksdp_fuzz_dir}/platform.cpp)
    daksdp_warnings(${target})
    target_link_libraries(${target} PRIVATE daksdp::static)
endfunction()

if(DAKSDP_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        message(FATAL_ERROR "daksdp: DAKSDP_FUZZ needs Clang")
    endif()
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
    foreach(name ${daksdp_fuzz_targets})
        daksdp_fuzz_executable(fuzz_${name} ${daksdp_fuzz_dir}/${name}_fuzzer.cpp)
        target_link_options(fuzz_${name} PRIVATE -fsanitize=fuzzer)
    endforeach()
endif()

if(DAKSDP_BUILD_TESTS)
    foreach(name ${daksdp_fuzz_targets})
        daksdp_fuzz_executable(replay_${name} ${daksdp_fuzz_dir}/${name}_fuzzer.cpp ${daksdp_fuzz_dir}/replay.cpp)
        add_test(NAME fuzz.${name} COMMAND replay_${name} ${daksdp_fuzz_dir}/seeds/${name}
            ${daksdp_fuzz_dir}/regressions/${name})
    endforeach()
endif()
