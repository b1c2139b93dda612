/* Puts a call on hold: reads the last offer of a call from a file and writes the offer that holds it. */
#include "daksdp.h"

#include <stdio.h>

enum { LONGEST_BODY = UINT16_MAX };

/* Reads a file; gives its length, or 0 if it cannot be read or is too long. */
static uint16_t read_file(const char *name, char *text)
{
    FILE *file = fopen(name, "rb");
    if (file == NULL)
        return 0;
    const size_t length = fread(text, 1, LONGEST_BODY, file);
    const int is_whole = fgetc(file) == EOF && !ferror(file);
    fclose(file);
    return is_whole ? (uint16_t)length : 0;
}

/* What was sent both ways goes on being sent, say as music; what was only received stops (RFC 3264, 8.4). */
static uint32_t direction_on_hold(uint32_t direction)
{
    if (direction == SDP_SENDRECV)
        return SDP_SENDONLY;
    return direction == SDP_RECVONLY ? SDP_INACTIVE : direction;
}

static void hold(sdp_container *call)
{
    for (int i = 0; i < call->num_mlines; i++) {
        sdp_media_line *mline = &call->mlines[i];
        mline->direction = direction_on_hold(dak_app_oa_get_chl_direction(mline, call));
        mline->direction_present = 1;
    }
    call->origin_session_version++;
}

int main(int argc, char **argv)
{
    static char received[LONGEST_BODY];
    static char offered[SDP_TEXT_CAPACITY + 1];
    if (argc != 2) {
        fputs("usage: hold FILE\n", stderr);
        return 2;
    }
    const sdp_payload_buffer body = {received, read_file(argv[1], received)};
    sdp_payload_buffer offer = {offered, sizeof offered};
    sdp_container call = {0};
    uint32_t result = dak_app_oa_parse_sdp(&call, &body);
    if (result == SDP_OA_SUCCESS) {
        hold(&call);
        result = dak_app_oa_generate_sdp(&call, &offer);
    }
    dak_app_oa_cleanup_sdp_container(&call);
    if (result != SDP_OA_SUCCESS) {
        fprintf(stderr, "hold: %s: result %u\n", argv[1], (unsigned)result);
        return 1;
    }
    fputs(offered, stdout);
    return 0;
}
