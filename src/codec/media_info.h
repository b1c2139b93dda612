/**
 * @file
 * The parameter record of one payload format.
 */
#ifndef DAKSDP_CODEC_MEDIA_INFO_H
#define DAKSDP_CODEC_MEDIA_INFO_H

#include <stdint.h>

/** Parameters that a record can hold. */
#define MEDIA_INFO_MAX_SLOTS 25

/**
 * Named fmtp parameters. Each codec kind uses the first so many slots; their order is the order on the a=fmtp
 * line.
 */
typedef struct media_info {
    char param_name[MEDIA_INFO_MAX_SLOTS][200];   /**< name of each slot, fixed by the kind's initialiser */
    char param_value[MEDIA_INFO_MAX_SLOTS][200];  /**< value text of each slot */
    uint32_t param_present[MEDIA_INFO_MAX_SLOTS]; /**< 1 once the slot's value was set */
} media_info;

#endif
