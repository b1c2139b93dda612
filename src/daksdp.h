/**
 * @file
 * Every public header of daksdp.
 */
#ifndef DAKSDP_H
#define DAKSDP_H

#include "attr/file_transfer.h"
#include "attr/message_session.h"
#include "attr/precondition.h"
#include "attr/rtcp_fb.h"
#include "codec/codec_kind.h"
#include "codec/fmtp_encode.h"
#include "codec/fmtp_parse.h"
#include "codec/media_value.h"
#include "codec/registry.h"
#include "port/port.h"
#include "sdp/attribute_lines.h"
#include "sdp/context.h"
#include "sdp/document.h"
#include "sdp/encoder.h"
#include "sdp/line_match.h"
#include "sdp/media_codecs.h"
#include "sdp/media_description.h"
#include "sdp/media_values.h"
#include "sdp/parser.h"
#include "sdp/rtcp_address.h"
#include "sdp/rtpmap.h"
#include "sdp/session_values.h"
#include "sdp/text_buffer.h"
#include "util/ipv6.h"
#include "util/line_scan.h"
#include "util/number.h"
#include "util/text.h"
#include "util/token.h"
#include "util/trim.h"

#endif
