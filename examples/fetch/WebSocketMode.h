#pragma once

// fetch's web-socket mode: a ws:// or wss:// URL opens a web socket that
// sends each --send text once connected, prints each text message received on
// its own line ("binary: N bytes" for a binary one) and, when the connection
// ends, "close: CODE REASON". With --send and without --messages it closes
// once as many messages came back as it sent.

class CKyNANetworkRequest;
class QCommandLineParser;
class QUrl;

void addWebSocketOptions(QCommandLineParser& parser);
bool isWebSocketUrl(const QUrl& url);
// Runs until the connection ends. Exits with 0 after a normal closure (1000),
// with 1 after an error, a silent peer or any other close code, with 2 when
// --messages, --for or --ping is not a positive whole number.
int runWebSocket(const QCommandLineParser& parser, const CKyNANetworkRequest& request,
                 int handshakeTimeoutMs);
