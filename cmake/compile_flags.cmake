# Warnings for everything that is built here.
function(daksdp_warnings target)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow
        $<$<BOOL:${DAKSDP_WERROR}>:-Werror>)
endfunction()

# Flags of code that runs inside a client: no C++ runtime, no surprises in conversions.
function(daksdp_library_flags target)
    daksdp_warnings(${target})
    target_compile_options(${target} PRIVATE
        -Wconversion
        # Clang counts changes of sign among -Wconversion; GCC does not. One rule for both.
        -Wno-sign-conversion
        # Log formats travel through one function, where they are no literals any more.
        -Wformat=2 -Wno-format-nonliteral
        # C headers alone: the library builds where there is no C++ library.
        $<$<COMPILE_LANGUAGE:CXX>:-nostdinc++>
        -fno-exceptions
        -fno-rtti
        -fno-threadsafe-statics
        -fvisibility-inlines-hidden
        # Calls inside the library are bound at link time, so they may be inlined as well.
        -fno-semantic-interposition
        # Nothing is thrown through this library. The smallest build gives up backtraces out of it, too.
        "$<$<CONFIG:MinSizeRel>:-fno-unwind-tables;-fno-asynchronous-unwind-tables;-fomit-frame-pointer>"
        # Clang's -Os, which CMake asks for, still gives size for speed.
        "$<$<AND:$<CXX_COMPILER_ID:Clang>,$<CONFIG:MinSizeRel>>:-Oz>")
    # With debugging information the code of Release, which is made for speed. GCC would call many of the
    # functions that it may inline: most of them are short and have few callers, and the shared library, whose
    # exports all stay, may grow by as much as it has.
    if(NOT DAKSDP_SANITIZE AND NOT DAKSDP_FUZZ)
        target_compile_options(${target} PRIVATE "$<$<CONFIG:RelWithDebInfo>:-O3>"
            "$<$<AND:$<CXX_COMPILER_ID:GNU>,$<CONFIG:Release,RelWithDebInfo>>:--param=max-inline-insns-auto=60;--param=inline-unit-growth=100>")
    endif()
    if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|amd64)$")
        # Texts are short: string instructions take longer to start than the C library to copy one, and its
        # functions are called often enough for the way through the linkage table to be felt.
        target_compile_options(${target} PRIVATE "$<$<NOT:$<CONFIG:MinSizeRel>>:-fno-plt>"
            "$<$<AND:$<CXX_COMPILER_ID:GNU>,$<NOT:$<CONFIG:MinSizeRel>>>:-mstringop-strategy=libcall>")
    endif()
    set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON)
endfunction()
