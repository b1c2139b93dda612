#ifndef DAKSDP_TESTS_OA_CONTAINER_TEXT_H
#define DAKSDP_TESTS_OA_CONTAINER_TEXT_H

#include <algorithm>
#include <cctype>
#include <cstring>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <gtest/gtest.h>

#include "daksdp.h"

// A container as text and text into a container: "m0.f1.id=97" sets one field, a dump shows every field that
// is not zero, as in "m0{f1{id=97}}". A value with a presence flag is shown and set with it: "ptime=20" has
// the flag 1, "ptime=2:20" the flag 2.
namespace oa_tests {

// The fields of the records, by short names.
template <class F> void each(sdp_address &a, F f)
{
    f("type", a.addr_type), f("net", a.net_type), f("at", a.address);
}
template <class F> void each(sdp_bandwidth_entry &b, F f)
{
    f("mod", b.modifier), f("is", b.present, b.value);
}
template <class F> void each(sdp_bandwidth &b, F f) { f("on", b.present), f("", b.entries); }
template <class F> void each(sdp_group &g, F f)
{
    f("on", g.present), f("sem", g.semantics), f("mids", g.num_mids), f("at", g.mline_index);
}
template <class F> void each(sdp_precondition &p, F f)
{
    f("kind", p.kind), f("type", p.precond_type), f("w", p.words);
}
template <class F> void each(sdp_rtcp_fb &r, F f)
{
    f("type", r.fb_type), f("ccm", r.ccm_subtype), f("nack", r.nack_subtype), f("text", r.fb_param);
}
template <class F> void each(sdp_amr_params &a, F f)
{
    f("align", a.octet_align_present, a.octet_align), f("modes", a.mode_set_present, a.mode_set);
    f("period", a.mode_change_period_present, a.mode_change_period);
    f("capability", a.mode_change_capability_present, a.mode_change_capability);
    f("neighbor", a.mode_change_neighbor_present, a.mode_change_neighbor), f("crc", a.crc_present, a.crc);
    f("sorting", a.robust_sorting_present, a.robust_sorting);
    f("interleaving", a.interleaving_present, a.interleaving), f("channels", a.channels_present, a.channels);
    f("red", a.max_red_present, a.max_red);
}
template <class F> void each(sdp_tel_event_entry &e, F f)
{
    f("kind", e.kind), f("first", e.first), f("last", e.last);
}
template <class F> void each(sdp_h264_params &h, F f)
{
    f("profile", h.profile_level_id_present, h.profile_level_id), f("length", h.profile_level_id_len);
    f("mode", h.packetization_mode_present, h.packetization_mode);
}
template <class F> void each(sdp_payload_format &p, F f)
{
    f("on", p.present), f("byte", p.payload_byte), f("map", p.has_rtpmap), f("id", p.codec_id);
    f("khz", p.clock_rate_khz), f("multi", p.multi_channel), f("ch", p.num_channels);
    f("fmtp", p.params.frame.fmtp_present), f("valid", p.params.frame.params_valid);
    if (p.codec_id == 96 || p.codec_id == 97)
        each(p.params.amr, f);
    if (p.codec_id == 105)
        f("events", p.params.tel_event.events_present), f("e", p.params.tel_event.events);
    if (p.codec_id == 113)
        each(p.params.h264, f);
    f("fbs", p.rtcp_fb_present, p.num_rtcp_fb), f("fb", p.rtcp_fb);
}
template <class F> void each(rtcp_address_info &a, F f)
{
    f("on", a.valid), f("type", a.address_type), f("net", a.network_type), f("at", a.address);
}
template <class F> void each(sdp_accept_attr &a, F f)
{
    f("n", a.present, a.count), f("kind", a.kind), f("t", a.types);
}
template <class F> void each(sdp_path_attr &p, F f)
{
    f("host", p.present, p.host), f("scheme", p.scheme), f("user", p.user), f("six", p.host_is_ipv6);
    f("port", p.port), f("id", p.session_id), f("over", p.transport);
}
template <class F> void each(sdp_file_selector &s, F f)
{
    f("name", s.name), f("type", s.type), f("size", s.size), f("alg", s.hash_alg), f("len", s.hash_len);
    f("hash", s.hash), f("empty", s.empty);
}
template <class F> void each(sdp_media_line &m, F f)
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
template <class F> void each(sdp_container &c, F f)
{
    f("v", c.version), f("o", c.origin_present), f("user", c.origin_username), f("id", c.origin_session_id);
    f("ver", c.origin_session_version), f("oa", c.origin_address);
    f("s", c.session_name_present, c.session_name), f("con", c.connection_present), f("c", c.connection);
    f("b", c.bandwidth), f("i", c.info_present, c.info), f("t", c.time_present), f("start", c.start_time);
    f("stop", c.stop_time), f("dir", c.direction_present, c.direction), f("gs", c.num_groups);
    f("g", c.groups), f("ms", c.num_mlines);
    std::span<sdp_media_line> lines(c.mlines, c.mlines != nullptr ? c.num_mlines : 0);
    f("m", lines);
}

template <class T> constexpr bool is_text = false;
template <std::size_t N> constexpr bool is_text<char[N]> = true;
template <class T> constexpr bool is_list = requires(T &list) { std::span(list); }
&&!is_text<T>;

// What the dump shows of a number, a text or a list of numbers; nothing for zero.
template <class T> std::string value_of(T &field)
{
    std::string out;
    if constexpr (is_text<T>)
        return {field, strnlen(field, sizeof field)};
    else if constexpr (std::is_arithmetic_v<T>)
        return field == 0 ? "" : std::to_string(+field);
    else
        for (auto number : field)
            out += (out.empty() ? "" : ",") + std::to_string(+number);
    while (out.ends_with(",0"))
        out.resize(out.size() - 2);
    return out == "0" ? "" : out;
}

template <class T> constexpr bool is_value = !std::is_class_v<std::remove_all_extents_t<T>>;

template <class T> std::string dump(T &record);

struct dumper {
    std::string &out;

    template <class T> void operator()(const std::string &name, T &field) const
    {
        if constexpr (is_list<T> && !is_value<T>) {
            for (std::size_t i = 0; i < std::size(field); ++i)
                (*this)(name + std::to_string(i), field[i]);
        } else if constexpr (is_value<T>) {
            if (const std::string value = value_of(field); !value.empty())
                out += " " + name + "=" + value;
        } else if (const std::string inner = dump(field); !inner.empty()) {
            out += " " + name + "{" + inner + "}";
        }
    }
    template <class T> void operator()(const std::string &name, auto flag, T &field) const
    {
        std::string value = value_of(field);
        if (flag == 0 && value.empty())
            return;
        if (value.empty() && !is_text<T>)
            value = "0";
        out += " " + name + (flag == 1 ? "=" : "=" + std::to_string(+flag) + ":") + value;
    }
};

template <class T> std::string dump(T &record)
{
    std::string out;
    each(record, dumper{out});
    return out.substr(out.empty() ? 0 : 1);
}

// Takes a value as a dump shows it. In a text "_" stands for a blank and "9*x" for nine times "x"; a text as
// long as its field leaves no room for the terminator.
template <class T> void assign(T &field, std::string value)
{
    if constexpr (std::is_arithmetic_v<T>) {
        field = static_cast<T>(std::strtoull(value.c_str(), nullptr, 10));
    } else if constexpr (is_text<T>) {
        std::replace(value.begin(), value.end(), '_', ' ');
        if (const std::size_t times = value.find('*'); times != std::string::npos)
            value = std::string(std::stoul(value), value[times + 1]);
        std::memset(field, 0, sizeof field);
        value.copy(field, sizeof field);
    } else {
        std::istringstream in(value);
        std::string number;
        for (std::size_t i = 0; std::getline(in, number, ','); ++i)
            assign(field[i], number);
    }
}

// Sets the field of this path, if it is one of a record's.
struct setter {
    std::string path;
    std::string value;
    int &found;

    bool at(const std::string &name) const
    {
        return path.starts_with(name) && !std::isalpha(static_cast<unsigned char>((path + ".")[name.size()]));
    }
    template <class T> void operator()(const std::string &name, T &field) const
    {
        if (!at(name))
            return;
        const std::string rest = path.substr(std::min(path.size(), name.size() + (path[name.size()] == '.')));
        if constexpr (is_value<T> && !std::is_same_v<T, std::span<sdp_media_line>>) {
            ++found;
            assign(field, value);
        } else if constexpr (is_list<T>) {
            const std::string index = rest.substr(0, rest.find('.'));
            setter{rest, value, found}(index, field[std::stoul(index)]);
        } else {
            each(field, setter{rest, value, found});
        }
    }
    template <class T> void operator()(const std::string &name, auto &flag, T &field) const
    {
        if (!at(name))
            return;
        ++found;
        const std::size_t colon = value.find(':');
        assign(flag, colon == std::string::npos ? "1" : value.substr(0, colon));
        assign(field, value.substr(colon + 1));
    }
};

// Sets fields, such as "m0.ptime=20 m0.f0.id=97".
inline void change(sdp_container &container, const std::string &changes)
{
    std::istringstream in(changes);
    for (std::string one; in >> one;) {
        int found = 0;
        const std::size_t equals = one.find('=');
        each(container, setter{one.substr(0, equals), one.substr(equals + 1), found});
        EXPECT_EQ(found, 1) << one;
    }
}

} // namespace oa_tests

#endif
