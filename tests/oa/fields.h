#ifndef DAKSDP_TESTS_OA_FIELDS_H
#define DAKSDP_TESTS_OA_FIELDS_H

#include <span>
#include <type_traits>

#include "daksdp.h"

// The fields of the container's records, by the names that texts have for them. `f` takes a name and a field,
// or a name, a presence flag and the field that it belongs to.
namespace oa_tests {

template <class F> void each(sdp_address &a, const F &f)
{
    f("type", a.addr_type), f("net", a.net_type), f("at", a.address);
}
template <class F> void each(sdp_bandwidth_entry &b, const F &f)
{
    f("mod", b.modifier), f("is", b.present, b.value);
}
template <class F> void each(sdp_bandwidth &b, const F &f) { f("on", b.present), f("", b.entries); }
template <class F> void each(sdp_group &g, const F &f)
{
    f("on", g.present), f("sem", g.semantics), f("mids", g.num_mids), f("at", g.mline_index);
}
template <class F> void each(sdp_precondition &p, const F &f)
{
    f("kind", p.kind), f("type", p.precond_type), f("w", p.words);
}
template <class F> void each(sdp_rtcp_fb &r, const F &f)
{
    f("type", r.fb_type), f("ccm", r.ccm_subtype), f("nack", r.nack_subtype), f("text", r.fb_param);
}

// Applies to the records that have the field.
#define VALUE(name) \
    if_it_has( \
        p, [&](auto &q) requires requires { q.name; } { f(#name, q.name); })
#define FLAGGED(name) \
    if_it_has( \
        p, [&](auto &q) requires requires { q.name##_present; } { f(#name, q.name##_present, q.name); })
template <class Record, class Apply> void if_it_has(Record &record, Apply apply)
{
    if constexpr (std::is_invocable_v<Apply, Record &>)
        apply(record);
}

// The parameters of any codec, apart from the frame that all blocks begin with.
template <class Params, class F> void each_parameter(Params &p, const F &f)
{
    FLAGGED(octet_align), FLAGGED(mode_set), FLAGGED(mode_change_period), FLAGGED(mode_change_capability),
        FLAGGED(mode_change_neighbor), FLAGGED(crc), FLAGGED(robust_sorting), FLAGGED(interleaving),
        FLAGGED(channels), FLAGGED(max_red), FLAGGED(maxinterleave), FLAGGED(fixedrate), FLAGGED(silencesupp),
        FLAGGED(dtxmax), FLAGGED(dtxmin), FLAGGED(hangover);
    if_it_has(
        p, [&](auto &q) requires requires { q.dtx; } { each_parameter(q.dtx, f); });
    FLAGGED(mode_set_recv), FLAGGED(sendmode), FLAGGED(recvmode), FLAGGED(profile_level_id),
        VALUE(profile_level_id_len), FLAGGED(packetization_mode), FLAGGED(sprop_deint_buf_req),
        FLAGGED(max_rcmd_nalu_size), FLAGGED(sar_understood), FLAGGED(sar_supported),
        FLAGGED(in_band_parameter_sets), FLAGGED(parameter_add), FLAGGED(sprop_parameter_sets),
        VALUE(sprop_parameter_sets_len), FLAGGED(sprop_level_parameter_sets),
        VALUE(sprop_level_parameter_sets_len), FLAGGED(use_level_src_parameter_sets), VALUE(config_len),
        FLAGGED(config), FLAGGED(profile), FLAGGED(level), VALUE(interlace), FLAGGED(sqcif), FLAGGED(qcif),
        FLAGGED(cif), FLAGGED(cif4), FLAGGED(cif16), VALUE(custom_x), VALUE(custom_y), VALUE(custom_mpi),
        VALUE(custom_present), VALUE(f), VALUE(i), VALUE(j), VALUE(t), FLAGGED(k), FLAGGED(n);
    if_it_has(
        p, [&](auto &q) requires requires { q.p_count; } { f("p", q.p_count, q.p_modes); });
    FLAGGED(par), FLAGGED(cpcf), FLAGGED(bpp), VALUE(hrd), FLAGGED(events);
    if_it_has(
        p, [&](auto &q) requires requires { q.params; } { each_parameter(q.params, f); });
}

// Hands the block of a codec to `f`.
template <class F> auto with_block(uint32_t codec, sdp_codec_params &any, const F &f)
{
    const auto is = [codec](auto... key) { return ((codec == key) || ...); };
    return is(96U, 97U, 111U) ? f(any.amr)
           : is(98U)          ? f(any.mp4_es)
           : is(99U)          ? f(any.evrc)
           : is(100U)         ? f(any.evrc0)
           : is(101U, 104U)   ? f(any.evrc1)
           : is(102U, 108U)   ? f(any.evrcb0)
           : is(103U, 109U)   ? f(any.evrcb)
           : is(105U, 112U)   ? f(any.tel_event)
           : is(106U)         ? f(any.h263_1998)
           : is(107U)         ? f(any.h263_2000)
           : is(110U)         ? f(any.evrcwb1)
           : is(113U)         ? f(any.h264)
                              : f(any.frame);
}

template <class F> void each(uint32_t codec, sdp_codec_params &any, const F &f)
{
    f("fmtp", any.frame.fmtp_present), f("valid", any.frame.params_valid);
    with_block(codec, any, [&](auto &block) { each_parameter(block, f); });
}

template <class F> void each(sdp_payload_format &p, const F &f)
{
    f("on", p.present), f("byte", p.payload_byte), f("map", p.has_rtpmap), f("id", p.codec_id);
    f("khz", p.clock_rate_khz), f("multi", p.multi_channel), f("ch", p.num_channels);
    each(p.codec_id, p.params, f);
    f("fbs", p.rtcp_fb_present, p.num_rtcp_fb), f("fb", p.rtcp_fb);
}
template <class F> void each(rtcp_address_info &a, const F &f)
{
    f("on", a.valid), f("type", a.address_type), f("net", a.network_type), f("at", a.address);
}
template <class F> void each(sdp_accept_attr &a, const F &f)
{
    f("n", a.present, a.count), f("kind", a.kind), f("t", a.types);
}
template <class F> void each(sdp_path_attr &p, const F &f)
{
    f("host", p.present, p.host), f("scheme", p.scheme), f("user", p.user), f("six", p.host_is_ipv6);
    f("port", p.port), f("id", p.session_id), f("over", p.transport);
}
template <class F> void each(sdp_file_selector &s, const F &f)
{
    f("name", s.name), f("type", s.type), f("size", s.size), f("alg", s.hash_alg), f("len", s.hash_len);
    f("hash", s.hash), f("empty", s.empty);
}
template <class F> void each(sdp_media_line &m, const F &f)
{
    f("ok", m.valid), f("type", m.media_type), f("port", m.port), f("ports", m.num_ports);
    f("over", m.transport), f("rtcp", m.rtcp_port), f("ra", m.rtcp_address), f("con", m.connection_present);
    f("c", m.connection), f("b", m.bandwidth), f("n", m.num_formats), f("p", m.payload_numbers);
    f("f", m.formats), f("ptime", m.ptime_present, m.ptime), f("maxptime", m.maxptime_present, m.maxptime);
    f("dir", m.direction_present, m.direction), f("framerate", m.framerate_present, m.framerate);
    f("maxprate", m.maxprate_present, m.maxprate), f("pcds", m.precond_present, m.num_preconds);
    f("pcd", m.preconds), f("fbs", m.rtcp_fb_present, m.num_rtcp_fb), f("fb", m.rtcp_fb);
    f("mid", m.mid_present, m.mid), f("setup", m.setup_present, m.setup);
    f("conn", m.conn_status_present, m.conn_status), f("msg", m.msg_attr_present), f("acc", m.accept_types);
    f("wrap", m.accept_wrapped_types), f("path", m.path), f("max", m.max_size.present, m.max_size.max_size);
    f("files", m.file_attr_present, m.num_file_selectors), f("file", m.file_selectors);
    f("fid", m.file_transfer_id), f("disp", m.file_disposition.present, m.file_disposition.disposition);
    f("created", m.file_date.creation), f("modified", m.file_date.modification), f("read", m.file_date.read);
    f("icon", m.file_icon), f("from", m.file_range.start), f("to", m.file_range.stop);
}
template <class F> void each(sdp_container &c, const F &f)
{
    f("v", c.version), f("o", c.origin_present), f("user", c.origin_username), f("id", c.origin_session_id);
    f("ver", c.origin_session_version), f("oa", c.origin_address);
    f("s", c.session_name_present, c.session_name), f("con", c.connection_present), f("c", c.connection);
    f("b", c.bandwidth), f("i", c.info_present, c.info), f("t", c.time_present), f("start", c.start_time);
    f("stop", c.stop_time), f("dir", c.direction_present, c.direction), f("gs", c.num_groups);
    f("g", c.groups), f("ms", c.num_mlines), f("mlines", c.mlines);
    std::span<sdp_media_line> lines(c.mlines, c.mlines != nullptr ? c.num_mlines : 0);
    f("m", lines);
}

} // namespace oa_tests

#endif
