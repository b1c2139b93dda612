#include "fmtp_case.h"

#include <algorithm>
#include <cstdio>
#include <map>

namespace fmtp_case {

namespace {

// Short name and text; % is the value, $ the end. A line that begins with "&" continues the one above.
const char *const log_texts = R"(
int         dak_app_sdp_set_int_inmline:Invalid                             edia info\n$
string      dak_app_sdp_set_string_inmline:Invalid media
&                                                       info\n$
bool        dak_app_sdp_set_bool_inmline:Invalid media
&                                                         value\n$
unsupported Unsupported parameter $
too-long    Src str length exceeded dst str 200 \n$
over        src str len exceeded dst str len% \n$
enc         dak_app_sdp_encode_%:No fmtp/mline\n$
dec-amr     dak_app_sdp_decode_evrc:No fmtp/parsed media\n$
dec         dak_app_sdp_decode_%:No fmtp/parsed                                                    media\n$
dec-video   dak_app_sdp_decode_%:No                                 fmtp/parsed_media\n$
enc-event   dak_app_sdp_encode_tel_event :                                Incorrect params $
dec-event   dak_app_sdp_decode_tel_event:                                No fmtp/parsed_media\n$
null-tag    dak_app_sdp_encode_dtmf_tel_event_tag :                                Bad Arguments( $
null-modes  dak_app_sdp_decode_evrc_mode: Null params\n$
null-list   dak_app_sdp_parse_h263_custom_param:Null params\n$
bad-evrc    dak_app_sdp_encode_evrc_mode:Bad buffer\n$
bad-amr     dak_app_sdp_encode_amr_mode_map:Bad buffer\n$
no-pt       dak_app_sdp_find_medentry_by_pt:                             No match found for Mime\n$
no-mime     dak_app_sdp_find_medentry_by_mime:                             No match found for Mime\n$
null-mime   dak_app_sdp_find_medentry_by_mime:                             Wrong Mime params\n$
octet       dak_app_sdp_decode_amr:Invalid octet                                             align: %\n$
change      dak_app_sdp_decode_amr:Invalid mode change                 period : % \n$
neighbour   dak_app_sdp_decode_amr:Invalid mode change                             neighbour: % \n$
crc         dak_app_sdp_decode_amr:Invalid CRC                                  value: % \n$
robust      dak_app_sdp_decode_amr:Invalid robust                             sorting : %\n$
interleave  dak_app_sdp_decode_amr:Invalid Interleaving                             value: %\n$
max-red     dak_app_sdp_decode_amr:Invalid                               max-red: %\n$
channels    dak_app_sdp_decode_amr:Invalid                               Channels: %\n$
amr-mode    dak_app_oa_get_amr_mode:Invalid AMR                                               mode :%\n$
no-amr      dak_app_sdp_decode_amr:Invalid AMR mode\n$
silence     dak_app_sdp_decode_dtx:                          Invalid value silencesupp % \n$
no-silence  dak_app_sdp_decode_dtx:                            Failed in reading silencesupp  \n$
dtx         dak_app_sdp_decode_dtx:                           Invalid value % \n$
no-dtx      dak_app_sdp_decode_dtx:                           Failed in reading %  \n$
evrc-mode   dak_app_sdp_decode_evrc_mode:Invalid EVRC                                             mode :%\n$
evrcb       Invalid EVRCB mode %$
evrcwb      Invalid EVRCWB mode %$
rate        Invalid evrcfixedrate$
il-evrc     dak_app_sdp_encode_evrc:Invalid Maxinterleave                                    info\n$
il-evrcb    dak_app_sdp_encode_evrcb:Invalid Maxinterleave                                    info\n$
il-evrcwb   dak_app_sdp_encode_evrcwb:Invalid Maxinterleave                                   info\n$
no-memory   dak_app_sdp_encode_mp4_es:Malloc failed at                                     config string \n$
submodes    dak_app_sdp_encode_h263plus_params: Length              not sufficient to pack submodes $
backwards   dak_app_oa_get_dtmf_tel_event:Invalid DTMF..
&                                               events\n$
no-events   dak_app_sdp_decode_tel_event:                                Failed in DTMF event\n$
kind        dak_app_sdp_encode_dtmf_tel_event_tag :                               Invalid event range: % $
)";

columns split(const std::string &text, char delimiter)
{
    columns parts;
    for (std::size_t start = 0, end = 0; end != text.npos; start = end + 1) {
        end = text.find(delimiter, start);
        std::string part = text.substr(start, end - start);
        part.erase(0, part.find_first_not_of(' '));
        part.erase(part.find_last_not_of(' ') + 1);
        parts.push_back(part);
    }
    return parts;
}

std::string log_text(const std::string &name, const std::string &value)
{
    std::string all = log_texts;
    for (std::size_t at = all.find("\n&"); at != all.npos; at = all.find("\n&"))
        all.erase(at, 2);
    const std::size_t line = all.find("\n" + name + " ");
    if (line == all.npos)
        return "(no text " + name + ")";
    std::string text = all.substr(all.find_first_not_of(' ', line + name.size() + 1));
    text.erase(text.find('$'));
    if (const std::size_t at = text.find("\\n"); at != text.npos)
        text.replace(at, 2, "\n");
    if (const std::size_t at = text.find('%'); at != text.npos)
        text.replace(at, 1, value);
    return text;
}

// Sets the fields of a block that are given by name, and shows all.
struct field_access {
    std::map<std::string, std::pair<unsigned long, std::string>> given;
    std::string shown;

    template <class Flag, class Get, class Set>
    void field(const std::string &name, Flag *flag, const std::string &clear, Get get, Set set)
    {
        if (const auto found = given.find(name); found != given.end()) {
            if (flag != nullptr)
                *flag = static_cast<Flag>(found->second.first);
            set(found->second.second);
            given.erase(found);
        }
        const std::string value = get();
        const unsigned long state = flag == nullptr ? value != clear : *flag;
        if (state != 0 || value != clear)
            shown += name + (state == 1 ? "" : "[" + std::to_string(state) + "]") + "=" + value + " ";
    }
    template <class Flag, class Number> void number(const char *name, Flag *flag, Number &value)
    {
        field(
            name, flag, "0", [&] { return std::to_string(value); },
            [&](const std::string &text) { value = static_cast<Number>(std::stoll(text)); });
    }
    template <std::size_t size> void text(const char *name, uint8_t &flag, char (&value)[size])
    {
        field(
            name, &flag, "", [&] { return std::string(value, strnlen(value, size)); },
            [&](const std::string &text) { text.copy(value, size); });
    }
};

// Entries as kind:first-last, without the clear ones behind the last.
std::string shown_events(const sdp_tel_event_entry *events)
{
    std::string text, blank;
    for (int i = 0; i < SDP_TEL_EVENT_ENTRIES; ++i) {
        const auto &[kind, first, last] = events[i];
        blank += (i > 0 ? "," : "") + std::to_string(kind) + ":" + std::to_string(first) + "-" +
                 std::to_string(last);
        if (kind != 0 || first != 0 || last != 0)
            text = blank;
    }
    return text;
}

void set_events(sdp_tel_event_entry *events, const std::string &text)
{
    for (const std::string &part : split(text, ',')) {
        if (part.empty())
            continue;
        EXPECT_EQ(sscanf(part.c_str(), "%u:%hu-%hu", &events->kind, &events->first, &events->last), 3)
            << part;
        ++events;
    }
}

// clang-format off
#define VALUE(name) \
    if constexpr (requires { b.name; }) access.number(#name, static_cast<uint8_t *>(nullptr), b.name);
#define FLAGGED(name) if constexpr (requires { b.name; }) access.number(#name, &b.name##_present, b.name);
#define TEXT(name) access.text(#name, b.name##_present, b.name); VALUE(name##_len)

template <class Block> void visit(Block &b, field_access &access)
{
    if constexpr (requires { b.fmtp_present; }) {
        auto *frame = reinterpret_cast<uint8_t *>(&b);
        access.field("frame", frame, "", [=] { return std::to_string(frame[1]); },
                     [=](const std::string &marker) { frame[1] = static_cast<uint8_t>(std::stoul(marker)); });
        if (access.shown == "frame=1 ")
            access.shown.clear();
    }
    FLAGGED(octet_align) FLAGGED(mode_set) FLAGGED(mode_change_period) FLAGGED(mode_change_capability)
    FLAGGED(mode_change_neighbor) FLAGGED(crc) FLAGGED(robust_sorting) FLAGGED(interleaving) FLAGGED(channels)
    FLAGGED(max_red) FLAGGED(maxinterleave) FLAGGED(fixedrate)
    FLAGGED(silencesupp) FLAGGED(dtxmax) FLAGGED(dtxmin) FLAGGED(hangover)
    if constexpr (requires { b.dtx; }) visit(b.dtx, access);
    FLAGGED(mode_set_recv) FLAGGED(sendmode) FLAGGED(recvmode)
    if constexpr (requires { b.sar_supported; }) {
        TEXT(profile_level_id) FLAGGED(packetization_mode) FLAGGED(sprop_deint_buf_req)
        FLAGGED(max_rcmd_nalu_size) FLAGGED(sar_understood) FLAGGED(sar_supported)
        FLAGGED(in_band_parameter_sets) FLAGGED(parameter_add) TEXT(sprop_parameter_sets)
        TEXT(sprop_level_parameter_sets) FLAGGED(use_level_src_parameter_sets)
    }
    if constexpr (requires { b.config; }) {
        FLAGGED(profile_level_id) VALUE(config_len)
        const auto octets = [&] {
            std::string text;
            for (int i = 0; i < b.config_len && i < 120; ++i)
                text += {"0123456789abcdef"[b.config[i] >> 4], "0123456789abcdef"[b.config[i] & 15]};
            return text;
        };
        access.field("config", &b.config_present, "", octets, [](auto &) {});
    }
    FLAGGED(profile) FLAGGED(level) VALUE(interlace)
    FLAGGED(sqcif) FLAGGED(qcif) FLAGGED(cif) FLAGGED(cif4) FLAGGED(cif16)
    VALUE(custom_x) VALUE(custom_y) VALUE(custom_mpi) VALUE(custom_present)
    VALUE(f) VALUE(i) VALUE(j) VALUE(t) FLAGGED(k) FLAGGED(n)
    if constexpr (requires { b.p_count; }) {
        const auto modes = [&] {
            std::string text;
            for (uint32_t i = 0; i < b.p_count && i < 4; ++i)
                text += (i > 0 ? "," : "") + std::to_string(b.p_modes[i]);
            return text;
        };
        access.field("p", &b.p_count, "", modes, [&](const std::string &text) {
            for (uint32_t i = 0; const std::string &mode : split(text, ','))
                b.p_modes[i++] = static_cast<uint32_t>(std::stoul(mode));
        });
        FLAGGED(par)
        access.text("cpcf", b.cpcf_present, b.cpcf);
        FLAGGED(bpp)
        VALUE(hrd)
    }
    if constexpr (requires { b.params; }) visit(b.params, access);
    if constexpr (requires { b.events; })
        access.field("events", &b.events_present, "", [&] { return shown_events(b.events); },
                     [&](const std::string &text) { set_events(b.events, text); });
}

struct codec_kind {
    std::size_t size;
    void (*visit)(char *block, field_access &access);
};
template <class Block>
constexpr codec_kind kind = {
    sizeof(Block), [](char *b, field_access &access) { visit(*reinterpret_cast<Block *>(b), access); }};

const std::map<std::string, codec_kind> kinds = {
    {"AMR", kind<sdp_amr_params>}, {"AMR-WB", kind<sdp_amr_params>}, {"G722_2", kind<sdp_amr_params>},
    {"EVRC", kind<sdp_evrc_params>}, {"EVRC0", kind<sdp_evrc0_params>}, {"EVRC1", kind<sdp_evrc1_params>},
    {"EVRCB", kind<sdp_evrcb_params>}, {"EVRCB0", kind<sdp_evrcb0_params>},
    {"EVRCB1", kind<sdp_evrc1_params>}, {"EVRCWB", kind<sdp_evrcb_params>},
    {"EVRCWB0", kind<sdp_evrcb0_params>}, {"EVRCWB1", kind<sdp_evrcwb1_params>},
    {"H264", kind<sdp_h264_params>}, {"MP4V-ES", kind<sdp_mp4_es_params>},
    {"H263-1998", kind<sdp_h263_1998_params>}, {"H263-2000", kind<sdp_h263_2000_params>},
    {"telephone-event", kind<sdp_tel_event_params>},
};
// clang-format on

} // namespace

std::vector<columns> table(const std::string &text)
{
    std::string whole = text;
    for (std::size_t at = whole.find('{'); at != whole.npos; at = whole.find('{', at)) {
        const std::size_t end = whole.find('}', at), colon = whole.rfind(':', end);
        std::string repeated;
        for (int count = std::stoi(whole.substr(colon + 1)); count > 0; --count)
            repeated += whole.substr(at + 1, colon - at - 1);
        whole.replace(at, end + 1 - at, repeated);
    }
    std::vector<columns> rows;
    std::string row;
    for (const std::string &line : split(whole + "\nend", '\n')) {
        const bool continues = line.starts_with('|') || line.starts_with(';') || line.starts_with('&');
        if (!continues && !row.empty())
            rows.push_back(split(row, '|'));
        row = !continues ? line : line[0] == '&' ? row + line.substr(1) : row + line;
    }
    for (columns &each : rows)
        each.resize(std::max<std::size_t>(each.size(), 6), "=");
    return rows;
}

std::string outcome(uint32_t code, const std::string &left, const std::string &log_names, bool reported)
{
    std::string text = std::to_string(code) + " [" + left + "] ";
    for (const std::string &name : split(log_names, ',')) {
        const std::size_t colon = std::min(name.find(':'), name.size());
        if (!name.empty())
            text += log_text(name.substr(0, colon), name.substr(std::min(colon + 1, name.size()))) + "|";
    }
    return text + (reported ? "!" : "");
}

std::string logged_since(std::size_t log_lines, std::size_t reports)
{
    std::string text;
    for (; log_lines < standin::logs().size(); ++log_lines) {
        const standin::log_line &line = standin::logs()[log_lines];
        EXPECT_TRUE(line.priority == 6 && !line.tagged) << line;
        text += line.text + "|";
    }
    return text + (standin::assert_count() > reports ? "!" : "");
}

section::section(const std::string &codec, const std::string &fmtp)
{
    const uint32_t number = 97;
    md_ = init_media_description("audio", 49170, 1, "RTP/AVP", &number, 1);
    EXPECT_EQ(add_media_codec_to_media_description(md_, 97, codec.c_str(), 8000, 1), 0) << codec;
    const heap_c_text line("a=fmtp:97 " + fmtp);
    if (fmtp.ends_with('=')) {
        EXPECT_EQ(set_media_value(md_, 0, fmtp.substr(0, fmtp.size() - 1).c_str(), ""), 1) << fmtp;
    } else if (!fmtp.empty()) {
        EXPECT_EQ(parse_a_equal_fmtp_line(md_, line.begin(), line.end()), 1) << fmtp;
    }
}

std::string section::fmtp() const
{
    sdp_lib_context *context = init_sdp_lib();
    const bool is_written = dak_sdp_encode_media_codec(context, md_, 0) == 1;
    std::string text = is_written ? get_sdp_text(context) : "a=rtpmap\r\na=fmtp:97 (refused)\r\n";
    clean_sdp_lib(context);
    text.erase(0, text.find("\r\n") + 2);
    EXPECT_TRUE(text.empty() || (text.starts_with("a=fmtp:97 ") && text.ends_with("\r\n"))) << text;
    return text == "a=fmtp:97 \r\n" ? "(empty)" : text.empty() ? text : text.substr(10, text.size() - 12);
}

block::block(const std::string &codec, const std::string &fields)
    : codec_(codec), size_(kinds.at(codec).size), bytes_(new char[size_]())
{
    field_access access;
    access.given["frame"] = {1, "1"};
    for (const std::string &field : split(fields, ' ')) {
        if (field.empty())
            continue;
        const std::size_t equals = field.find('='), bracket = std::min(field.find('['), equals);
        const unsigned long flag = bracket < equals ? std::stoul(field.substr(bracket + 1)) : 1;
        access.given[field.substr(0, bracket)] = {flag, field.substr(equals + 1)};
    }
    kinds.at(codec).visit(bytes_.get(), access);
    EXPECT_TRUE(access.given.empty()) << codec << " has no " << access.given.begin()->first;
}

std::string block::shown() const
{
    field_access access;
    kinds.at(codec_).visit(bytes_.get(), access);
    return access.shown.substr(0, access.shown.empty() ? 0 : access.shown.size() - 1);
}

void expect_decoded(const std::string &codec, const std::string &rows)
{
    const sdp_mime_entry *entry = dak_app_sdp_find_medentry_by_mime(codec.c_str());
    for (const columns &row : table(rows)) {
        const std::size_t arrow = row[1].find(" >");
        const bool has_before = arrow != row[1].npos;
        const std::string line = has_before ? row[1].substr(std::min(arrow + 3, row[1].size())) : row[1];
        const block b = has_before ? block(codec, row[1].substr(0, arrow)) : block(codec);
        const section in(codec, line), out(codec);
        const auto code = row[5] == "=" ? 0 : static_cast<uint32_t>(std::stoul(row[5]));
        SCOPED_TRACE(codec + ": " + row[0]);
        EXPECT_EQ(see([&] { return entry->decode(in, 0, b); }, [&] { return b.shown(); }),
                  outcome(code, row[2], row[4] == "=" ? "" : row[4]));
        if (code != 0)
            continue;
        EXPECT_EQ(see([&] { return entry->encode(out, 0, b); }, [&] { return out.fmtp(); }),
                  outcome(0, row[3] == "=" ? line : row[3]));
    }
}

void expect_encoded(const std::string &codec, const std::string &rows)
{
    for (const columns &row : table(rows)) {
        const block b(codec, row[1]);
        const section out(row[0].ends_with("G729") ? "G729" : codec);
        const auto code = row[4] == "=" ? 0 : static_cast<uint32_t>(std::stoul(row[4]));
        EXPECT_EQ(see([&] { return dak_app_sdp_find_medentry_by_mime(codec.c_str())->encode(out, 0, b); },
                      [&] { return out.fmtp(); }),
                  outcome(code, row[2], row[3] == "=" ? "" : row[3], row[4].ends_with('!')))
            << codec << ": " << row[0];
    }
}

} // namespace fmtp_case
