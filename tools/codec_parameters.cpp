#include "codec_parameters.hpp"

#include "words.hpp"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <span>

namespace inspector {
namespace {

std::string hyphens(std::string_view field)
{
    std::string name(field);
    std::replace(name.begin(), name.end(), '_', '-');
    return name;
}

std::string capitals(std::string_view field)
{
    std::string name(field);
    std::transform(name.begin(), name.end(), name.begin(), [](unsigned char c) { return std::toupper(c); });
    return name;
}

modes modes_of(std::uint32_t map)
{
    modes list;
    for (std::uint32_t mode = 0; mode < 32; mode++) {
        if ((map >> mode & 1U) != 0)
            list.push_back(mode);
    }
    return list;
}

std::string comma_list(const modes &list)
{
    std::string text;
    for (const std::uint32_t mode : list)
        text += (text.empty() ? "" : ",") + std::to_string(mode);
    return text;
}

std::string event_words(const events &list)
{
    std::string text;
    for (const sdp_tel_event_entry &entry : list) {
        text += (text.empty() ? "" : ",") + std::to_string(entry.first);
        if (entry.kind == SDP_TEL_EVENT_RANGE)
            text += "-" + std::to_string(entry.last);
    }
    return text;
}

std::string hexadecimal(std::span<const std::uint8_t> octets)
{
    constexpr char digits[] = "0123456789abcdef";
    std::string text;
    for (const std::uint8_t octet : octets)
        text += {digits[octet >> 4U], digits[octet & 0xfU]};
    return text;
}

// Collects the fields of one record.
class record_reader {
public:
    using spelling = std::string (*)(std::string_view field);

    explicit record_reader(std::vector<parameter> &parameters, std::string_view record = {},
                           spelling spell = hyphens)
        : parameters_(parameters), record_(record), spell_(spell)
    {
    }

    void number(bool present, std::string_view field, std::int64_t value)
    {
        add(present, field, std::to_string(value), value);
    }

    void word(bool present, std::string_view field, std::uint32_t value,
              std::span<const inspector::word> words)
    {
        const std::string_view found = find_word(words, value);
        text(present, field, found.empty() ? std::to_string(value) : std::string(found));
    }

    void mode_map(bool present, std::string_view field, std::uint32_t map)
    {
        add(present, field, comma_list(modes_of(map)), modes_of(map));
    }

    // A field for the code of a character.
    void character(bool present, std::string_view field, std::uint8_t code)
    {
        add(present, field, std::to_string(code) + ", the code of '" + static_cast<char>(code) + "'",
            std::int64_t{code});
    }

    void text(bool present, std::string_view field, const std::string &value)
    {
        add(present, field, value, value);
    }

    // A text that may have been cut; its length is a field of its own.
    template <std::size_t N>
    void cut_text(bool present, std::string_view field, const char (&value)[N], std::string_view length_field,
                  std::uint16_t length)
    {
        const std::string whole(value, strnlen(value, N));
        add(present, field,
            length <= whole.size() ? whole : whole + " (cut from " + std::to_string(length) + " characters)",
            whole);
        covered(present, length_field, length);
    }

    // A field that the words of another one show.
    void covered(bool present, std::string_view field, std::int64_t value)
    {
        if (present)
            parameters_.push_back({record_, field, "", "", value});
    }

    void add(bool present, std::string_view field, std::string words, decltype(parameter::value) value)
    {
        if (present)
            parameters_.push_back({record_, field, spell_(field), std::move(words), std::move(value)});
    }

private:
    std::vector<parameter> &parameters_;
    std::string_view record_;
    spelling spell_;
};

void read_amr(std::vector<parameter> &parameters, const sdp_codec_params &params)
{
    record_reader read(parameters);
    const sdp_amr_params &amr = params.amr;
    read.number(amr.octet_align_present, "octet_align", amr.octet_align);
    read.mode_map(amr.mode_set_present, "mode_set", amr.mode_set);
    read.number(amr.mode_change_period_present, "mode_change_period", amr.mode_change_period);
    read.number(amr.mode_change_capability_present, "mode_change_capability", amr.mode_change_capability);
    read.number(amr.mode_change_neighbor_present, "mode_change_neighbor", amr.mode_change_neighbor);
    read.number(amr.crc_present, "crc", amr.crc);
    read.number(amr.robust_sorting_present, "robust_sorting", amr.robust_sorting);
    read.number(amr.interleaving_present, "interleaving", amr.interleaving);
    read.number(amr.channels_present, "channels", amr.channels);
    read.number(amr.max_red_present, "max_red", amr.max_red);
}

void read_dtx(std::vector<parameter> &parameters, const dtx_params &dtx)
{
    record_reader read(parameters, "dtx");
    read.number(dtx.silencesupp_present, "silencesupp", dtx.silencesupp);
    read.number(dtx.dtxmax_present, "dtxmax", dtx.dtxmax);
    read.number(dtx.dtxmin_present, "dtxmin", dtx.dtxmin);
    read.number(dtx.hangover_present, "hangover", dtx.hangover);
}

// Reads a block of the EVRC family by the fields that its layout has.
template <typename Block> void read_evrc_block(std::vector<parameter> &parameters, const Block &evrc)
{
    record_reader read(parameters);
    if constexpr (requires { evrc.maxinterleave; })
        read.number(evrc.maxinterleave_present, "maxinterleave", evrc.maxinterleave);
    if constexpr (requires { evrc.fixedrate; })
        read.word(evrc.fixedrate_present, "fixedrate", evrc.fixedrate, fixed_rates);
    read_dtx(parameters, evrc.dtx);
    if constexpr (requires { evrc.sendmode; }) {
        read.mode_map(evrc.mode_set_recv_present, "mode_set_recv", evrc.mode_set_recv);
        read.mode_map(evrc.sendmode_present, "sendmode", evrc.sendmode);
    }
    if constexpr (requires { evrc.recvmode; })
        read.mode_map(evrc.recvmode_present, "recvmode", evrc.recvmode);
}

template <auto Block> void read_evrc(std::vector<parameter> &parameters, const sdp_codec_params &params)
{
    read_evrc_block(parameters, params.*Block);
}

void read_h264(std::vector<parameter> &parameters, const sdp_codec_params &params)
{
    record_reader read(parameters);
    const sdp_h264_params &h264 = params.h264;
    read.cut_text(h264.profile_level_id_present, "profile_level_id", h264.profile_level_id,
                  "profile_level_id_len", h264.profile_level_id_len);
    read.number(h264.packetization_mode_present, "packetization_mode", h264.packetization_mode);
    read.number(h264.sprop_deint_buf_req_present, "sprop_deint_buf_req", h264.sprop_deint_buf_req);
    read.number(h264.max_rcmd_nalu_size_present, "max_rcmd_nalu_size", h264.max_rcmd_nalu_size);
    read.character(h264.sar_understood_present, "sar_understood", h264.sar_understood);
    read.character(h264.sar_supported_present, "sar_supported", h264.sar_supported);
    read.character(h264.in_band_parameter_sets_present, "in_band_parameter_sets",
                   h264.in_band_parameter_sets);
    read.character(h264.parameter_add_present, "parameter_add", h264.parameter_add);
    read.cut_text(h264.sprop_parameter_sets_present, "sprop_parameter_sets", h264.sprop_parameter_sets,
                  "sprop_parameter_sets_len", h264.sprop_parameter_sets_len);
    read.cut_text(h264.sprop_level_parameter_sets_present, "sprop_level_parameter_sets",
                  h264.sprop_level_parameter_sets, "sprop_level_parameter_sets_len",
                  h264.sprop_level_parameter_sets_len);
    read.character(h264.use_level_src_parameter_sets_present, "use_level_src_parameter_sets",
                   h264.use_level_src_parameter_sets);
}

void read_mp4_es(std::vector<parameter> &parameters, const sdp_codec_params &params)
{
    record_reader read(parameters);
    const sdp_mp4_es_params &mp4 = params.mp4_es;
    const std::size_t length = std::min<std::size_t>(mp4.config_len, sizeof mp4.config);
    read.number(mp4.profile_level_id_present, "profile_level_id", mp4.profile_level_id);
    read.covered(mp4.config_present, "config_len", mp4.config_len);
    read.text(mp4.config_present, "config", hexadecimal(std::span(mp4.config).first(length)));
}

void read_custom(std::vector<parameter> &parameters, const h263_params &h263)
{
    if (h263.custom_present == 0)
        return;
    record_reader read(parameters, "params");
    const std::string words = std::to_string(h263.custom_x) + "," + std::to_string(h263.custom_y) + "," +
                              std::to_string(h263.custom_mpi);
    parameters.push_back({"params", "custom_x", "CUSTOM", words, std::int64_t{h263.custom_x}});
    read.covered(true, "custom_y", h263.custom_y);
    read.covered(true, "custom_mpi", h263.custom_mpi);
}

void read_submodes(std::vector<parameter> &parameters, const h263_params &h263)
{
    const std::size_t count = std::min<std::size_t>(h263.p_count, std::size(h263.p_modes));
    const modes list(h263.p_modes, h263.p_modes + count);
    if (count != 0)
        parameters.push_back({"params", "p_modes", "P", comma_list(list), list});
}

void read_h263(std::vector<parameter> &parameters, const h263_params &h263)
{
    record_reader read(parameters, "params", capitals);
    read.number(h263.sqcif_present, "sqcif", h263.sqcif);
    read.number(h263.qcif_present, "qcif", h263.qcif);
    read.number(h263.cif_present, "cif", h263.cif);
    read.number(h263.cif4_present, "cif4", h263.cif4);
    read.number(h263.cif16_present, "cif16", h263.cif16);
    read_custom(parameters, h263);
    read.number(h263.f != 0, "f", h263.f);
    read.number(h263.i != 0, "i", h263.i);
    read.number(h263.j != 0, "j", h263.j);
    read.number(h263.t != 0, "t", h263.t);
    read.number(h263.k_present, "k", h263.k);
    read.number(h263.n_present, "n", h263.n);
    read_submodes(parameters, h263);
    read.number(h263.par_present, "par", h263.par);
    read.text(h263.cpcf_present, "cpcf", std::string(h263.cpcf, strnlen(h263.cpcf, sizeof h263.cpcf)));
    read.number(h263.bpp_present, "bpp", h263.bpp);
    read.number(h263.hrd != 0, "hrd", h263.hrd);
}

void read_h263_1998(std::vector<parameter> &parameters, const sdp_codec_params &params)
{
    read_h263(parameters, params.h263_1998.params);
}

void read_h263_2000(std::vector<parameter> &parameters, const sdp_codec_params &params)
{
    record_reader read(parameters);
    const sdp_h263_2000_params &h263 = params.h263_2000;
    read.number(h263.profile_present, "profile", h263.profile);
    read.number(h263.level_present, "level", h263.level);
    read.number(h263.interlace != 0, "interlace", h263.interlace);
    read_h263(parameters, h263.params);
}

void read_tel_event(std::vector<parameter> &parameters, const sdp_codec_params &params)
{
    const sdp_tel_event_params &tel_event = params.tel_event;
    const auto end = std::find_if(std::begin(tel_event.events), std::end(tel_event.events),
                                  [](const auto &entry) { return entry.kind == SDP_TEL_EVENT_END; });
    const events list(std::begin(tel_event.events), end);
    record_reader(parameters).add(tel_event.events_present, "events", event_words(list), list);
}

struct codec_block {
    std::string_view name;
    void (*read)(std::vector<parameter> &parameters, const sdp_codec_params &params);
};

constexpr codec_block codec_blocks[] = {
    {"AMR", read_amr},
    {"AMR-WB", read_amr},
    {"G722_2", read_amr},
    {"EVRC", read_evrc<&sdp_codec_params::evrc>},
    {"EVRC0", read_evrc<&sdp_codec_params::evrc0>},
    {"EVRC1", read_evrc<&sdp_codec_params::evrc1>},
    {"EVRCB", read_evrc<&sdp_codec_params::evrcb>},
    {"EVRCB0", read_evrc<&sdp_codec_params::evrcb0>},
    {"EVRCB1", read_evrc<&sdp_codec_params::evrc1>},
    {"EVRCWB", read_evrc<&sdp_codec_params::evrcb>},
    {"EVRCWB0", read_evrc<&sdp_codec_params::evrcb0>},
    {"EVRCWB1", read_evrc<&sdp_codec_params::evrcwb1>},
    {"H264", read_h264},
    {"MP4V-ES", read_mp4_es},
    {"H263-1998", read_h263_1998},
    {"H263-2000", read_h263_2000},
    {"telephone-event", read_tel_event},
};

} // namespace

std::vector<parameter> codec_parameters(const sdp_payload_format &format)
{
    std::vector<parameter> parameters;
    const std::string_view name = codec_name(format);
    const auto block = std::find_if(std::begin(codec_blocks), std::end(codec_blocks),
                                    [name](const codec_block &candidate) { return candidate.name == name; });
    if (format.has_rtpmap != 0 && format.params.frame.fmtp_present != 0 && block != std::end(codec_blocks))
        block->read(parameters, format.params);
    return parameters;
}

std::string_view codec_name(const sdp_payload_format &format)
{
    const sdp_mime_entry *entry =
        format.codec_id != SDP_UNKNOWN_CODEC ? dak_app_sdp_find_medentry_by_pt(format.codec_id) : nullptr;
    return entry != nullptr ? entry->mime_name : std::string_view();
}

} // namespace inspector
