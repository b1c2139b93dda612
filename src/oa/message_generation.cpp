// Handing the message-session and file-transfer records of a media line to its section.

#include "oa/media_generation.h"

#include "attr/file_transfer.h"
#include "attr/message_session.h"
#include "oa/result_code.h"
#include "util/bounded_text.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

bool store_session_records(media_description *md, const sdp_media_line &mline)
{
    return dak_sdp_set_media_accept_attr(md, mline.accept_types) &&
           dak_sdp_set_media_accept_wrapped_attr(md, mline.accept_wrapped_types) &&
           dak_sdp_set_media_path_attr(md, mline.path) && dak_sdp_set_media_max_size_attr(md, mline.max_size);
}

bool store_file_records(media_description *md, const sdp_media_line &mline)
{
    return dak_sdp_set_media_file_transfer_id_attr(md, terminated(mline.file_transfer_id).c_str()) &&
           dak_sdp_set_media_file_disposition_attr(md, mline.file_disposition) &&
           dak_sdp_set_media_file_date_attr(md, mline.file_date) &&
           dak_sdp_set_media_file_icon_attr(md, terminated(mline.file_icon).c_str()) &&
           dak_sdp_set_media_file_range_attr(md, mline.file_range) &&
           dak_sdp_set_media_num_of_file_selectors_attr(md, mline.num_file_selectors);
}

// More selectors than a section holds are refused.
bool store_selectors(media_description *md, const sdp_media_line &mline)
{
    if (mline.num_file_selectors > SDP_MAX_FILE_SELECTORS)
        return false;
    for (int i = 0; i < mline.num_file_selectors; i++) {
        if (!dak_sdp_set_media_file_selector_attr(md, mline.file_selectors[i], i))
            return false;
    }
    return true;
}

} // namespace

uint32_t dak_app_oa_encode_media_message_attr(media_description *md, const sdp_media_line *mline)
{
    if (md == nullptr || mline == nullptr) {
        DAK_LOG("dak_app_oa_encode_media_message_attr:No mlines\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    const bool is_message = mline->transport == SDP_TCP_MSRP || mline->transport == SDP_TCP_TLS_MSRP;
    if (mline->msg_attr_present == 0 || !is_message)
        return SDP_OA_SUCCESS;
    if (store_session_records(md, *mline) && store_file_records(md, *mline) && store_selectors(md, *mline))
        return SDP_OA_SUCCESS;
    DAK_LOG("dak_app_oa_encode_media_message_attr :                           Invalid message attr \n");
    return SDP_OA_INVALID_CONTENT;
}
