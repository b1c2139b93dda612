#include "oa/print_codec.hpp"

#include "oa/print_container.h"
#include "util/bounded_text.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

// A log text for a value that is logged only when present.
void print_number(bool is_present, const char *format, uint32_t value)
{
    if (is_present)
        DAK_LOG(format, static_cast<unsigned>(value));
}

void print_signed(bool is_present, const char *format, int32_t value)
{
    if (is_present)
        DAK_LOG(format, static_cast<int>(value));
}

template <size_t N> void print_text(bool is_present, const char *format, const char (&field)[N])
{
    if (is_present)
        DAK_LOG(format, terminated(field).c_str());
}

void print_amr(const sdp_amr_params &amr)
{
    print_number(amr.octet_align_present, "octet-align=%u; ", amr.octet_align);
    if (amr.mode_set_present != 0)
        dak_app_oa_print_mode(amr.mode_set);
    print_number(amr.mode_change_period_present, "mode-change-period=%u; ", amr.mode_change_period);
    print_number(amr.mode_change_capability_present, "mode-change-capability=%u; ",
                 amr.mode_change_capability);
    print_number(amr.mode_change_neighbor_present, "mode-change-neighbor=%u; ", amr.mode_change_neighbor);
    print_number(amr.crc_present, "crc=%u; ", amr.crc);
    print_number(amr.robust_sorting_present, "robust-sorting=%u; ", amr.robust_sorting);
    print_number(amr.interleaving_present, "interleaving=%u; ", amr.interleaving);
    print_signed(amr.channels_present, "channels=%d; ", amr.channels);
    print_signed(amr.max_red_present, "max-red=%d; ", amr.max_red);
}

void print_modes(bool is_present, const char *name, uint8_t mode_map)
{
    if (!is_present)
        return;
    log_text(name);
    dak_app_oa_print_mode(mode_map);
}

// Prints what a block of the EVRC family has, by its layout.
template <typename Block> void print_evrc(const Block &evrc)
{
    if constexpr (requires { evrc.maxinterleave; })
        print_number(evrc.maxinterleave_present, "maxinterleave=%u; ", evrc.maxinterleave);
    if constexpr (requires { evrc.fixedrate; })
        print_number(evrc.fixedrate_present, "fixedrate=%u; ", evrc.fixedrate);
    if constexpr (requires { evrc.sendmode; }) {
        print_modes(evrc.sendmode_present, "sendmode=", evrc.sendmode);
        print_modes(evrc.mode_set_recv_present, "mode-set-recv=", evrc.mode_set_recv);
    }
    if constexpr (requires { evrc.recvmode; })
        print_modes(evrc.recvmode_present, "recvmode=", evrc.recvmode);
    dak_app_oa_print_dtx_attr(&evrc.dtx);
}

void print_h264(const sdp_h264_params &h264)
{
    print_text(h264.profile_level_id_present, "profile-level-id=%s; ", h264.profile_level_id);
    print_signed(h264.packetization_mode_present, "packetization-mode=%d; ", h264.packetization_mode);
    print_signed(h264.sprop_deint_buf_req_present, "sprop-deint-buf-req=%d; ", h264.sprop_deint_buf_req);
    print_number(h264.max_rcmd_nalu_size_present, "max-rcmd-nalu-size=%u; ", h264.max_rcmd_nalu_size);
    print_number(h264.sar_understood_present, "sar-understood=%u; ", h264.sar_understood);
    print_number(h264.sar_supported_present, "sar-supported=%u; ", h264.sar_supported);
    print_number(h264.in_band_parameter_sets_present, "in-band-parameter-sets=%u; ",
                 h264.in_band_parameter_sets);
    print_number(h264.parameter_add_present, "parameter-add=%u; ", h264.parameter_add);
    print_text(h264.sprop_parameter_sets_present, "sprop-parameter-sets=%s; ", h264.sprop_parameter_sets);
    print_text(h264.sprop_level_parameter_sets_present, "sprop-level-parameter-sets=%s; ",
               h264.sprop_level_parameter_sets);
    print_number(h264.use_level_src_parameter_sets_present, "use-level-src-parameter-sets=%u; ",
                 h264.use_level_src_parameter_sets);
}

void print_mp4_es(const sdp_mp4_es_params &mp4)
{
    print_signed(mp4.profile_level_id_present, "profile-level-id=%d; ", mp4.profile_level_id);
    if (mp4.config_present == 0)
        return;
    built_text<2 * sizeof mp4.config + 1> config;
    for (size_t i = 0; i < mp4.config_len && i < sizeof mp4.config; i++)
        config.add("0123456789abcdef"[mp4.config[i] >> 4]).add("0123456789abcdef"[mp4.config[i] & 15]);
    DAK_LOG("config=%s; ", config.c_str());
}

void print_h263_2000(const sdp_h263_2000_params &h263)
{
    print_signed(h263.profile_present, "profile=%d; ", h263.profile);
    print_signed(h263.level_present, "level=%d; ", h263.level);
    if (h263.interlace != 0)
        DAK_LOG("interlace=1; ");
    dak_app_oa_print_h263_2429_params(&h263.params);
}

void print_tel_event(const sdp_tel_event_params &tel_event)
{
    if (tel_event.events_present == 0)
        return;
    for (const sdp_tel_event_entry &entry : tel_event.events) {
        if (entry.kind == SDP_TEL_EVENT_END)
            return;
        if (entry.kind == SDP_TEL_EVENT_RANGE)
            DAK_LOG("events=%u-%u; ", static_cast<unsigned>(entry.first), static_cast<unsigned>(entry.last));
        else
            DAK_LOG("events=%u; ", static_cast<unsigned>(entry.first));
    }
}

struct codec_name {
    uint8_t codec_id;
    char text[24];
};
constexpr codec_name codec_names[] = {
    {0, "Mime = PCMU\n"},
    {8, "Mime = PCMA\n"},
    {4, "Mime = G723\n"},
    {9, "Mime = G722\n"},
    {18, "Mime = G729\n"},
    {21, "Mime = G711AB\n"},
    {34, "Mime = H263\n"},
    {98, "Mime = MP4V-ES\n"},
    {113, "Mime = H264\n"},
    {99, "Mime = EVRC\n"},
    {97, "Mime = AMR\n"},
    {96, "Mime = AMR-WB\n"},
    {111, "Mime = G722_2\n"},
    {100, "Mime = EVRC0\n"},
    {102, "Mime = EVRCB0\n"},
    {103, "Mime = EVRCB\n"},
    {101, "Mime = EVRC1\n"},
    {104, "Mime = EVRCB1\n"},
    {105, "Mime = telephone-event\n"},
    {106, "Mime = H263-1998\n"},
    {107, "Mime = H263-2000\n"},
    {108, "Mime = EVRCWB0\n"},
    {109, "Mime = EVRCWB\n"},
    {110, "Mime = EVRCWB1\n"},
    {112, "Mime = telephone-event\n"},
};

void print_submodes(const h263_params &params)
{
    constexpr uint32_t most_submodes = sizeof params.p_modes / sizeof *params.p_modes;
    built_text<64> list;
    for (uint32_t i = 0; i < params.p_count && i < most_submodes; i++)
        list.add_number(params.p_modes[i]).add(',');
    list.drop_last();
    if (params.p_count != 0)
        DAK_LOG("P=%s;", list.c_str());
}

void print_small(bool is_present, const char *format, uint32_t value)
{
    if (is_present)
        DAK_LOG(format, static_cast<unsigned>(static_cast<uint16_t>(value)));
}

void print_option(bool is_set, const char *text)
{
    if (is_set)
        log_text(text);
}

} // namespace

void dak::print_codec_name(uint32_t codec_id)
{
    for (const codec_name &name : codec_names) {
        if (name.codec_id == codec_id)
            return log_text(name.text);
    }
    DAK_LOG("Mime = Unknown: %d\n", static_cast<int>(codec_id));
}

void dak::print_codec_params(const sdp_payload_format &format)
{
    const sdp_codec_params &params = format.params;
    if (params.frame.fmtp_present == 0)
        return;
    switch (format.codec_id) {
    case 96:
    case 97:
    case 111:
        return print_amr(params.amr);
    case 98:
        return print_mp4_es(params.mp4_es);
    case 99:
        return print_evrc(params.evrc);
    case 100:
        return print_evrc(params.evrc0);
    case 101:
    case 104:
        return print_evrc(params.evrc1);
    case 102:
    case 108:
        return print_evrc(params.evrcb0);
    case 103:
    case 109:
        return print_evrc(params.evrcb);
    case 110:
        return print_evrc(params.evrcwb1);
    case 105:
    case 112:
        return print_tel_event(params.tel_event);
    case 106:
        return dak_app_oa_print_h263_2429_params(&params.h263_1998.params);
    case 107:
        return print_h263_2000(params.h263_2000);
    case 113:
        return print_h264(params.h264);
    }
}

void dak_app_oa_print_dtx_attr(const dtx_params *dtx)
{
    if (dtx == nullptr)
        return;
    print_small(dtx->silencesupp_present, "silencesupp = %hu\n", dtx->silencesupp);
    print_small(dtx->dtxmax_present, "dtxmax = %hu\n", dtx->dtxmax);
    print_small(dtx->dtxmin_present, "dtxmin = %hu\n", dtx->dtxmin);
    print_small(dtx->hangover_present, "hangover = %hu\n", dtx->hangover);
}

void dak_app_oa_print_mode(uint32_t mode_map)
{
    bool is_first = true;
    for (int mode = 0; mode <= 7; mode++) {
        if ((mode_map & (uint32_t{1} << mode)) == 0)
            continue;
        DAK_LOG(is_first ? "%d" : "mode set%d", mode);
        is_first = false;
    }
    DAK_LOG("; ");
}

void dak_app_oa_print_h263_2429_params(const h263_params *params)
{
    if (params == nullptr)
        return;
    const auto bits = [](int16_t value) { return static_cast<uint32_t>(value); };
    print_small(params->sqcif_present, "SQCIF=%hu;", bits(params->sqcif));
    print_small(params->qcif_present, "QCIF=%hu;", bits(params->qcif));
    print_small(params->cif_present, "CIF=%hu;", bits(params->cif));
    print_small(params->cif4_present, "CIF4=%hu;", bits(params->cif4));
    print_small(params->cif16_present, "CIF16=%hu;", bits(params->cif16));
    if (params->custom_present != 0)
        DAK_LOG("CUSTOM=%hd, %hd, %hd;", params->custom_x, params->custom_y, params->custom_mpi);
    print_option(params->f, "F=1;");
    print_option(params->i, "I=1;");
    print_option(params->j, "J=1;");
    print_option(params->t, "T=1;");
    print_small(params->k_present, "K=%hu;", params->k);
    print_small(params->n_present, "N=%hu;", params->n);
    print_submodes(*params);
    print_small(params->par_present, "PAR=%hu;", bits(params->par));
    print_text(params->cpcf_present, "CPCF=%s;", params->cpcf);
    print_small(params->bpp_present, "BPP=%hu;", bits(params->bpp));
    print_option(params->hrd, "HRD=1;");
}
