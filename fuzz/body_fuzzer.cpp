// A received body: parsed, printed, generated, parsed and generated again; then the lower layer alone.
#include "container.h"

namespace {

// What generation writes in a form that parsing does not read, or reads as something else.
constexpr auto one_way = table_of(
    "a=acceptwrapped-types:", "application/imdn+xml", " cmm", "a=file-disposition:\r", "a=file-selector:\r",
    "a=file-selector\r", "=\r", "=;", "= ", " \r", "\t\r",
    "sar-understood=", "sar-supported=", "in-band-parameter-sets=", "parameter-add=", "use-level-src");

// A payload number that stands twice is written once, and an unknown codec without its name.
bool keeps_format(const sdp_media_line &mline, int index)
{
    const uint32_t *numbers = mline.payload_numbers;
    const sdp_payload_format &format = mline.formats[index];
    return std::count(numbers, numbers + index, numbers[index]) == 0 &&
           (format.has_rtpmap == 0 || format.present != 0);
}

// A negative size of a file is written without its sign, as a number that is above what is read.
bool keeps_size(const sdp_file_selector &selector) { return selector.size <= INT32_MAX; }

// What was read in front of a format that cannot be decoded is left; nothing behind it.
bool keeps_line(const sdp_media_line &mline)
{
    const auto &selectors = mline.file_selectors;
    bool keeps =
        mline.msg_attr_present != 0 && std::all_of(std::begin(selectors), std::end(selectors), keeps_size);
    for (int i = 0; i < mline.num_formats; ++i)
        keeps = keeps && keeps_format(mline, i);
    return keeps;
}

bool keeps_all(const sdp_container &container, const std::string &text)
{
    bool keeps = true;
    for (const char *form : one_way)
        keeps = keeps && text.find(form) == std::string::npos;
    for (int i = 0; i < container.num_mlines; ++i)
        keeps = keeps && keeps_line(container.mlines[i]);
    return keeps;
}

// Fields that are read and never written.
void forget_unwritten(sdp_container &container)
{
    for (int i = 0; i < container.num_mlines; ++i) {
        sdp_media_line &mline = container.mlines[i];
        mline.rtcp_port = 0;
        mline.rtcp_address = {};
        mline.connection_present = 0;
        mline.connection = {};
        for (sdp_payload_format &format : mline.formats)
            format.multi_channel = format.num_channels = 0;
    }
}

std::string printed(const sdp_container &container)
{
    platform::take_log();
    dak_app_oa_print_sdp_container(&container);
    return platform::take_log();
}

// The text needs its length and one more; a byte less is too little.
void expect_exact_capacity(sdp_container &container, const std::string &text)
{
    std::string again;
    const std::size_t capacity = text.size() + text.size() % 2;
    const bool fits = capacity > text.size();
    FUZZ_EXPECT(generate(container, static_cast<uint16_t>(capacity), again) ==
                (fits ? SDP_OA_SUCCESS : SDP_OA_TOO_LONG));
    FUZZ_EXPECT_SAME(again, fits ? text : "");
}

void expect_same_again(held_container &first, const std::string &text)
{
    held_container second;
    std::string again;
    FUZZ_EXPECT(parse(second, text) == SDP_OA_SUCCESS);
    if (!keeps_all(first, text))
        return;
    FUZZ_EXPECT(generate(second, 4096, again) == SDP_OA_SUCCESS);
    FUZZ_EXPECT_SAME(again, text);
    forget_unwritten(first);
    forget_unwritten(second);
    FUZZ_EXPECT_SAME(printed(first), printed(second));
}

void round_trip(std::string_view body)
{
    held_container container;
    if (parse(container, body) != SDP_OA_SUCCESS)
        return;
    const std::string before = bytes_of(container);
    std::string text;
    printed(container);
    const bool is_written = generate(container, 4096, text) == SDP_OA_SUCCESS;
    FUZZ_EXPECT(bytes_of(container) == before);
    if (!is_written)
        return;
    expect_exact_capacity(container, text);
    expect_same_again(container, text);
}

void parse_and_generate(std::string_view body)
{
    held_container container;
    std::string text;
    if (parse(container, body) == SDP_OA_SUCCESS)
        generate(container, 4096, text);
}

// Reads a document and writes what it read; the text, empty where it cannot be written.
std::string rewritten(std::string_view body)
{
    sdp_lib_context *context = init_sdp_lib();
    if (context == nullptr)
        return "";
    const exact_text block(body);
    std::string text;
    const bool is_read = sdp_parse(context, block.begin(), static_cast<uint32_t>(body.size())) != 0;
    std::swap(context->encoder_document, context->parser_document);
    if (is_read && dak_sdp_encode(context))
        text = get_sdp_text(context);
    clean_sdp_lib(context);
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    const platform::run run;
    const std::string_view body(reinterpret_cast<const char *>(data), size);
    const uint32_t seed = hash_of(data, size);
    const std::string text = rewritten(body);
    const std::size_t rewriting = platform::allocations();
    round_trip(body);
    if (!text.empty())
        rewritten(text);
    if (seed % 2 == 0)
        platform::with_a_failure(seed >> 1, rewriting, [&] { rewritten(body); });
    else // which allocates about as often
        platform::with_a_failure(seed >> 1, 2 * rewriting, [&] { parse_and_generate(body); });
    return 0;
}
