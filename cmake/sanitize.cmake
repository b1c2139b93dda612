# Sanitizers take effect only where every object of a program has them, hence directory-wide.
if(DAKSDP_SANITIZE)
    add_compile_options(-fsanitize=${DAKSDP_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${DAKSDP_SANITIZE})
endif()

# For scripts/coverage.
if(DAKSDP_COVERAGE)
    add_compile_options(--coverage -fprofile-update=atomic)
    add_link_options(--coverage)
endif()
