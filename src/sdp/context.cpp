#include "sdp/context.h"

#include "codec/registry.h"
#include "sdp/context.hpp"
#include "sdp/document.h"
#include "sdp/text_buffer.h"
#include "util/report.hpp"

using namespace dak;

namespace {

template <typename Record> Record *allocate() { return static_cast<Record *>(dak_malloc(sizeof(Record))); }

void free_context(sdp_lib_context *context)
{
    dak_free(context->encoder_document);
    dak_free(context->parser_document);
    dak_free(context->text_buffer);
    dak_free(context);
}

int is_allocated(const sdp_lib_context &context)
{
    return context.encoder_document != nullptr && context.parser_document != nullptr &&
           context.text_buffer != nullptr;
}

int empty(sdp_info_container *document)
{
    if (!init_sdp_session_info(document))
        return 0;
    for (media_description *&description : document->media_descriptions)
        description = nullptr;
    return 1;
}

struct parsing_context {
    sdp_lib_context context;
    sdp_info_container document;
};

struct encoding_context {
    sdp_lib_context context;
    sdp_info_container document;
    sdp_text_buffer text;
};

int initialise(sdp_lib_context *context)
{
    init_sdp_encoder(context);
    init_media_functions();
    return init_encoder_parser_sdp_info_container(context);
}

} // namespace

sdp_lib_context *dak::open_parsing_context()
{
    auto *block = allocate<parsing_context>();
    if (block == nullptr)
        return fail_null();
    block->context = {nullptr, &block->document, nullptr};
    empty(&block->document);
    return &block->context;
}

sdp_lib_context *dak::open_encoding_context()
{
    auto *block = allocate<encoding_context>();
    if (block == nullptr)
        return fail_null();
    block->context = {&block->document, nullptr, &block->text};
    empty(&block->document);
    block->text.length = 0;
    block->text.text[0] = '\0';
    return &block->context;
}

void dak::close_context(sdp_lib_context *context)
{
    const bool is_encoding = context->encoder_document != nullptr;
    clean_sdp_info_container(is_encoding ? context->encoder_document : context->parser_document);
    dak_free(context); // the first member of its block
}

sdp_lib_context *init_sdp_lib(void)
{
    auto *context = allocate<sdp_lib_context>();
    if (context == nullptr)
        return fail_null();
    context->encoder_document = allocate<sdp_info_container>();
    context->parser_document = allocate<sdp_info_container>();
    context->text_buffer = allocate<sdp_text_buffer>();
    if (is_allocated(*context) && initialise(context))
        return context;
    free_context(context);
    return fail_null();
}

int clean_sdp_lib(sdp_lib_context *context)
{
    if (context == nullptr)
        return 1;
    clean_sdp_info_container(context->encoder_document);
    clean_sdp_info_container(context->parser_document);
    free_context(context);
    return 1;
}

int init_encoder_parser_sdp_info_container(sdp_lib_context *context)
{
    if (context == nullptr)
        return fail();
    return empty(context->encoder_document) && empty(context->parser_document) ? 1 : fail();
}
