// Reading and writing the parameters of a record whose kind is known.
#ifndef DAKSDP_CODEC_PARAMETERS_HPP
#define DAKSDP_CODEC_PARAMETERS_HPP

#include "codec/codec_kinds.hpp"
#include "sdp/document_record.h"
#include "sdp/media_description_record.h"
#include "util/text_range.hpp"

namespace dak {

// The kind that a MIME name stands for: null for an unknown name, one without slots for a format without
// parameters.
const codec_kind *find_kind(text_range mime_name);

inline const codec_kind *find_kind(const media_codec &codec)
{
    return find_kind(field_text(codec.mime_type));
}

// A MIME name as the registry has it; empty for an unknown one.
const char *registered_name(text_range mime_name);

// Writes the names of a kind into a record, and empties the values.
void prepare_parameters(media_codec &codec, const codec_kind &kind);

// Marks the parameter of a name as set and gives the room for its value, of 200 characters; null, logged, for
// a name that the kind lacks.
char *set_parameter_room(media_codec &codec, const codec_kind &kind, text_range name);

// Stores a value under its name; 0, reported, when it is too long, and 0 for a format without parameters. A
// name that the kind lacks is logged and passed over. The one value of telephone-event may come without a
// name.
int set_parameter(media_codec &codec, const codec_kind &kind, text_range name, text_range value);

// A bit for each slot of a record that is set.
uint32_t set_slots(const media_codec &codec, const codec_kind &kind);

// The value under a name when its slot is among `slots`, or null.
const char *get_parameter(media_codec &codec, const codec_kind &kind, uint32_t slots, text_range name);

// Writes the set parameters of a record as an a=fmtp line, as dak_sdp_encode_a_equal_fmtp_line(). The slot of
// telephone events loses its name by it.
int write_fmtp_line(sdp_lib_context *context, uint16_t payload_number, media_codec &codec,
                    const codec_kind &kind);

} // namespace dak

#endif
