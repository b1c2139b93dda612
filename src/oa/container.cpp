#include "oa/container.h"

#include "oa/result_code.h"
#include "port/port.h"

#include <string.h>

uint32_t dak_app_oa_cleanup_sdp_container(sdp_container *container)
{
    if (container == nullptr || container->num_mlines == 0 || container->mlines == nullptr)
        return SDP_OA_SUCCESS;
    dak_free(container->mlines);
    container->mlines = nullptr;
    container->num_mlines = 0;
    return SDP_OA_SUCCESS;
}

uint32_t dak_app_oa_duplicate_sdp_container(const sdp_container *source, sdp_container **copy)
{
    if (source == nullptr || copy == nullptr)
        return SDP_OA_NO_RTPMAP;
    *copy = nullptr;
    if (source->num_mlines != 0 && source->mlines == nullptr)
        return SDP_OA_NO_RTPMAP;
    *copy = static_cast<sdp_container *>(dak_malloc(sizeof(sdp_container)));
    if (*copy == nullptr)
        return SDP_OA_NO_MEMORY;
    **copy = *source;
    if (source->num_mlines == 0)
        return SDP_OA_SUCCESS;
    // At most 65535 lines: the product fits where size_t has 32 bits.
    const size_t size = size_t{source->num_mlines} * sizeof(sdp_media_line);
    (*copy)->mlines = static_cast<sdp_media_line *>(dak_malloc(size));
    if ((*copy)->mlines == nullptr)
        return SDP_OA_NO_MEMORY;
    memcpy((*copy)->mlines, source->mlines, size);
    return SDP_OA_SUCCESS;
}
