#include "held_lines.hpp"

#include "blanks.hpp"
#include "record_text.hpp"
#include "words.hpp"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <span>

namespace inspector {
namespace {

std::string normal_attribute(std::string_view text)
{
    const std::string name = single_blanks(take_until(text, ":"));
    const std::string value = single_blanks(text);
    return value.empty() ? name : name + ":" + value;
}

int payload_position(const media_description &description, std::string_view number)
{
    std::int32_t wanted = -1;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), wanted);
    if (error != std::errc() || end != number.data() + number.size())
        return -1;
    const std::span payloads(description.payload_numbers,
                             static_cast<std::size_t>(description.number_of_payload));
    const auto place = std::find(payloads.begin(), payloads.end(), wanted);
    return place == payloads.end() ? -1 : static_cast<int>(place - payloads.begin());
}

// Between the parameters of these formats a blank does what a semicolon does.
bool parted_by_blanks(std::string_view format)
{
    constexpr std::string_view formats[] = {"EVRC", "EVRC0", "EVRC1", "EVRCB", "EVRCB0", "EVRCB1"};
    return std::find(std::begin(formats), std::end(formats), format) != std::end(formats);
}

} // namespace

std::string normal_line(std::string_view line)
{
    const std::string type(line.substr(0, 2));
    line.remove_prefix(type.size());
    return type + (type == "a=" ? normal_attribute(line) : single_blanks(line));
}

held_lines::held_lines(media_description &description) : description_(description)
{
    add_media_line();
    add_typed_lines();
    for (int index = 0; index < description.number_of_payload; index++) {
        add_rtpmap(index);
        add_feedback(std::to_string(description.payload_numbers[index]), description.codecs[index].rtcp_fb);
    }
    add_feedback("*", description.rtcp_fb);
    add_preconditions();
    add_message_session();
    add_file_transfer();
}

bool held_lines::take(const std::string &line)
{
    if (line.starts_with("a=fmtp:"))
        return holds_fmtp(line);
    const auto found = lines_.find(line);
    if (found == lines_.end())
        return false;
    lines_.erase(found);
    return true;
}

void held_lines::add(const std::string &line) { lines_.insert(normal_line(line)); }

void held_lines::add_media_line()
{
    std::string rest = " " + std::string(description_.transport_profile);
    for (int index = 0; index < description_.number_of_payload; index++)
        rest += " " + std::to_string(description_.payload_numbers[index]);
    rest += " " + std::string(description_.media_format);
    const std::string start =
        "m=" + std::string(description_.media_type) + " " + std::to_string(description_.media_port);
    add(start + "/" + std::to_string(description_.number_of_media_port) + rest);
    if (description_.number_of_media_port == 1)
        add(start + rest);
}

void held_lines::add_typed_lines()
{
    for (int slot = 0; slot < SDP_MEDIA_VALUE_SLOTS; slot++) {
        if (description_.media_value_present[slot] != 0)
            add(std::string(description_.media_value_tags[slot]) + description_.media_values[slot]);
    }
    const std::string port = "a=rtcp:" + std::to_string(description_.rtcp_port);
    if (description_.rtcp_address.valid != 0)
        add(port + " " + rtcp_address_text(description_.rtcp_address));
}

void held_lines::add_rtpmap(int index)
{
    const media_codec &codec = description_.codecs[index];
    if (codec.rtpmap_valid == 0 || codec.mime_type[0] == '\0')
        return;
    const std::string line = "a=rtpmap:" + std::to_string(description_.payload_numbers[index]) + " " +
                             codec.mime_type + "/" + std::to_string(codec.sample_rate);
    add(line + "/" + std::to_string(codec.encoding_param));
    if (codec.encoding_param == 1)
        add(line);
}

void held_lines::add_feedback(const std::string &payload, const rtcp_fb_list &feedback)
{
    for (const rtcp_fb_entry &entry : feedback_entries(feedback))
        add("a=rtcp-fb:" + payload + " " + feedback_text(entry));
}

void held_lines::add_preconditions()
{
    for (int index = 0; index < description_.pcd_count; index++) {
        const std::string name(find_word(precondition_words, description_.pcd_type[index]));
        add("a=" + name + ":" + description_.pcd_value[index]);
    }
}

void held_lines::add_message_session()
{
    if (description_.accept_types.present != 0)
        add("a=accept-types:" + accept_text(description_.accept_types));
    if (description_.accept_wrapped_types.present != 0)
        add("a=accept-wrapped-types:" + accept_text(description_.accept_wrapped_types));
    if (description_.path.present != 0)
        add("a=path:" + path_text(description_.path));
    if (description_.max_size.present != 0)
        add("a=max-size:" + std::to_string(description_.max_size.max_size));
}

void held_lines::add_file_transfer()
{
    for (const sdp_file_selector &selector : file_selectors(description_))
        add("a=file-selector:" + selector_text(selector));
    if (description_.file_transfer_id[0] != '\0')
        add("a=file-transfer-id:" + std::string(description_.file_transfer_id));
    const std::string_view disposition = find_word(dispositions, description_.file_disposition.disposition);
    if (description_.file_disposition.present != 0 && !disposition.empty())
        add("a=file-disposition:" + std::string(disposition));
    if (description_.file_icon[0] != '\0')
        add("a=file-icon:cid:" + std::string(description_.file_icon));
    const sdp_file_range &range = description_.file_range;
    if (range.stop != 0)
        add("a=file-range:" + std::to_string(range.start) + "-" + std::to_string(range.stop));
    add_file_dates();
}

void held_lines::add_file_dates()
{
    const sdp_file_date &date = description_.file_date;
    add_file_date("creation", date.creation);
    add_file_date("modification", date.modification);
    add_file_date("read", date.read);
}

void held_lines::add_file_date(const std::string &kind, const std::string &date)
{
    if (!date.empty())
        add("a=file-date:" + kind + ":\"" + date + "\"");
}

// Whether the line has parameters, and each is one that the payload format has and that stood on no line yet.
bool held_lines::holds_fmtp(std::string_view line)
{
    line.remove_prefix(std::strlen("a=fmtp:"));
    const int index = payload_position(description_, take_until(line, blanks));
    if (index < 0)
        return false;
    const std::string_view separators = parted_by_blanks(description_.codecs[index].mime_type) ? "; " : ";";
    bool any = false;
    while (!line.empty()) {
        const std::string parameter = single_blanks(take_until(line, separators));
        if (!parameter.empty() && !holds_parameter(index, parameter))
            return false;
        any = any || !parameter.empty();
    }
    return any;
}

bool held_lines::holds_parameter(int index, std::string_view parameter)
{
    const bool named = parameter.find('=') != std::string_view::npos;
    const std::string name = named ? single_blanks(take_until(parameter, "=")) : "events";
    const char *value = name.size() < 200 ? get_media_value(&description_, index, name.c_str()) : nullptr;
    return value != nullptr && single_blanks(parameter) == single_blanks(value) &&
           taken_values_.insert(value).second;
}

} // namespace inspector
