#include "container_json.hpp"

#include "codec_parameters.hpp"
#include "record_text.hpp"
#include "words.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstring>
#include <span>

namespace inspector {
namespace {

using json = nlohmann::ordered_json;

template <std::size_t N> std::string text_of(const char (&field)[N])
{
    return std::string(field, strnlen(field, N));
}

json word_of(std::span<const word> words, std::uint32_t number)
{
    const std::string_view found = find_word(words, number);
    return found.empty() ? json(number) : json(found);
}

template <std::size_t N> void add_text(json &object, const char *key, const char (&field)[N])
{
    if (field[0] != '\0')
        object[key] = text_of(field);
}

void add_number(json &object, const char *key, std::uint32_t number)
{
    if (number != 0)
        object[key] = number;
}

// Adds a list of entries that `entry_json` makes of them; nothing for none.
template <typename Entries, typename Make>
void add_list(json &object, const char *key, const Entries &entries, Make entry_json)
{
    for (const auto &entry : entries)
        object[key].push_back(entry_json(entry));
}

json address_json(const sdp_address &address)
{
    json object;
    object["addr_type"] = word_of(address_types, address.addr_type);
    object["net_type"] = text_of(address.net_type);
    object["address"] = text_of(address.address);
    return object;
}

json bandwidth_entry_json(const sdp_bandwidth_entry &entry)
{
    json object;
    object["modifier"] = word_of(bandwidth_modifiers, entry.modifier);
    object["value"] = entry.value;
    return object;
}

void add_bandwidth(json &object, const sdp_bandwidth &bandwidth)
{
    const auto end = std::find_if(std::begin(bandwidth.entries), std::end(bandwidth.entries),
                                  [](const sdp_bandwidth_entry &entry) { return entry.present == 0; });
    if (bandwidth.present == 0)
        return;
    object["bandwidth"]["entries"] = json::array();
    add_list(object["bandwidth"], "entries", std::span(std::begin(bandwidth.entries), end),
             bandwidth_entry_json);
}

json group_json(const sdp_group &group)
{
    json object;
    object["present"] = group.present == 1;
    object["semantics"] = word_of(group_semantics, group.semantics);
    add_list(object, "mline_index", std::span(group.mline_index).first(group.num_mids),
             [](std::uint8_t index) { return index; });
    return object;
}

json feedback_json(const sdp_rtcp_fb &entry)
{
    json object;
    object["fb_type"] = word_of(feedback_types, entry.fb_type);
    if (entry.fb_type == RTCP_FB_CCM)
        object["ccm_subtype"] = word_of(ccm_subtypes, entry.ccm_subtype);
    if (entry.fb_type == RTCP_FB_NACK)
        object["nack_subtype"] = word_of(nack_subtypes, entry.nack_subtype);
    add_text(object, "fb_param", entry.fb_param);
    return object;
}

json event_json(const sdp_tel_event_entry &entry)
{
    json object;
    object["kind"] = word_of(event_kinds, entry.kind);
    object["first"] = entry.first;
    if (entry.kind == SDP_TEL_EVENT_RANGE)
        object["last"] = entry.last;
    return object;
}

struct parameter_value {
    json operator()(std::int64_t number) const { return number; }
    json operator()(const std::string &text) const { return text; }
    json operator()(const modes &list) const { return list; }
    json operator()(const events &list) const
    {
        json array = json::array();
        for (const sdp_tel_event_entry &entry : list)
            array.push_back(event_json(entry));
        return array;
    }
};

void add_params(json &object, const sdp_payload_format &format)
{
    for (const parameter &field : codec_parameters(format)) {
        json &params = object["params"];
        json &record = field.record.empty() ? params : params[std::string(field.record)];
        record[std::string(field.field)] = std::visit(parameter_value(), field.value);
    }
}

// The fields of an a=rtpmap line say nothing without one.
json format_json(const sdp_payload_format &format)
{
    json object;
    object["present"] = format.present != 0;
    object["has_rtpmap"] = format.has_rtpmap != 0;
    if (format.has_rtpmap != 0 || format.codec_id != 0) {
        object["payload_byte"] = format.payload_byte;
        object["codec_id"] = format.codec_id;
        if (const std::string_view name = codec_name(format); !name.empty())
            object["mime_name"] = name;
        object["clock_rate_khz"] = format.clock_rate_khz;
        object["multi_channel"] = format.multi_channel != 0;
        object["num_channels"] = format.num_channels;
    }
    add_params(object, format);
    add_list(object, "rtcp_fb", feedback_entries(format), feedback_json);
    return object;
}

json precondition_json(const sdp_precondition &entry)
{
    const bool desired = entry.kind == PCD_DES;
    json object;
    object["kind"] = word_of(precondition_words, entry.kind);
    object["precond_type"] = word_of(precondition_types, entry.precond_type);
    if (desired)
        object["strength"] = word_of(strengths, entry.desired.strength);
    object["status_type"] =
        word_of(status_types, desired ? entry.desired.status_type : entry.status.status_type);
    object["direction"] =
        word_of(precondition_directions, desired ? entry.desired.direction : entry.status.direction);
    return object;
}

json accept_json(const sdp_accept_attr &accept)
{
    json object;
    add_list(object, "types",
             std::span(accept.types).first(std::min<std::size_t>(accept.count, SDP_ACCEPT_MAX_TYPES)),
             [](std::uint32_t type) { return word_of(content_types, type); });
    return object;
}

json path_json(const sdp_path_attr &path)
{
    json object;
    object["scheme"] = word_of(path_schemes, path.scheme);
    add_text(object, "user", path.user);
    object["host"] = text_of(path.host);
    object["host_is_ipv6"] = path.host_is_ipv6 != 0;
    add_number(object, "port", path.port);
    object["session_id"] = text_of(path.session_id);
    add_text(object, "transport", path.transport);
    return object;
}

json selector_json(const sdp_file_selector &selector)
{
    json object;
    add_text(object, "name", selector.name);
    if (const std::string_view type = find_word(file_types, selector.type); !type.empty())
        object["type"] = type;
    add_number(object, "size", selector.size);
    if (selector.hash_len != 0) {
        object["hash_alg"] = word_of(hash_algorithms, selector.hash_alg);
        object["hash_len"] = selector.hash_len;
        object["hash"] = text_of(selector.hash);
    }
    object["empty"] = selector.empty != 0;
    return object;
}

json date_json(const sdp_file_date &date)
{
    json object;
    add_text(object, "creation", date.creation);
    add_text(object, "modification", date.modification);
    add_text(object, "read", date.read);
    return object;
}

void add_message_records(json &object, const sdp_media_line &mline)
{
    if (mline.accept_types.present != 0)
        object["accept_types"] = accept_json(mline.accept_types);
    if (mline.accept_wrapped_types.present != 0)
        object["accept_wrapped_types"] = accept_json(mline.accept_wrapped_types);
    if (mline.path.present != 0)
        object["path"] = path_json(mline.path);
}

void add_file_records(json &object, const sdp_media_line &mline)
{
    add_list(object, "file_selectors", file_selectors(mline), selector_json);
    add_text(object, "file_transfer_id", mline.file_transfer_id);
    if (mline.file_disposition.present != 0)
        object["file_disposition"]["disposition"] = word_of(dispositions, mline.file_disposition.disposition);
    if (const json date = date_json(mline.file_date); !date.empty())
        object["file_date"] = date;
    add_text(object, "file_icon", mline.file_icon);
    if (mline.file_range.start != 0 || mline.file_range.stop != 0)
        object["file_range"] = {{"start", mline.file_range.start}, {"stop", mline.file_range.stop}};
}

void add_addresses(json &object, const sdp_media_line &mline)
{
    add_number(object, "rtcp_port", mline.rtcp_port);
    if (mline.rtcp_address.valid != 0)
        object["rtcp_address"] = {{"address_type", word_of(address_types, mline.rtcp_address.address_type)},
                                  {"network_type", text_of(mline.rtcp_address.network_type)},
                                  {"address", text_of(mline.rtcp_address.address)}};
    object["transport"] = word_of(transports, mline.transport);
    if (mline.connection_present != 0)
        object["connection"] = address_json(mline.connection);
}

void add_formats(json &object, const sdp_media_line &mline)
{
    const std::size_t count = std::min<std::size_t>(mline.num_formats, SDP_MAX_FORMATS);
    add_list(object, "payload_numbers", std::span(mline.payload_numbers).first(count),
             [](std::uint32_t number) { return number; });
    add_list(object, "formats", std::span(mline.formats).first(count), format_json);
}

void add_attributes(json &object, const sdp_media_line &mline)
{
    if (mline.ptime_present != 0)
        object["ptime"] = mline.ptime;
    if (mline.maxptime_present != 0)
        object["maxptime"] = mline.maxptime;
    if (mline.direction_present != 0)
        object["direction"] = word_of(directions, mline.direction);
    if (mline.framerate_present != 0)
        object["framerate"] = mline.framerate;
    if (mline.maxprate_present != 0)
        object["maxprate"] = mline.maxprate;
    const std::size_t count = std::min<std::size_t>(mline.num_preconds, SDP_MAX_PRECONDS);
    if (mline.precond_present != 0)
        add_list(object, "preconds", std::span(mline.preconds).first(count), precondition_json);
    add_list(object, "rtcp_fb", feedback_entries(mline), feedback_json);
    if (mline.mid_present != 0)
        object["mid"] = text_of(mline.mid);
    if (mline.setup_present != 0)
        object["setup"] = word_of(setups, mline.setup);
}

json mline_json(const sdp_media_line &mline)
{
    json object;
    object["valid"] = mline.valid != 0;
    object["media_type"] = word_of(media_types, mline.media_type);
    if (mline.valid == 0)
        return object;
    object["port"] = mline.port;
    object["num_ports"] = mline.num_ports;
    add_addresses(object, mline);
    add_bandwidth(object, mline.bandwidth);
    add_formats(object, mline);
    add_attributes(object, mline);
    object["msg_attr_present"] = mline.msg_attr_present != 0;
    add_message_records(object, mline);
    add_file_records(object, mline);
    if (mline.max_size.present != 0)
        object["max_size"]["max_size"] = mline.max_size.max_size;
    return object;
}

void add_origin(json &object, const sdp_container &container)
{
    if (container.origin_present == 0)
        return;
    object["origin_username"] = text_of(container.origin_username);
    object["origin_session_id"] = container.origin_session_id;
    object["origin_session_version"] = container.origin_session_version;
    object["origin_address"] = address_json(container.origin_address);
}

void add_session(json &object, const sdp_container &container)
{
    if (container.session_name_present != 0)
        object["session_name"] = text_of(container.session_name);
    if (container.connection_present != 0)
        object["connection"] = address_json(container.connection);
    add_bandwidth(object, container.bandwidth);
    if (container.info_present != 0)
        object["info"] = text_of(container.info);
    if (container.time_present != 0) {
        object["start_time"] = container.start_time;
        object["stop_time"] = container.stop_time;
    }
    if (container.direction_present != 0)
        object["direction"] = word_of(directions, container.direction);
}

} // namespace

std::string container_json(const sdp_container &container)
{
    json object;
    object["version"] = container.version;
    add_origin(object, container);
    add_session(object, container);
    // May be more than are stored.
    add_number(object, "num_groups", container.num_groups);
    const std::size_t groups = std::min<std::size_t>(container.num_groups, SDP_MAX_GROUPS);
    add_list(object, "groups", std::span(container.groups).first(groups), group_json);
    object["mlines"] = json::array();
    for (const sdp_media_line &mline : std::span(container.mlines, container.num_mlines))
        object["mlines"].push_back(mline_json(mline));
    return object.dump(2, ' ', true, json::error_handler_t::replace);
}

} // namespace inspector
