#ifndef DAKSDP_TESTS_BODY_HOSTILE_BODIES_H
#define DAKSDP_TESTS_BODY_HOSTILE_BODIES_H

#include <cstddef>
#include <string>

// Bodies of one kind of line. The tests read them at their greatest length, the benchmark at several.
struct hostile_body {
    const char *name;
    const char *head;         // in front of the lines
    const char *line;         // as often as there is room
    std::size_t sections = 1; // the body's room is divided among so many heads

    std::string text(std::size_t size) const
    {
        std::string body = "v=0\no=- 1 1 IN IP4 192.0.2.1\n";
        for (std::size_t section = 1; section <= sections; ++section)
            for (body += head; body.size() < size * section / sections;)
                body += line;
        body.resize(size);
        return body;
    }
};

#define AMR_LINE "m=audio 9 RTP/AVP 97\na=rtpmap:97 AMR/8000\n"
#define EVRC_LINE "m=audio 9 RTP/AVP 97\na=rtpmap:97 EVRC/8000\n"
#define EVENTS_LINE "m=audio 9 RTP/AVP 97\na=rtpmap:97 telephone-event/8000\n"
#define VIDEO_LINE \
    "m=video 9 RTP/AVPF 34 96 97 98 99 100 101 102 103 104 105 106 107 108 109 110 111 112 113 114\n"
#define MESSAGE_LINE "m=message 9 TCP/MSRP *\n"

inline const hostile_body hostile_bodies[] = {
    {"blanks", "", " "},
    {"empty lines", "", "\r\n"},
    {"one session line", "s=", "x"},
    {"t= lines", "", "t=0 0\n"},
    {"session b= lines", "", "b=AS:1\n"},
    {"session a=x lines", "", "a=x\n"},
    {"a=group lines", "", "a=group:X 1\n"},
    {"numbers of one m= line", "m=audio 9 RTP/AVP", " 0"},
    {"formats of one m= line", "m=audio 9 RTP/AVP", " x"},
    {"a=x lines", AMR_LINE, "a=x\n"},
    {"a=x lines of 20 sections", AMR_LINE, "a=x\n", 20},
    {"a=x lines of 30 sections", AMR_LINE, "a=x\n", 30},
    {"empty lines of 20 sections", AMR_LINE, "\n", 20},
    {"b= lines", AMR_LINE, "b=AS:1\n"},
    {"b= lines without value", AMR_LINE, "b=\n"},
    {"a=rtcp lines", AMR_LINE, "a=rtcp:1 IN IP4 x\n"},
    {"a=rtpmap lines", AMR_LINE, "a=rtpmap:97 AMR/8000\n"},
    {"bad a=rtpmap lines", "m=audio 9 RTP/AVP 97\n", "a=rtpmap:x\n"},
    {"a=fmtp lines", AMR_LINE, "a=fmtp:97 crc=1\n"},
    {"parameters of one a=fmtp line", AMR_LINE "a=fmtp:97 ", "crc=1;"},
    {"semicolons of one a=fmtp line", AMR_LINE "a=fmtp:97 ", ";"},
    {"blanks of one a=fmtp line", EVRC_LINE "a=fmtp:97 ", "hangover=1 "},
    {"modes of one a=fmtp line", AMR_LINE "a=fmtp:97 mode-set=", "0,1,"},
    {"mode lists", AMR_LINE, "a=fmtp:97 mode-set=0,1,2,3,4,5,6,7,0,1,2,3,4,5,6,7\n"},
    {"event lists", EVENTS_LINE, "a=fmtp:97 0,1,2,3,4,5,6,7,8,9,10,11,12,13,14,15\n"},
    {"a=fmtp lines of twenty numbers", VIDEO_LINE "a=rtpmap:114 H264/90000\n",
     "a=fmtp:114 profile-level-id=42C00C\n"},
    {"a=curr lines", AMR_LINE, "a=curr:qos local none\n"},
    {"a=des lines", AMR_LINE, "a=des:qos mandatory local sendrecv\n"},
    {"words of one a=des line", AMR_LINE "a=des:", "qos "},
    {"a=rtcp-fb lines", VIDEO_LINE, "a=rtcp-fb:114 nack\n"},
    {"a=rtcp-fb:* lines", VIDEO_LINE, "a=rtcp-fb:* ccm fir\n"},
    {"numbers of one a=rtcp-fb line", VIDEO_LINE "a=rtcp-fb:34", " 96"},
    {"a=mid lines", AMR_LINE, "a=mid:1\n"},
    {"colons of one attribute", AMR_LINE "a=", "x:"},
    {"a=accept-types lines", MESSAGE_LINE, "a=accept-types:* text/plain\n"},
    {"types of one a=accept-types line", MESSAGE_LINE "a=accept-types:", "* "},
    {"a=path lines", MESSAGE_LINE, "a=path:msrp://a:1/s;tcp\n"},
    {"paths of one a=path line", MESSAGE_LINE "a=path:", "msrp://a:1/s;tcp "},
    {"a=file-selector lines", MESSAGE_LINE, "a=file-selector:size:1 name:\"x\"\n"},
    {"items of one a=file-selector line", MESSAGE_LINE "a=file-selector:", "size:1 "},
};

#undef AMR_LINE
#undef EVRC_LINE
#undef EVENTS_LINE
#undef VIDEO_LINE
#undef MESSAGE_LINE

#endif
