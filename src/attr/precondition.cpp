#include "attr/precondition.h"

#include "attr/precondition.hpp"
#include "sdp/text_buffer.hpp"
#include "util/bounded_text.hpp"
#include "util/report.hpp"
#include "util/token.hpp"

using namespace dak;

namespace {

// Indexed by kind - 1.
struct precondition_word {
    char name[5];
    char head[8];
};
constexpr precondition_word words[] = {{"curr", "a=curr:"}, {"des", "a=des:"}, {"conf", "a=conf:"}};

constexpr bool is_kind(uint32_t kind) { return kind >= PCD_CURR && kind <= PCD_CONF; }

// The kind of an attribute name, or 0.
uint32_t kind_of(text_range name)
{
    for (uint32_t kind = PCD_CURR; kind <= PCD_CONF; kind++) {
        if (name.equals(words[kind - 1].name))
            return kind;
    }
    return 0;
}

int fail_to_split()
{
    DAK_LOG("parse_a_equal_pcd_line :                          could not get type and value \n");
    return fail();
}

// The kind of a line; 0, logged and reported, for none. Lines mostly begin just as they are written.
uint32_t read_kind(const char *line_start, const char *line_end)
{
    for (uint32_t kind = PCD_CURR; kind <= PCD_CONF; kind++) {
        if (text_range(line_start, line_end).begins_with(words[kind - 1].head))
            return kind;
    }
    const type_and_value line = split_type_and_value(line_start, line_end, "=", ":");
    if (line.parts != 2)
        return static_cast<uint32_t>(fail_to_split());
    const uint32_t kind = kind_of(line.value);
    if (kind == 0) {
        DAK_LOG("parse_a_equal_pcd_line :                          unknown pcd attribute type \n");
        dak_assert_failed();
    }
    return kind;
}

bool is_full(const media_description &description)
{
    return description.pcd_count < 0 || description.pcd_count >= SDP_MAX_PRECONDITIONS;
}

int encode_entry(sdp_lib_context *context, uint32_t kind, text_range value)
{
    if (!is_kind(kind)) {
        DAK_LOG("encode_precondition_attr :                            Invalid pcd attr type \n");
        return 0;
    }
    sdp_line line(context);
    line.add(words[kind - 1].head).add(value);
    if (line.is_too_long()) {
        DAK_LOG("src str len exceeds dest str len %d\n", 200);
        return fail();
    }
    if (line.write("\r\n"))
        return 1;
    DAK_LOG("encode_precondition_attr :                            Unable fill SDP buffer \n");
    return fail();
}

} // namespace

int dak::set_precondition(media_description &description, uint32_t kind, text_range value)
{
    if (!is_kind(kind)) {
        DAK_LOG("set_media_precond_attr :                           Unknown pcd attribute type \n");
        return 0;
    }
    if (is_full(description)) {
        DAK_LOG("set_media_precond_attr :                           Precond list size overflow \n");
        return 0;
    }
    const int entry = description.pcd_count++;
    description.pcd_type[entry] = kind;
    if (!copy_text(description.pcd_value[entry], value)) {
        DAK_LOG("Src str length exceeded dst str %lu \n",
                static_cast<unsigned long>(sizeof *description.pcd_value));
        return fail();
    }
    description.pcd_present = 1;
    return 1;
}

int set_media_precond_attr(media_description *description, uint32_t kind, const char *value)
{
    if (description != nullptr && value != nullptr)
        return set_precondition(*description, kind, value);
    DAK_LOG("set_media_precond_attr : null params \n");
    return 0;
}

int get_number_of_precond_attrs(const media_description *description)
{
    if (description != nullptr && description->pcd_present != 0)
        return description->pcd_count;
    DAK_LOG("get_number_of_precond_attrs :                          no pcd attributes found \n");
    return -1;
}

const char *get_media_precond_attr(const media_description *description, uint32_t *kind, int index)
{
    // The entry behind the last may be asked for; callers that walk up to the count rely on it.
    if (description == nullptr || description->pcd_present == 0 || index < 0 ||
        index > SDP_MAX_PRECONDITIONS || index > description->pcd_count) {
        DAK_LOG("get_media_precond_attr :                           Invalid params params \n");
        return nullptr;
    }
    if (index >= SDP_MAX_PRECONDITIONS) {
        DAK_LOG("pcd array index exceeded %d\n", index);
        return nullptr;
    }
    if (kind == nullptr)
        return fail_null();
    *kind = description->pcd_type[index];
    return description->pcd_value[index];
}

int encode_precondition_attr(sdp_lib_context *context, media_description *description)
{
    if (context == nullptr || description == nullptr || description->pcd_present == 0) {
        DAK_LOG("encode_precondition_attr :                          Invalid params \n");
        return 0;
    }
    for (int i = 0; i < description->pcd_count && i < SDP_MAX_PRECONDITIONS; i++) {
        if (!encode_entry(context, description->pcd_type[i], field_text(description->pcd_value[i])))
            return 0;
    }
    return 1;
}

int parse_a_equal_pcd_line(media_description *description, const char *line_start, const char *line_end)
{
    if (description == nullptr || line_start == nullptr) {
        DAK_LOG("parse_a_equal_pcd_line :                          NULL Pararms sent \n");
        return 0;
    }
    if (line_end == nullptr)
        return fail();
    if (is_full(*description)) {
        DAK_LOG("parse_a_equal_pcd_line: pcd attr size exceeded\n");
        return 1;
    }
    const uint32_t kind = read_kind(line_start, line_end);
    if (kind == 0)
        return 0;
    description->pcd_type[description->pcd_count] = kind;
    const type_and_value line = split_type_and_value(line_start, line_end, ":", "\r");
    if (line.parts != 2)
        return fail_to_split();
    const int entry = description->pcd_count++;
    if (!copy_text(description->pcd_value[entry], line.value)) {
        DAK_LOG("str being copied exceeds %lu len \n",
                static_cast<unsigned long>(sizeof *description->pcd_value));
        return fail();
    }
    description->pcd_present = 1;
    return 1;
}
