# The training, once for the code of each library.
function(daksdp_training library)
    add_executable(training_${library} ${PROJECT_SOURCE_DIR}/bench/training.cpp ${PROJECT_SOURCE_DIR}/bench/operations.cpp
        ${PROJECT_SOURCE_DIR}/bench/port_bench.cpp ${PROJECT_SOURCE_DIR}/bench/plain_memory.cpp)
    daksdp_warnings(training_${library})
    target_compile_definitions(training_${library} PRIVATE DAKSDP_EXAMPLES="${PROJECT_SOURCE_DIR}/examples")
    target_link_libraries(training_${library} PRIVATE ${library})
    target_link_options(training_${library} PRIVATE -fprofile-generate)
endfunction()

daksdp_training(daksdp)
daksdp_training(daksdp_static)
add_custom_target(training COMMAND training_daksdp COMMAND training_daksdp_static)
