// Containers of any content: a body, a NUL, then changes of fields to anything. Only the pointers hold.
#include "container.h"

#include <bit>
#include <span>
#include <utility>

extern "C" std::size_t LLVMFuzzerMutate(uint8_t *data, std::size_t size, std::size_t most);

namespace {

struct field {
    std::size_t offset;
    std::size_t size;
};

#define F(name) \
    field { offsetof(RECORD, name), sizeof(RECORD::name) }

#define RECORD sdp_container
constexpr auto session_fields = table_of(
    F(version), F(origin_present), F(origin_username), F(origin_session_id), F(origin_session_version),
    F(origin_address.addr_type), F(origin_address.net_type), F(origin_address.address),
    F(session_name_present), F(session_name), F(connection_present), F(connection.addr_type),
    F(connection.net_type), F(connection.address), F(bandwidth), F(info_present), F(info), F(time_present),
    F(start_time), F(stop_time), F(direction_present), F(direction), F(num_groups), F(groups));
#undef RECORD

#define RECORD sdp_media_line
constexpr auto line_fields = table_of(
    F(valid), F(media_type), F(port), F(num_ports), F(rtcp_port), F(rtcp_address), F(rtcp_address.address),
    F(transport), F(connection_present), F(connection.addr_type), F(connection.net_type),
    F(connection.address), F(bandwidth), F(num_formats), F(payload_numbers), F(ptime_present), F(ptime),
    F(maxptime_present), F(maxptime), F(direction_present), F(direction), F(framerate_present), F(framerate),
    F(maxprate_present), F(maxprate), F(precond_present), F(num_preconds), F(preconds), F(rtcp_fb_present),
    F(num_rtcp_fb), F(rtcp_fb), F(rtcp_fb[0].fb_param), F(mid_present), F(mid), F(setup_present), F(setup),
    F(conn_status_present), F(conn_status), F(msg_attr_present), F(accept_types), F(accept_wrapped_types),
    F(path.present), F(path.scheme), F(path.user), F(path.host), F(path.host_is_ipv6), F(path.port),
    F(path.session_id), F(path.transport), F(file_attr_present), F(num_file_selectors),
    F(file_selectors[0].name), F(file_selectors[0].type), F(file_selectors[0].size),
    F(file_selectors[0].hash_alg), F(file_selectors[0].hash_len), F(file_selectors[0].hash),
    F(file_selectors[0].empty), F(file_transfer_id), F(file_disposition), F(file_date.creation),
    F(file_date.modification), F(file_date.read), F(file_icon), F(file_range), F(max_size));
#undef RECORD

#define RECORD sdp_payload_format
constexpr auto format_fields =
    table_of(F(present), F(payload_byte), F(has_rtpmap), F(codec_id), F(clock_rate_khz), F(multi_channel),
             F(num_channels), F(params), F(params), F(rtcp_fb_present), F(num_rtcp_fb), F(rtcp_fb),
             F(rtcp_fb[0].fb_param));
#undef RECORD

// A number somewhere in a field, or a text over it, which may leave no room for the terminator.
void change_field(void *record, std::span<const field> fields, input &in)
{
    const field &chosen = fields[in.below(static_cast<uint32_t>(fields.size()))];
    char *start = static_cast<char *>(record) + chosen.offset;
    const uint32_t form = in.byte();
    if ((form & 3) == 3) {
        const std::string text = in.text();
        text.copy(start, chosen.size);
        return;
    }
    const std::size_t width = std::min(chosen.size, std::size_t{1} << (form & 3));
    const std::size_t at = in.below(static_cast<uint32_t>(chosen.size / width)) * width;
    const uint32_t number = in.number();
    for (std::size_t i = 0; i < width; ++i) // little-endian or not, small numbers are to stay small
        start[at + i] =
            static_cast<char>(number >> 8 * (std::endian::native == std::endian::little ? i : width - 1 - i));
}

void change(sdp_container &made, input &in)
{
    const uint32_t place = in.byte();
    if (place < 64 || made.mlines == nullptr)
        return change_field(&made, session_fields, in);
    sdp_media_line &mline = made.mlines[place % made.num_mlines];
    if (place < 176)
        return change_field(&mline, line_fields, in);
    const uint32_t formats = std::clamp<uint32_t>(mline.num_formats, 1, SDP_MAX_FORMATS);
    change_field(&mline.formats[in.below(formats)], format_fields, in);
}

// Takes the session and some lines of the body, empty ones where it has none. The count of lines holds, or
// there are none.
void start_from(const sdp_container &body, sdp_container &made, input &in)
{
    made = body;
    const uint32_t form = in.byte();
    made.mlines = nullptr;
    if (form >= 64)
        made.num_mlines = static_cast<uint16_t>(in.below(form >= 240 ? 35 : 5));
    if (form % 16 == 15 || made.num_mlines == 0)
        return;
    made.mlines = static_cast<sdp_media_line *>(dak_malloc(made.num_mlines * sizeof(sdp_media_line)));
    for (uint32_t i = 0; i < made.num_mlines; ++i)
        made.mlines[i] = body.mlines != nullptr ? body.mlines[i % body.num_mlines] : sdp_media_line{};
}

void use_lines(const sdp_container &made, const sdp_media_line &other, uint32_t choice)
{
    uint16_t first[255], second[255];
    uint8_t count = 0;
    const uint32_t format = choice % (SDP_MAX_FORMATS + 2), codec = choice >> 8 & 127;
    for (uint32_t i = 0; made.mlines != nullptr && i < made.num_mlines; ++i) {
        const sdp_media_line &mline = made.mlines[i];
        const uint32_t direction = dak_app_oa_get_chl_direction(&mline, &made);
        dak_app_oa_find_matching_plds(&mline, &other, first, second, choice & 1);
        dak_app_oa_find_all_matching_plds(&other, &mline, first, second, choice & 1);
        dak_app_oa_validate_fmtp(codec, direction, format, &mline);
        dak_app_oa_validate_ans_fmtp(&mline, &other, codec, direction, SDP_SENDRECV, format, choice >> 16);
        dak_app_oa_form_dtmf_evt_list(&mline.formats[codec % SDP_MAX_FORMATS].params.tel_event, first,
                                      &count);
    }
}

void validate(const sdp_container &made, const sdp_container &body)
{
    dak_app_oa_print_sdp_container(&made);
    dak_app_oa_validate_initial_offer(&made);
    dak_app_oa_check_preconds(&made);
    for (const auto &[one, other] : {std::pair(&made, &body), std::pair(&body, &made)}) {
        dak_app_oa_validate_modified_sdp(one, other);
        dak_app_oa_validate_answer(one, other);
        for (uint32_t i = 0; i <= one->num_mlines; ++i)
            dak_app_oa_validate_ans_mline(one, other, i);
    }
}

void duplicate(const sdp_container &made)
{
    sdp_container *copy = nullptr;
    const uint32_t result = dak_app_oa_duplicate_sdp_container(&made, &copy);
    FUZZ_EXPECT(result != SDP_OA_SUCCESS || copy->num_mlines == made.num_mlines);
    dak_app_oa_cleanup_sdp_container(copy);
    dak_free(copy);
}

// A builder that generation leaves out.
void encode_message_attribute(const sdp_container &made)
{
    sdp_lib_context *context = init_sdp_lib();
    dak_app_oa_encode_message_attr(context, &made);
    clean_sdp_lib(context);
}

void generate_and_read(sdp_container &made, uint16_t capacity)
{
    std::string text;
    held_container again;
    if (generate(made, capacity, text) == SDP_OA_SUCCESS)
        parse(again, text);
}

// The body of one input is mostly that of the next as well.
const sdp_container &parsed(std::string_view text)
{
    static std::string last;
    static std::unique_ptr<held_container> body;
    if (body == nullptr || text != last) {
        last = text;
        body = std::make_unique<held_container>();
        parse(*body, last);
    }
    return *body;
}

} // namespace

// Mostly changes the changes: they are few bytes behind a long body.
extern "C" std::size_t LLVMFuzzerCustomMutator(uint8_t *data, std::size_t size, std::size_t most,
                                               unsigned seed)
{
    const std::size_t body = strnlen(reinterpret_cast<char *>(data), size);
    const std::size_t kept = seed % 8 != 0 && body < size ? body + 1 : 0;
    return kept + LLVMFuzzerMutate(data + kept, size - kept, most - kept);
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    const std::string_view all(reinterpret_cast<const char *>(data), size),
        text = all.substr(0, all.find('\0'));
    const sdp_container &body = parsed(text);
    const platform::run run;
    input in(data + text.size(), size - text.size());
    in.byte();
    held_container made;
    start_from(body, made, in);
    const auto capacity = static_cast<uint16_t>(in.byte() < 224 ? 4096 : in.number());
    const uint32_t choice = in.word();
    while (in.left() > 0)
        change(made, in);
    const std::string before = bytes_of(made);
    validate(made, body);
    use_lines(made, body.mlines != nullptr ? body.mlines[0] : sdp_media_line{}, choice);
    FUZZ_EXPECT(bytes_of(made) == before);
    const std::size_t taken = platform::allocations();
    generate_and_read(made, capacity);
    const std::size_t generating = platform::allocations() - taken;
    platform::with_a_failure(choice, generating, [&] { generate_and_read(made, capacity); });
    platform::with_a_failure(choice, 2, [&] { duplicate(made); });
    duplicate(made);
    encode_message_attribute(made);
    return 0;
}
