#pragma once

/// The toolkit's web-socket protocol versions and close codes (RFC 6455),
/// handed on unchanged.
namespace CKyNAWebSocketProtocol
{

/// Versions of the web-socket protocol.
enum Version : int {
    VersionUnknown = -1,      ///< Not known.
    Version0 = 0,             ///< Draft hixie-76 / hybi-00.
    Version4 = 4,             ///< Draft hybi-04.
    Version5 = 5,             ///< Draft hybi-05.
    Version6 = 6,             ///< Draft hybi-06.
    Version7 = 7,             ///< Draft hybi-07.
    Version8 = 8,             ///< Draft hybi-08.
    Version13 = 13,           ///< The protocol of RFC 6455.
    VersionLatest = Version13 ///< The newest version, 13.
};

/// Close status codes of RFC 6455, given to CKyNAWebSocket::close().
enum CloseCode : int {
    CloseCodeNormal = 1000,                ///< Normal closure.
    CloseCodeGoingAway = 1001,             ///< The end point goes away.
    CloseCodeProtocolError = 1002,         ///< A protocol error.
    CloseCodeDatatypeNotSupported = 1003,  ///< A kind of data that cannot be taken.
    CloseCodeReserved1004 = 1004,          ///< Reserved.
    CloseCodeMissingStatusCode = 1005,     ///< No status code was given.
    CloseCodeAbnormalDisconnection = 1006, ///< The connection dropped without a close.
    CloseCodeWrongDatatype = 1007,         ///< Data inconsistent with the message type.
    CloseCodePolicyViolated = 1008,        ///< A policy was violated.
    CloseCodeTooMuchData = 1009,           ///< A message too big to process.
    CloseCodeMissingExtension = 1010,      ///< An extension the client expected is missing.
    CloseCodeBadOperation = 1011,          ///< The server met an unexpected condition.
    CloseCodeTlsHandshakeFailed = 1015     ///< The TLS handshake failed.
};

} // namespace CKyNAWebSocketProtocol
