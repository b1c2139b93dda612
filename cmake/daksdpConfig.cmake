include(${CMAKE_CURRENT_LIST_DIR}/daksdpTargets.cmake)

# The archives need no C++ runtime, so that a C program which links them stays one.
foreach(library IN ITEMS daksdp::static daksdp::port)
    if(TARGET ${library})
        get_target_property(configurations ${library} IMPORTED_CONFIGURATIONS)
        foreach(configuration IN LISTS configurations)
            set_property(TARGET ${library} PROPERTY IMPORTED_LINK_INTERFACE_LANGUAGES_${configuration} C)
        endforeach()
    endif()
endforeach()
