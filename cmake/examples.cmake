# The C callers among the examples. They are built and run along with the tests.
if(TARGET dakport)
    add_executable(daksdp_hold ${PROJECT_SOURCE_DIR}/examples/hold.c)
    daksdp_warnings(daksdp_hold)
    set_target_properties(daksdp_hold PROPERTIES OUTPUT_NAME hold)
    target_link_libraries(daksdp_hold PRIVATE daksdp::daksdp daksdp::port)
    add_test(NAME examples.hold COMMAND bash ${PROJECT_SOURCE_DIR}/tests/examples/hold_test.sh
        ${PROJECT_SOURCE_DIR}/examples ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:daksdp_hold>)
endif()
