// The codec kinds, one row each, and the registry of names over them. Everything per codec in this layer
// comes from these two tables.
#ifndef DAKSDP_CODEC_CODEC_KINDS_HPP
#define DAKSDP_CODEC_CODEC_KINDS_HPP

#include "codec/media_info.h"
#include "util/fixed_text.hpp"

#include <stddef.h>

// Picture sizes, annex letters and further parameters of H.263-1998 and H.263-2000 (RFC 4629).
#define DAK_H263_PICTURE_SLOTS \
    "SQCIF", "QCIF", "CIF", "CIF4", "CIF16", "CUSTOM", "F", "I", "J", "T", "K", "N", "P", "PAR", "CPCF", \
        "BPP", "HRD"

// kind, initialiser, setter, getter, writer, separator on the a=fmtp line, slot names in the order of that
// line. Where the names of one kind are a part of another's, the longer row stands first.
//
// EVRC and EVRC-B are separated by a blank, EVRC-WB by ";": the reader takes blanks for the former alone.
// EVRCB1 has neither sendmode nor recvmode. A generic MPEG-4 record has "rate" where auxiliaryDataSizeLength
// could stand and a slot without a name behind it; an encrypted one has no ISMACRYP_KMS_VERSION. Peers see
// exactly these lists.
#define DAK_CODEC_KINDS(ROW) \
    ROW(mpeg4_generic, init_mpeg4_generic_media_info, set_m4v_media_value, get_m4v_media_value, \
        dak_sdp_mpeg4_gen_media_info_encode, ";", "streamType", "profile-level-id", "config", "mode", \
        "objectType", "constantSize", "constantDuration", "maxDisplacement", "de_interleaveBufferSize", \
        "sizeLength", "indexLength", "indexDeltaLength", "CTSDeltaLength", "DTSDeltaLength", \
        "randomAccessIndication", "streamStateIndication", "rate", "") \
    ROW(mp4v_es, init_mp4ves_media_info, set_m4v_es_media_value, get_m4v_es_media_value, \
        dak_sdp_mp4ves_media_info_encode, ";", "profile-level-id", "config") \
    ROW(h264, init_h264_media_info, set_h264_media_value, get_h264_media_value, \
        dak_sdp_h264_media_info_encode, ";", "profile-level-id", "packetization-mode", \
        "sprop-deint-buf-req", "max-rcmd-nalu-size", "sar-understood", "sar-supported", \
        "in-band-parameter-sets", "parameter-add", "sprop-parameter-sets", "sprop-level-parameter-sets", \
        "use-level-src-parameter-sets") \
    ROW(enc_mpeg4, init_enc_mp4v_media_info, set_enc_m4v_media_value, get_enc_m4v_media_value, \
        dak_sdp_enc_mp4v_media_info_encode, ";", "codec", "mode", "profile-level-id", \
        "sprop-parameter-sets", "ISMACrypCryptoSuite", "ISMACrypIVLength", "ISMACrypDeltaIVLength", \
        "ISMACrypSelectiveEncryption", "ISMACrypKeyIndicatorLength", "ISMACrypKeyIndicatorPerAU", \
        "ISMACrypSalt", "ISMACrypKey", "ISMACrypKMSID", "ISMACrypKMSVersion", "ISMACrypKMSSpecificData", \
        "ISMACRYP_CRYPTO_SUITE", "ISMACRYP_IV_LENGTH", "ISMACRYP_DELTA_IV_LENGTH", \
        "ISMACRYP_SELECTIVE_ENCRYPTION", "ISMACRYP_KEY_INDICATOR_LENGTH", "ISMACRYP_KEY_INDICATOR_PER_AU", \
        "ISMACRYP_SALT", "ISMACRYP_KEY", "ISMACRYP_KMS_ID", "ISMACRYP_KMS_SPECIFIC_DATA") \
    ROW(amr, init_amr_media_info, set_amr_media_value, get_amr_media_value, dak_sdp_amr_media_info_encode, \
        ";", "octet-align", "mode-set", "mode-change-period", "mode-change-capability", \
        "mode-change-neighbor", "crc", "robust-sorting", "interleaving", "max-red", "channels") \
    ROW(h263_2000, init_h263_2000_media_info, set_h263_2000_media_value, get_h263_2000_media_value, \
        dak_sdp_h263_2000_media_info_encode, ";", DAK_H263_PICTURE_SLOTS, "profile", "level", "interlace") \
    ROW(h263_1998, init_h263_1998_media_info, set_h263_1998_media_value, get_h263_1998_media_value, \
        dak_sdp_h263_1998_media_info_encode, ";", DAK_H263_PICTURE_SLOTS) \
    ROW(h263, init_h263_media_info, set_h263_media_value, get_h263_media_value, \
        dak_sdp_263_media_info_encode, ";", "profile", "level") \
    ROW(telephone_event, init_tel_evnt_media_info, set_telephone_event_value, get_telephone_event_value, \
        dak_sdp_tel_evnt_media_info_encode, ";", "events") \
    ROW(evrcb, init_evrcb_media_info, set_evrcb_media_value, get_evrcb_media_value, \
        dak_sdp_evrcb_media_info_encode, " ", "maxinterleave", "silencesupp", "dtxmax", "dtxmin", \
        "hangover", "sendmode", "recvmode") \
    ROW(evrcb0, init_evrcb0_media_info, set_evrcb0_media_value, get_evrcb0_media_value, \
        dak_sdp_evrcb0_media_info_encode, " ", "silencesupp", "dtxmax", "dtxmin", "hangover", "sendmode", \
        "recvmode") \
    ROW(evrc, init_evrc_media_info, set_evrc_media_value, get_evrc_media_value, \
        dak_sdp_evrc_media_info_encode, " ", "maxinterleave", "silencesupp", "dtxmax", "dtxmin", "hangover") \
    ROW(evrc0, init_evrc0_media_info, set_evrc0_media_value, get_evrc0_media_value, \
        dak_sdp_evrc0_media_info_encode, " ", "silencesupp", "dtxmax", "dtxmin", "hangover") \
    ROW(evrcwb, init_evrcwb_media_info, set_evrcwb_media_value, get_evrcwb_media_value, \
        dak_sdp_evrcwb_media_info_encode, ";", "maxinterleave", "silencesupp", "dtxmax", "dtxmin", \
        "hangover", "mode-set-recv", "sendmode") \
    ROW(evrcwb1, init_evrcwb1_media_info, set_evrcwb1_media_value, get_evrcwb1_media_value, \
        dak_sdp_evrcwb1_media_info_encode, ";", "fixedrate", "silencesupp", "dtxmax", "dtxmin", "hangover", \
        "mode-set-recv", "sendmode") \
    ROW(evrcwb0, init_evrcwb0_media_info, set_evrcwb0_media_value, get_evrcwb0_media_value, \
        dak_sdp_evrcwb0_media_info_encode, ";", "silencesupp", "dtxmax", "dtxmin", "hangover", \
        "mode-set-recv", "sendmode") \
    ROW(evrc1, init_evrc1_media_info, set_evrc1_media_value, get_evrc1_media_value, \
        dak_sdp_evrc1_media_info_encode, " ", "fixedrate", "silencesupp", "dtxmax", "dtxmin", "hangover") \
    ROW(evrcb1, init_evrcb1_media_info, set_evrcb1_media_value, get_evrcb1_media_value, \
        dak_sdp_evrcb1_media_info_encode, " ", "fixedrate", "silencesupp", "dtxmax", "dtxmin", "hangover")

// MIME name and kind, in index order. Names of the kind `no_parameters` can be looked up and nothing more.
#define DAK_REGISTRY(ROW) \
    ROW("mpeg4-generic", mpeg4_generic) \
    ROW("MP4V-ES", mp4v_es) \
    ROW("H264", h264) \
    ROW("isoff-generic", mpeg4_generic) \
    ROW("generic-mp4", mpeg4_generic) \
    ROW("enc-generic-mp4", enc_mpeg4) \
    ROW("enc-mpeg4-generic", enc_mpeg4) \
    ROW("enc-isoff-generic", enc_mpeg4) \
    ROW("EVRC", evrc) \
    ROW("AMR", amr) \
    ROW("AMR-WB", amr) \
    ROW("G723", no_parameters) \
    ROW("G722", no_parameters) \
    ROW("G722_2", amr) \
    ROW("G729", no_parameters) \
    ROW("G711AB", no_parameters) \
    ROW("H263", h263) \
    ROW("H263-1998", h263_1998) \
    ROW("H263-2000", h263_2000) \
    ROW("PCMU", no_parameters) \
    ROW("PCMA", no_parameters) \
    ROW("telephone-event", telephone_event) \
    ROW("EVRC0", evrc0) \
    ROW("EVRCB0", evrcb0) \
    ROW("EVRCB", evrcb) \
    ROW("EVRC1", evrc1) \
    ROW("EVRCB1", evrcb1) \
    ROW("EVRCWB0", evrcwb0) \
    ROW("EVRCWB", evrcwb) \
    ROW("EVRCWB1", evrcwb1)

namespace dak {

// Readers keep the lengths of names as bits of a 32-bit word.
inline constexpr size_t longest_name = 30;
using slot_name = fixed_text<longest_name + 1>;

// The names of all slots, kind by kind. A kind whose names stand there in a row already adds none.
class slot_name_list {
public:
    constexpr slot_name_list();

    // The place of names that stand in a row, or `room`.
    template <size_t Count> constexpr size_t find(const slot_name (&wanted)[Count]) const
    {
        for (size_t place = 0; place + Count <= count_; place++) {
            if (stand_at(place, wanted))
                return place;
        }
        return room;
    }

    constexpr const slot_name *at(size_t place) const { return &names_[place]; }
    constexpr bool is_full() const { return count_ == room; }

private:
    static constexpr size_t room = 106;

    template <size_t Count> constexpr bool stand_at(size_t place, const slot_name (&wanted)[Count]) const
    {
        for (const slot_name &name : wanted) {
            if (!name.equals(names_[place++]))
                return false;
        }
        return true;
    }

    template <size_t Count> constexpr void add(const slot_name (&added)[Count])
    {
        if (find(added) != room)
            return;
        for (const slot_name &name : added)
            names_[count_++] = name;
    }

    slot_name names_[room];
    size_t count_ = 0;
};

#define DAK_ADD_SLOTS(kind, init, set, get, encode, separator, ...) add({__VA_ARGS__});
constexpr slot_name_list::slot_name_list() { DAK_CODEC_KINDS(DAK_ADD_SLOTS) }
#undef DAK_ADD_SLOTS

inline constexpr slot_name_list slot_names;
static_assert(slot_names.is_full());

struct codec_kind {
    const slot_name *slots;
    uint8_t count;
    char separator[2];
};

// A kind with the slots of these names.
template <size_t Count> constexpr codec_kind make_kind(char separator, const slot_name (&names)[Count])
{
    static_assert(Count <= MEDIA_INFO_MAX_SLOTS);
    return {slot_names.at(slot_names.find(names)), Count, {separator}};
}

namespace kinds {

#define DAK_KIND(kind, init, set, get, encode, separator, ...) kind,
enum class place : uint8_t { DAK_CODEC_KINDS(DAK_KIND) no_parameters };
#undef DAK_KIND

#define DAK_KIND(kind, init, set, get, encode, separator, ...) make_kind(*separator, {__VA_ARGS__}),
inline constexpr codec_kind all[] = {DAK_CODEC_KINDS(DAK_KIND){}};
#undef DAK_KIND

#define DAK_KIND(kind, ...) inline constexpr const codec_kind &kind = all[static_cast<size_t>(place::kind)];
DAK_CODEC_KINDS(DAK_KIND)
#undef DAK_KIND

} // namespace kinds
} // namespace dak

#endif
