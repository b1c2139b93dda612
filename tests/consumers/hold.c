/* A caller of the library: takes a call's offer, puts the call on hold and looks at the text. C11 and C++20. */

#include "daksdp.h"

#include <stdio.h>
#include <string.h>

static char offer[] =
    "v=0\r\no=- 7 1 IN IP4 192.0.2.1\r\ns=-\r\nc=IN IP4 192.0.2.1\r\nt=0 0\r\n"
    "m=audio 49170 RTP/AVP 97\r\na=rtpmap:97 AMR/8000\r\na=fmtp:97 mode-set=0,2\r\na=sendrecv\r\n";

static const char on_hold[] = "v=0\r\no=- 7 2 IN IP4 192.0.2.1\r\ns=-\r\nc=IN IP4 192.0.2.1\r\nt=0 0\r\n"
                              "m=audio 49170 RTP/AVP 97\r\na=rtpmap:97 AMR/8000\r\n"
                              "a=fmtp:97 mode-set=0,2\r\na=sendonly\r\n";

int main(void)
{
    char text[1024] = "";
    sdp_payload_buffer received = {offer, sizeof offer - 1};
    sdp_payload_buffer held = {text, sizeof text};
    sdp_container container;
    uint32_t result = dak_app_oa_parse_sdp(&container, &received);
    if (result == SDP_OA_SUCCESS) {
        container.origin_session_version++;
        container.mlines[0].direction = SDP_SENDONLY;
        result = dak_app_oa_generate_sdp(&container, &held);
    }
    dak_app_oa_cleanup_sdp_container(&container);
    if (result == SDP_OA_SUCCESS && strcmp(text, on_hold) == 0)
        return 0;
    fprintf(stderr, "result %u, text:\n%s", (unsigned)result, text);
    return 1;
}
