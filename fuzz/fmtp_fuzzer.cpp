// Codec parameters. The first byte chooses the codec, the second whether what follows is a parameter block or
// the values of a=fmtp lines, one a line.
#include "daksdp.h"
#include "input.h"
#include "platform.h"

#include <sstream>

namespace {

struct block_row {
    dak_app_sdp_codec_fn encode;
    std::size_t size;
};
constexpr auto blocks = table_of(block_row{dak_app_sdp_encode_amr, sizeof(sdp_amr_params)},
                                 block_row{dak_app_sdp_encode_evrc, sizeof(sdp_evrc_params)},
                                 block_row{dak_app_sdp_encode_evrc0, sizeof(sdp_evrc0_params)},
                                 block_row{dak_app_sdp_encode_evrc1, sizeof(sdp_evrc1_params)},
                                 block_row{dak_app_sdp_encode_evrcb, sizeof(sdp_evrcb_params)},
                                 block_row{dak_app_sdp_encode_evrcb0, sizeof(sdp_evrcb0_params)},
                                 block_row{dak_app_sdp_encode_evrcb1, sizeof(sdp_evrc1_params)},
                                 block_row{dak_app_sdp_encode_evrcwb, sizeof(sdp_evrcb_params)},
                                 block_row{dak_app_sdp_encode_evrcwb0, sizeof(sdp_evrcb0_params)},
                                 block_row{dak_app_sdp_encode_evrcwb1, sizeof(sdp_evrcwb1_params)},
                                 block_row{dak_app_sdp_encode_h263_1998, sizeof(sdp_h263_1998_params)},
                                 block_row{dak_app_sdp_encode_h263_2000, sizeof(sdp_h263_2000_params)},
                                 block_row{dak_app_sdp_encode_h264, sizeof(sdp_h264_params)},
                                 block_row{dak_app_sdp_encode_mp4_es, sizeof(sdp_mp4_es_params)},
                                 block_row{dak_app_sdp_encode_tel_event, sizeof(sdp_tel_event_params)});

// A codec's parameter block in a heap block of its own size.
class block {
public:
    explicit block(const sdp_mime_entry &codec)
        : size_(std::find_if(blocks.begin(), blocks.end(), [&](auto &row) {
                    return row.encode == codec.encode;
                })->size)
    {
    }
    uint8_t *get() const { return bytes_.get(); }
    std::size_t size() const { return size_; }

private:
    std::size_t size_;
    std::unique_ptr<uint8_t[]> bytes_{new uint8_t[size_]()};
};

// A section with one payload format, 97.
class section {
public:
    explicit section(const char *name)
    {
        add_media_rtpmap_valid_to_media_description(description_, 97, 1);
        add_media_codec_to_media_description(description_, 97, name, 8000, 1);
    }
    ~section() { clean_media_description(description_); }
    section(const section &) = delete;
    operator media_description *() const { return description_; }
    bool is_usable() const { return description_->codecs[0].mime_type[0] != '\0'; }

    int read(const std::string &line) const
    {
        const exact_line block(line);
        return parse_a_equal_fmtp_line(description_, block.begin(), block.line_end());
    }
    // The lines of the payload format.
    std::string written() const
    {
        sdp_lib_context *context = init_sdp_lib();
        std::string text;
        if (dak_sdp_encode_media_codec(context, description_, 0))
            text = get_sdp_text(context);
        clean_sdp_lib(context);
        return text;
    }

private:
    static constexpr uint32_t payload_number = 97;
    media_description *description_ = init_media_description("audio", 9, 1, "RTP/AVP", &payload_number, 1);
};

void print(const sdp_mime_entry &codec, const block &params)
{
    const auto mline = std::make_unique<sdp_media_line>();
    sdp_container container = {};
    container.num_mlines = 1;
    container.mlines = mline.get();
    mline->num_formats = mline->formats[0].has_rtpmap = 1;
    mline->formats[0].codec_id = codec.payload_number;
    std::memcpy(&mline->formats[0].params, params.get(), params.size());
    dak_app_oa_print_sdp_container(&container);
    dak_app_oa_validate_fmtp(codec.payload_number, SDP_SENDRECV, 0, mline.get());
}

// An empty value is written and not read.
bool has_empty_value(const std::string &text)
{
    for (const char *end : {"=;", "= ", "=\r", "97 \r"})
        if (text.find(end) != std::string::npos)
            return true;
    return false;
}

// A decoded block gives the same lines again once it was encoded and decoded.
void expect_same_block(const sdp_mime_entry &codec, const block &params)
{
    const section first(codec.mime_name), second(codec.mime_name);
    const block read(codec);
    print(codec, params);
    if (codec.encode(first, 0, params.get()) != SDP_OA_SUCCESS)
        return;
    FUZZ_EXPECT(codec.decode(first, 0, read.get()) == SDP_OA_SUCCESS);
    FUZZ_EXPECT(codec.encode(second, 0, read.get()) == SDP_OA_SUCCESS);
    const std::string text = first.written();
    if (codec.encode != dak_app_sdp_encode_h264 && !has_empty_value(text)) // H264 has flags as characters
        FUZZ_EXPECT_SAME(second.written(), text);
}

void decode(const section &lines, const sdp_mime_entry &codec)
{
    const block params(codec);
    if (codec.decode(lines, 0, params.get()) == SDP_OA_SUCCESS)
        expect_same_block(codec, params);
}

void use_record(const sdp_mime_entry &codec, input &in)
{
    if (codec.encode == nullptr)
        return;
    const block params(codec);
    in.fill(params.get(), params.size());
    print(codec, params);
    const section made(codec.mime_name);
    codec.encode(made, 0, params.get());
    decode(made, codec);
    made.written();
}

// What was read from one's own lines is what was written.
void expect_same_again(const section &first, const char *name)
{
    const std::string text = first.written();
    if (has_empty_value(text))
        return;
    if (std::strcmp(name, "telephone-event") == 0 && text.find('=') != std::string::npos)
        return; // its value stands without a name, and what looks like one is taken for it
    const section second(name);
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        if (line.starts_with("a=fmtp:"))
            second.read(line);
    if (!text.empty())
        FUZZ_EXPECT_SAME(second.written(), text);
}

void use_lines(const char *name, input &in)
{
    const section read(name);
    std::istringstream lines(in.rest());
    for (std::string line; std::getline(lines, line);)
        read.read("a=fmtp:97 " + line + "\r");
    const sdp_mime_entry *codec = dak_app_sdp_find_medentry_by_mime(name);
    if (codec != nullptr && codec->decode != nullptr)
        decode(read, *codec);
    if (read.is_usable())
        expect_same_again(read, name);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    const platform::run run;
    input in(data, size);
    const uint32_t codec = in.byte();
    if (in.flag())
        use_record(mime_table[codec % MIME_TABLE_ROWS], in);
    else
        use_lines(g_media_mime[codec % MEDIA_MIME_COUNT], in);
    return 0;
}
