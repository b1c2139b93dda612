# Optimisation by a profile takes two passes over one build directory: "record" builds libraries that write down
# what a training makes them do, "use" compiles them for what was written. scripts/pgo does both.
set(DAKSDP_PROFILE "" CACHE STRING "Optimisation by a profile: empty, \"record\" or \"use\"")
set_property(CACHE DAKSDP_PROFILE PROPERTY STRINGS "" "record" "use")
set(DAKSDP_PROFILE_FILE ${PROJECT_BINARY_DIR}/daksdp.profdata CACHE FILEPATH
    "Clang's merged profile; GCC keeps a part beside each object")

if(NOT DAKSDP_PROFILE MATCHES "^(record|use)?$")
    message(FATAL_ERROR "daksdp: DAKSDP_PROFILE is empty, \"record\" or \"use\"")
endif()
if(DAKSDP_PROFILE STREQUAL "use" AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    file(GLOB_RECURSE daksdp_profiles ${PROJECT_BINARY_DIR}/*.gcda)
    if(NOT daksdp_profiles)
        message(FATAL_ERROR "daksdp: no profile was recorded in ${PROJECT_BINARY_DIR}; scripts/pgo does it")
    endif()
endif()

function(daksdp_profile target)
    if(DAKSDP_PROFILE STREQUAL "record")
        set(flags -fprofile-generate)
        target_link_options(${target} PRIVATE ${flags})
    elseif(DAKSDP_PROFILE STREQUAL "use")
        # What the training does not reach has no profile, and is made small.
        set(flags
            $<$<CXX_COMPILER_ID:GNU>:-fprofile-use>
            $<$<CXX_COMPILER_ID:GNU>:-Wno-missing-profile>
            $<$<CXX_COMPILER_ID:Clang>:-fprofile-use=${DAKSDP_PROFILE_FILE}>
            $<$<CXX_COMPILER_ID:Clang>:-Wno-profile-instr-unprofiled>)
    endif()
    target_compile_options(${target} PRIVATE ${flags})
endfunction()
