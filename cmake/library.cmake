set(daksdp_folders util codec attr sdp oa)
list(TRANSFORM daksdp_folders REPLACE "(.+)" "${PROJECT_SOURCE_DIR}/src/\\1/*.cpp" OUTPUT_VARIABLE daksdp_patterns)
file(GLOB_RECURSE daksdp_sources CONFIGURE_DEPENDS ${daksdp_patterns})

# What the static library holds, and the shared one where it is not optimised as a whole.
add_library(daksdp_objects OBJECT ${daksdp_sources})
daksdp_library_flags(daksdp_objects)
daksdp_profile(daksdp_objects)
target_include_directories(daksdp_objects PRIVATE ${PROJECT_SOURCE_DIR}/src)

# A released shared library is optimised as a whole, which takes objects that no other compiler can read.
if(CMAKE_BUILD_TYPE MATCHES "^(Release|RelWithDebInfo|MinSizeRel)$" AND NOT DAKSDP_SANITIZE AND NOT DAKSDP_FUZZ)
    include(CheckIPOSupported)
    check_ipo_supported(RESULT daksdp_is_whole LANGUAGES CXX)
endif()

if(daksdp_is_whole)
    add_library(daksdp SHARED ${daksdp_sources})
    daksdp_library_flags(daksdp)
    daksdp_profile(daksdp)
    set_target_properties(daksdp PROPERTIES INTERPROCEDURAL_OPTIMIZATION ON)
    # In one piece, which is small enough for that: code that is split is inlined less.
    target_link_options(daksdp PRIVATE $<$<C_COMPILER_ID:GNU>:-flto-partition=one>)
    # Addresses of this model reach a megabyte, which is more than there is. Not every linker of Clang's knows it.
    if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(aarch64|arm64)" AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(daksdp PRIVATE -mcmodel=tiny)
        target_link_options(daksdp PRIVATE -mcmodel=tiny)
    endif()
else()
    add_library(daksdp SHARED $<TARGET_OBJECTS:daksdp_objects>)
endif()
add_library(daksdp::daksdp ALIAS daksdp)
add_library(daksdp_static STATIC $<TARGET_OBJECTS:daksdp_objects>)
add_library(daksdp::static ALIAS daksdp_static)
set_target_properties(daksdp_static PROPERTIES OUTPUT_NAME daksdp EXPORT_NAME static)

foreach(library daksdp daksdp_static)
    target_include_directories(${library} PUBLIC
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/daksdp>)
    set_target_properties(${library} PROPERTIES LINKER_LANGUAGE C)
endforeach()

# CMake would hand libstdc++ to every C link that holds C++ objects. Without it, a call into the
# C++ runtime stays an undefined symbol for the tests to find.
set(CMAKE_CXX_IMPLICIT_LINK_LIBRARIES "")

set(daksdp_map ${PROJECT_SOURCE_DIR}/src/daksdp.map)
set_target_properties(daksdp PROPERTIES
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}
    LINK_DEPENDS ${daksdp_map})
# No -z defs: the platform's symbols stay undefined until a program or the platform brings them.
# -z now closes the tables of pointers against writing once they are relocated. Nothing has to be started: the
# smallest library goes without the compiler's code for that.
target_link_options(daksdp PRIVATE
    LINKER:--version-script=${daksdp_map}
    LINKER:-Bsymbolic-functions
    LINKER:-z,relro
    LINKER:-z,now
    $<$<CONFIG:MinSizeRel>:-nostartfiles>)

# Phones have kernels with pages of 16 KB, and of 4 KB, which can map the same segments.
if(ANDROID OR CMAKE_SYSTEM_PROCESSOR MATCHES "^(aarch64|arm64)")
    set(daksdp_has_large_pages ON)
    target_link_options(daksdp PRIVATE LINKER:-z,max-page-size=16384 LINKER:-z,common-page-size=16384)
endif()
