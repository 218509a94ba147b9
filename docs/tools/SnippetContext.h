#pragma once

// What the code blocks of README.md and docs/*.md may use without declaring
// it. A block tagged `snippet: body` is compiled as the body of a member
// function of a class derived from Owner, the object of a plug-in, after
// COMMONUI_SNIPPET_LOCALS: so the block may name these members as the page's
// reader has them (captured by a lambda, too), call the helpers below, and
// capture `this`; a block that declares one of the names itself hides the
// member.

#include "CommonUI.h"

#include <QtCore/QByteArray>
#include <QtCore/QFile>
#include <QtCore/QString>
#include <QtCore/QUrl>
#include <QtNetwork/QSslCertificate>
#include <QtNetwork/QSslError>
#include <QtNetwork/QSslKey>

// What the plug-in does with what it received.
void handle(int status, const QByteArray& body);
void report(int closeCode, const QString& reason);
void log(const char* text);
void log(const QString& text);
// Credentials the plug-in asks its user for.
QString askUser(const QString& realm);
QString askPassword();

// A dialog of the plug-in's own, with nothing in it.
class PluginDialog : public CKyUIDialog
{
public:
    void SetupUI() override;
};

// The plug-in object inside which body blocks run; never constructed.
class Owner
{
public:
    void consume(const QByteArray& data);

protected:
    CKyNANetworkAccessManager manager;
    CKyNANetworkRequest request;
    CKyNANetworkReply* reply = nullptr;
    CKyNAWebSocket socket{QString(), CKyNAWebSocketProtocol::VersionLatest};
    PluginDialog dialog;
    QFile file;
    QSslCertificate certificate;
    QSslKey key;
};

// Local names for the members, ahead of each body block, which then runs in a
// scope of its own.
#define COMMONUI_SNIPPET_LOCALS                                                                              \
    auto& manager = Owner::manager;                                                                          \
    auto& request = Owner::request;                                                                          \
    auto& reply = Owner::reply;                                                                              \
    auto& socket = Owner::socket;                                                                            \
    auto& dialog = Owner::dialog;                                                                            \
    auto& file = Owner::file;                                                                                \
    auto& certificate = Owner::certificate;                                                                  \
    auto& key = Owner::key;
