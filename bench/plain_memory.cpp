// Memory of the platform that benchmarks run on: the C library's, as it is.

#include <cstdlib>

#include "port/port.h"

extern "C" {

void *dak_malloc(size_t size) { return std::malloc(size); }

void dak_free(void *block) { std::free(block); }

} // extern "C"
