add_library(dakport STATIC ${PROJECT_SOURCE_DIR}/src/port/host/host_port.cpp)
add_library(daksdp::port ALIAS dakport)
daksdp_library_flags(dakport)
set_target_properties(dakport PROPERTIES EXPORT_NAME port)
target_include_directories(dakport PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/daksdp>)
# A program need not call the platform itself, and may name the libraries in any order: ask for
# the archive's one object so that the shared library finds its imports in the program.
target_link_options(dakport INTERFACE LINKER:--undefined=dak_malloc)
