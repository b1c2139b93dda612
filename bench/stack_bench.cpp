// Stack that each call takes, the platform's part of it included: call, bytes, the body that takes most.
//
// A call runs on a stack of its own, painted before; what it wrote over tells how deep it went. Every body of
// examples/ is tried.

#include <ucontext.h>

#include <algorithm>
#include <array>
#include <iostream>
#include <string_view>

#include "operations.hpp"

namespace {

constexpr unsigned char paint = 0xA5;
alignas(16) std::array<unsigned char, 256 * 1024> stack;

ucontext_t outside;
const call *running;
const unsigned char *entry;

void run_on_painted_stack()
{
    entry = static_cast<const unsigned char *>(__builtin_frame_address(0));
    (*running)();
}

// Bytes between the frame that makes the call and the deepest one that it touches.
std::size_t depth(const call &each)
{
    stack.fill(paint);
    ucontext_t inside;
    getcontext(&inside);
    inside.uc_stack.ss_sp = stack.data();
    inside.uc_stack.ss_size = stack.size();
    inside.uc_link = &outside;
    makecontext(&inside, run_on_painted_stack, 0);
    running = &each;
    swapcontext(&outside, &inside);
    const auto *deepest = std::find_if(stack.data(), stack.data() + stack.size(),
                                       [](unsigned char byte) { return byte != paint; });
    return static_cast<std::size_t>(entry - deepest);
}

call print(const body &body)
{
    return [container = parsed(body.text)] {
        dak_app_oa_print_sdp_container(container.get());
        return 0;
    };
}

call validate_modified(const body &body)
{
    return [container = parsed(body.text)] {
        return dak_app_oa_validate_modified_sdp(container.get(), container.get());
    };
}

call check_preconditions(const body &body)
{
    return [container = parsed(body.text)] { return dak_app_oa_check_preconds(container.get()); };
}

std::shared_ptr<sdp_lib_context> context() { return {init_sdp_lib(), clean_sdp_lib}; }

bool read(sdp_lib_context *document, const std::string &text)
{
    return sdp_parse(document, text.data(), static_cast<uint32_t>(text.size())) != 0;
}

call parse_document(const body &body)
{
    return [text = body.text] { return read(context().get(), text); };
}

// The encoder document that generation makes of a container.
std::shared_ptr<sdp_lib_context> built(sdp_container &container)
{
    const auto document = context();
    for (const auto step : {dak_app_oa_encode_version, dak_app_oa_encode_origin, dak_app_oa_encode_session,
                            dak_app_oa_encode_info, dak_app_oa_encode_bw, dak_app_oa_encode_connection,
                            dak_app_oa_encode_time, dak_app_oa_encode_gen_attr})
        step(document.get(), &container);
    dak_app_oa_encode_mlines(document.get(), &container);
    return document;
}

call encode_document(const body &body)
{
    return [document = built(*parsed(body.text))] { return dak_sdp_encode(document.get()) != 0; };
}

// Calls `use` with each payload format of a parsed document, its codec's row and an empty parameter block.
template <class Use> void for_each_format(sdp_lib_context *document, Use use)
{
    const int sections = get_number_of_media_description(document, 1);
    for (int section = 0; section < sections; ++section) {
        media_description *media =
            get_media_description_by_index(document, 1, static_cast<uint32_t>(section));
        for (int index = 0; index < get_number_of_media_payload(media); ++index) {
            const char *name = get_media_codec_mime_type_by_index(media, index);
            const sdp_mime_entry *codec = name != nullptr ? dak_app_sdp_find_medentry_by_mime(name) : nullptr;
            if (codec != nullptr && codec->decode != nullptr)
                use(media, static_cast<uint16_t>(index), *codec);
        }
    }
}

// Makes a call of each payload format's decoder or encoder.
call use_parameters(const body &body, void (*use)(media_description *, uint16_t, const sdp_mime_entry &))
{
    const auto document = context();
    read(document.get(), body.text);
    return [document, use] {
        for_each_format(document.get(), use);
        return 0;
    };
}

call decode_parameters(const body &body)
{
    return use_parameters(body, [](media_description *media, uint16_t index, const sdp_mime_entry &codec) {
        static sdp_codec_params block;
        codec.decode(media, index, &block);
    });
}

call encode_parameters(const body &body)
{
    return use_parameters(body, [](media_description *media, uint16_t index, const sdp_mime_entry &codec) {
        static sdp_codec_params block;
        block = {};
        codec.decode(media, index, &block);
        codec.encode(media, index, &block);
    });
}

call read_fmtp_lines(const body &body)
{
    const auto document = context();
    read(document.get(), body.text);
    return [document, text = body.text] {
        media_description *media = get_media_description_by_index(document.get(), 1, 0);
        for (std::size_t at = text.find("a=fmtp:"); at != text.npos; at = text.find("a=fmtp:", at + 1))
            parse_a_equal_fmtp_line(media, text.data() + at, text.data() + text.find_first_of("\r\n", at));
        return 0;
    };
}

const operation further_operations[] = {
    {"validate modified offer", validate_modified}, {"print", print},
    {"check preconditions", check_preconditions},   {"lower layer: parse", parse_document},
    {"lower layer: encode", encode_document},       {"lower layer: read a=fmtp lines", read_fmtp_lines},
    {"decode parameters", decode_parameters},       {"encode parameters", encode_parameters}};

// 0 for a body that the call cannot be made on.
std::size_t depth_on(const operation &operation, const body &body)
{
    const call each = prepared(operation, body);
    if (!each)
        return 0;
    each(); // the first call of a kind pays for what the C library sets up
    return depth(each);
}

void print_deepest(const operation &operation, const std::vector<body> &bodies)
{
    std::size_t most = 0;
    std::string name;
    for (const body &each : bodies) {
        const std::size_t found = depth_on(operation, each);
        if (found > most) {
            most = found;
            name = each.name;
        }
    }
    std::cout << operation.name << '\t' << most << '\t' << name << '\n';
}

} // namespace

int main()
{
    const std::vector<body> bodies = all_bodies();
    for (const operation &each : operations)
        print_deepest(each, bodies);
    for (const operation &each : further_operations)
        print_deepest(each, bodies);
    std::cout << "nothing\t" << depth([] { return 0; }) << "\t-\n";
    return 0;
}
